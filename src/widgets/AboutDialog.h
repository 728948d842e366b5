// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "commongui_export.h"

#include <QDialog>

class QLabel;
class QTextBrowser;

// About box of a tool: its name and version, the versions of this library
// and of Qt, and a licence or credits text that the tool supplies (HTML).
class COMMONGUI_EXPORT AboutDialog : public QDialog
{
    Q_OBJECT

public:
    // Empty name or version: those of the application object.
    explicit AboutDialog(const QString &applicationName = QString(),
                         const QString &applicationVersion = QString(),
                         const QString &creditsText = QString(), QWidget *parent = nullptr);

    void setCreditsText(const QString &html);
    void setLogo(const QPixmap &logo);

    static QString libraryVersion();

protected:
    void changeEvent(QEvent *event) override;

private:
    void retranslate();

    QString m_name;
    QString m_version;
    QLabel *m_logo;
    QLabel *m_title;
    QLabel *m_versions;
    QTextBrowser *m_credits;
    class QPushButton *m_close;
};
