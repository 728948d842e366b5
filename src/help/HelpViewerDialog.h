// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "commongui_export.h"

#include <QDialog>

namespace Ui { class HelpViewerDialog; }

// A light help window: one HTML file, scrolled to a topic anchor. The topic
// "Manual" opens the PDF manual in the desktop's viewer instead.
class COMMONGUI_EXPORT HelpViewerDialog : public QDialog
{
    Q_OBJECT

public:
    explicit HelpViewerDialog(QWidget *parent = nullptr);
    ~HelpViewerDialog() override;

    // Scrolls to the anchor `topic` and shows the dialog (non-modal).
    void setTopic(const QString &topic);
    // Returns false, keeping the current page, when `path` is no file.
    bool setFile(const QString &path);
    void setTitle(const QString &title);
    // Absolute path of the PDF that showManual() opens.
    void setManualFile(const QString &path);
    bool showManual();

public Q_SLOTS:
    void on_pushButton_clicked();

private:
    Ui::HelpViewerDialog *ui;
    QString manualFile;
};
