// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "commongui_export.h"

#include <QDialog>
#include <QSharedPointer>

class HelpBrowser;
class QHelpEngine;
struct QHelpLink;
namespace Ui { class HelpViewer; }

/**
 * A help window over a compiled Qt help collection (.qhc): tabs "Content",
 * "Search" (full text) and "Index" on the left, the pages on the right.
 *
 * The window is empty until setHelpFile() is called; the full-text index is
 * built in the background afterwards. Calling setHelpFile() again adds three
 * more tabs without removing the old ones, so use a new viewer for another
 * collection.
 */
class COMMONGUI_EXPORT HelpViewer : public QDialog
{
    Q_OBJECT

public:
    /** Constructs an empty help window. */
    explicit HelpViewer(QWidget *parent = nullptr);
    /** Destroys the window and its help engine. */
    ~HelpViewer() override;

    /**
     * Opens the help collection @p collectionFile and builds the panes on it.
     * Returns whether the help engine could set up its data; on false the
     * panes stay empty.
     */
    bool setHelpFile(QString collectionFile);

public Q_SLOTS:
    /**
     * Shows the page of @p link; @p keyword is not used. Does nothing before
     * setHelpFile(). Tools call it to open a page, for example
     * onDocumentActivated(QHelpLink{QUrl("qthelp://.../index.html"), QString()}, QString()).
     */
    void onDocumentActivated(const QHelpLink &link, const QString &keyword);
    /** Starts a full-text search for the text of the search pane. */
    void searchRequest();
    /** Closes the window; bound by name to the Close button. */
    void on_btnClose_clicked();

private:
    Ui::HelpViewer *ui;
    QSharedPointer<QHelpEngine> helpEngine;
    QSharedPointer<HelpBrowser> helpBrowser;
};
