// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "commongui_export.h"

#include <QDialog>

class QLabel;
class QTextBrowser;

/**
 * The About box of a tool: its name and version, the versions of this library
 * and of Qt (built against and running), and a licence or credits text that
 * the tool supplies as HTML. Its texts follow a language change at run time.
 */
class COMMONGUI_EXPORT AboutDialog : public QDialog
{
    Q_OBJECT

public:
    /**
     * Constructs the box for @p applicationName in @p applicationVersion with
     * the HTML @p creditsText. An empty name or version takes that of the
     * application object (QCoreApplication::applicationName() and
     * applicationVersion()).
     */
    explicit AboutDialog(const QString &applicationName = QString(),
                         const QString &applicationVersion = QString(),
                         const QString &creditsText = QString(), QWidget *parent = nullptr);

    /** Replaces the credits text with @p html; links open in the desktop's browser. */
    void setCreditsText(const QString &html);
    /** Shows @p logo beside the title; without one the space stays empty. */
    void setLogo(const QPixmap &logo);

    /** Returns the version of this library, such as "0.9.0". */
    static QString libraryVersion();

protected:
    /** \reimp Retranslates the texts when the application's language changes. */
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
