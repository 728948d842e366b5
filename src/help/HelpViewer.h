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

// Help window over a compiled Qt help collection: contents, full-text search
// and keyword index on the left, the pages on the right.
class COMMONGUI_EXPORT HelpViewer : public QDialog
{
    Q_OBJECT

public:
    explicit HelpViewer(QWidget *parent = nullptr);
    ~HelpViewer() override;

    // Builds the engine and the panes on `collectionFile` (a .qhc); returns
    // whether the engine could set up its data. A second call adds new panes.
    bool setHelpFile(QString collectionFile);

public Q_SLOTS:
    void onDocumentActivated(const QHelpLink &link, const QString &keyword);
    void searchRequest();
    void on_btnClose_clicked();

private:
    Ui::HelpViewer *ui;
    QSharedPointer<QHelpEngine> helpEngine;
    QSharedPointer<HelpBrowser> helpBrowser;
};
