// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "HelpViewerDialog.h"
#include "ui_HelpViewerDialog.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QFileInfo>
#include <QUrl>

HelpViewerDialog::HelpViewerDialog(QWidget *parent)
    : QDialog(parent)
    , ui(new Ui::HelpViewerDialog)
{
    ui->setupUi(this);
}

HelpViewerDialog::~HelpViewerDialog()
{
    delete ui;
}

void HelpViewerDialog::setTopic(const QString &topic)
{
    if (topic == QLatin1String("Manual")) {
        const QString path = QCoreApplication::applicationDirPath()
                + QStringLiteral("/doc/manual_tarvet_de.pdf");
        QDesktopServices::openUrl(QUrl(QStringLiteral("file:///") + path));
        return;
    }
    ui->textBrowser->scrollToAnchor(topic);
    show();
}

bool HelpViewerDialog::setFile(const QString &path)
{
    // A folder is no page: it would only blank the browser.
    if (!QFileInfo(path).isFile())
        return false;
    ui->textBrowser->setSource(QUrl(QStringLiteral("file:") + path));
    return true;
}

void HelpViewerDialog::setTitle(const QString &title)
{
    setWindowTitle(title);
}

void HelpViewerDialog::setManualFile(const QString &path)
{
    manualFile = path;
}

bool HelpViewerDialog::showManual()
{
    return QDesktopServices::openUrl(QUrl(QStringLiteral("file:///") + manualFile));
}

void HelpViewerDialog::on_pushButton_clicked()
{
    hide();
}
