// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "commongui_export.h"

#include <QDialog>
#include <QPointer>
#include <QString>

class QFileSystemWatcher;
namespace Ui { class FileViewerDialog; }

/**
 * A dialog that shows one text file read-only, coloured by the highlighter its
 * suffix selects, and reloads it whenever it changes on disk.
 *
 * The highlighter is chosen by everything after the first dot of the file name,
 * case-sensitively: "c" and "h" (AnsiCHighlighter), "eds" and "dcf"
 * (EdsHighlighter), "txt" (PlcHighlighter), "xml" (XMLHighlighter), "dbc"
 * (DBCHighlighter); other files are shown plain, so x.tar.eds is not coloured.
 * The file is read as UTF-8. Ctrl++ and Ctrl+- zoom, "/" focuses the search
 * line, "n" and "b" find the next and previous match, and "Open Folder" opens
 * the file's folder in the desktop's file manager. A file that cannot be read
 * shows "Error <path> is not readable." instead of its text.
 */
class COMMONGUI_EXPORT FileViewerDialog : public QDialog
{
    Q_OBJECT

public:
    /**
     * Constructs the dialog on the file at @p filePath and loads it; the window
     * title is "File Viewer - " and the path (for a resource path, the file
     * name up to its first dot).
     */
    explicit FileViewerDialog(QString filePath, QWidget *parent = nullptr);
    /** Destroys the dialog and stops watching the file. */
    ~FileViewerDialog() override;

public Q_SLOTS:
    /** Sets the text's point size to @p size and reloads the file so that all of it takes the size. */
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
