// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "AboutDialog.h"

#include "CANopenTypes.h"

#include <QApplication>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTextBrowser>
#include <QVBoxLayout>

AboutDialog::AboutDialog(const QString &applicationName, const QString &applicationVersion,
                         const QString &creditsText, QWidget *parent)
    : QDialog(parent)
    , m_name(applicationName.isEmpty() ? QApplication::applicationName() : applicationName)
    , m_version(applicationVersion.isEmpty() ? QApplication::applicationVersion()
                                             : applicationVersion)
    , m_logo(new QLabel(this))
    , m_title(new QLabel(this))
    , m_versions(new QLabel(this))
    , m_credits(new QTextBrowser(this))
    , m_close(new QPushButton(this))
{
    setObjectName(QStringLiteral("AboutDialog"));
    m_logo->setObjectName(QStringLiteral("lblLogo"));
    m_title->setObjectName(QStringLiteral("lblTitle"));
    m_versions->setObjectName(QStringLiteral("lblVersions"));
    m_credits->setObjectName(QStringLiteral("txtCredits"));
    m_close->setObjectName(QStringLiteral("btnClose"));

    m_logo->setPixmap(QPixmap(QStringLiteral(":/data/icons/info.png")));
    m_logo->setAlignment(Qt::AlignTop);
    QFont titleFont = m_title->font();
    titleFont.setPointSizeF(titleFont.pointSizeF() * 1.5);
    titleFont.setBold(true);
    m_title->setFont(titleFont);
    m_title->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_versions->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_credits->setOpenExternalLinks(true);
    m_credits->setHtml(creditsText);
    m_credits->setVisible(!creditsText.isEmpty());
    connect(m_close, &QPushButton::clicked, this, &QDialog::accept);

    auto heading = new QVBoxLayout;
    heading->addWidget(m_title);
    heading->addWidget(m_versions);
    heading->addStretch();
    auto top = new QHBoxLayout;
    top->addWidget(m_logo);
    top->addSpacing(12);
    top->addLayout(heading, 1);
    auto buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(m_close);
    auto layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addWidget(m_credits, 1);
    layout->addLayout(buttons);

    retranslate();
    resize(480, creditsText.isEmpty() ? 160 : 360);
}

void AboutDialog::setCreditsText(const QString &html)
{
    m_credits->setHtml(html);
    m_credits->setVisible(!html.isEmpty());
}

void AboutDialog::setLogo(const QPixmap &logo)
{
    m_logo->setPixmap(logo);
}

QString AboutDialog::libraryVersion()
{
    return QString(CommonGUI::version);
}

void AboutDialog::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QDialog::changeEvent(event);
}

void AboutDialog::retranslate()
{
    setWindowTitle(tr("About %1").arg(m_name));
    m_title->setText(QStringLiteral("%1 %2").arg(m_name, m_version));
    m_versions->setText(tr("CommonGUI library %1\nBuilt with Qt %2, running on Qt %3")
                                .arg(libraryVersion(), QStringLiteral(QT_VERSION_STR),
                                     QString::fromLatin1(qVersion())));
    m_close->setText(tr("Close"));
}
