// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "TestSupport.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QMessageBox>
#include <QWidget>

namespace TestSupport {

ModalCloser::ModalCloser(int intervalMs, QObject *parent)
    : QObject(parent)
{
    connect(&m_timer, &QTimer::timeout, this, &ModalCloser::poll);
    m_timer.start(intervalMs);
}

void ModalCloser::poll()
{
    QWidget *modal = QApplication::activeModalWidget();
    if (!modal)
        return;
    m_titles << modal->windowTitle();
    if (auto box = qobject_cast<QMessageBox *>(modal))
        m_texts << box->text();
    ++m_closed;
    if (auto box = qobject_cast<QMessageBox *>(modal)) {
        QAbstractButton *button = m_answer != QMessageBox::NoButton ? box->button(m_answer)
                                                                    : box->escapeButton();
        if (!button && !box->buttons().isEmpty())
            button = box->buttons().first();
        if (button) {
            button->click();
            return;
        }
    }
    if (auto dialog = qobject_cast<QDialog *>(modal))
        dialog->reject();
    else
        modal->close();
}

QProcessEnvironment isolatedEnvironment(const QString &home)
{
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(QStringLiteral("HOME"), home);
    env.insert(QStringLiteral("XDG_CONFIG_HOME"), home + QStringLiteral("/.config"));
    env.insert(QStringLiteral("XDG_DATA_HOME"), home + QStringLiteral("/.local/share"));
    env.insert(QStringLiteral("XDG_CACHE_HOME"), home + QStringLiteral("/.cache"));
    env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    QDir().mkpath(documentsFolder(home));
    return env;
}

QString documentsFolder(const QString &home)
{
    return home + QStringLiteral("/Documents");
}

}
