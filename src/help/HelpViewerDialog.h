// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "commongui_export.h"

#include <QDialog>

namespace Ui { class HelpViewerDialog; }

/**
 * A light help window that shows one HTML file, scrolled to a topic anchor.
 *
 * Its window title is "Brisca - Help" until setTitle() changes it. The topic
 * "Manual" opens the PDF manual in the desktop's viewer instead. The Close
 * button hides the dialog, which keeps its page for the next setTopic().
 */
class COMMONGUI_EXPORT HelpViewerDialog : public QDialog
{
    Q_OBJECT

public:
    /** Constructs the dialog without a page. */
    explicit HelpViewerDialog(QWidget *parent = nullptr);
    /** Destroys the dialog. */
    ~HelpViewerDialog() override;

    /**
     * Scrolls to the anchor named @p topic and shows the dialog, non-modal.
     * The topic "Manual" (exactly this case) instead opens
     * \<application dir\>/doc/manual_tarvet_de.pdf in the desktop's PDF viewer,
     * without showing the dialog and without a message if that fails.
     */
    void setTopic(const QString &topic);
    /**
     * Shows the HTML file at @p path. Returns false and keeps the current page
     * when there is no file at @p path.
     */
    bool setFile(const QString &path);
    /** Sets the window title to @p title. */
    void setTitle(const QString &title);
    /** Sets the absolute @p path of the PDF that showManual() opens. */
    void setManualFile(const QString &path);
    /**
     * Opens the PDF of setManualFile() in the desktop's viewer and returns
     * whether the desktop could open it.
     */
    bool showManual();

public Q_SLOTS:
    /** Hides the dialog; bound by name to the Close button. */
    void on_pushButton_clicked();

private:
    Ui::HelpViewerDialog *ui;
    QString manualFile;
};
