// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "commongui_export.h"

#include <QDialog>
#include <QPointer>
#include <QString>

class QFileSystemWatcher;
namespace Ui { class FileViewerDialog; }

// Shows one text file read-only, coloured by the highlighter its complete
// suffix selects, and reloads it whenever it changes on disk.
class COMMONGUI_EXPORT FileViewerDialog : public QDialog
{
    Q_OBJECT

public:
    explicit FileViewerDialog(QString filePath, QWidget *parent = nullptr);
    ~FileViewerDialog() override;

public Q_SLOTS:
    // Point size for the text; the file is reloaded so that all of it takes the size.
    void setTextSize(double size);

private Q_SLOTS:
    void fileModified(const QString &path);
    void timerElapsed();
    void on_actionIncreaseFontSize_triggered();
    void on_actionDescreaseFontSize_triggered();
    void on_actionOpenSearchDialog_triggered();
    void on_edtSearchLine_textChanged(const QString &text);
    void on_edtSearchLine_returnPressed();
    void findNext();
    void findBackwards();
    void on_pushButton_clicked();

private:
    Ui::FileViewerDialog *ui;
    QString m_filePath;
    QString m_searchText;
    QPointer<QFileSystemWatcher> m_watcher;
};
