// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "HelpViewer.h"
#include "ui_HelpViewer.h"

#include "HelpBrowser.h"

#include <QHelpContentWidget>
#include <QHelpEngine>
#include <QHelpIndexWidget>
#include <QHelpLink>
#include <QHelpSearchEngine>
#include <QHelpSearchQueryWidget>
#include <QHelpSearchResultWidget>
#include <QVBoxLayout>

HelpViewer::HelpViewer(QWidget *parent)
    : QDialog(parent)
    , ui(new Ui::HelpViewer)
{
    ui->setupUi(this);
}

HelpViewer::~HelpViewer()
{
    // The browser reads from the engine: it goes first.
    helpBrowser.reset();
    helpEngine.reset();
    delete ui;
}

bool HelpViewer::setHelpFile(QString collectionFile)
{
    // Panes of an earlier collection stay as tabs but must not reach into the
    // engine that is about to go away.
    if (helpEngine) {
        for (int i = 0; i < ui->tabWidget->count(); ++i)
            ui->tabWidget->widget(i)->setEnabled(false);
    }
    helpBrowser.reset();
    helpEngine.reset(new QHelpEngine(collectionFile, this));
    helpBrowser.reset(new HelpBrowser(helpEngine.data()));

    QHelpSearchEngine *searchEngine = helpEngine->searchEngine();
    auto searchPage = new QWidget;
    auto searchLayout = new QVBoxLayout(searchPage);
    searchLayout->addWidget(searchEngine->queryWidget(), 0);
    searchLayout->addWidget(searchEngine->resultWidget(), 1);

    ui->tabWidget->addTab(helpEngine->contentWidget(), tr("Content"));
    ui->tabWidget->addTab(searchPage, tr("Search"));
    ui->tabWidget->addTab(helpEngine->indexWidget(), tr("Index"));

    HelpBrowser *browser = helpBrowser.data();
    connect(searchEngine->resultWidget(), &QHelpSearchResultWidget::requestShowLink, browser,
            [browser](const QUrl &url) { browser->setSource(url); });
    connect(helpEngine->contentWidget(), &QHelpContentWidget::linkActivated, browser,
            [browser](const QUrl &url) { browser->setSource(url); });
    connect(helpEngine->indexWidget(), &QHelpIndexWidget::documentActivated, this,
            &HelpViewer::onDocumentActivated);
    connect(searchEngine->queryWidget(), &QHelpSearchQueryWidget::search, this,
            &HelpViewer::searchRequest);

    ui->splitter->addWidget(browser);
    ui->splitter->setStretchFactor(1, 4);

    return helpEngine->setupData();
}

void HelpViewer::onDocumentActivated(const QHelpLink &link, const QString &keyword)
{
    Q_UNUSED(keyword)
    if (helpEngine && helpBrowser)
        helpBrowser->setSource(link.url);
}

void HelpViewer::searchRequest()
{
    if (!helpEngine)
        return;
    QHelpSearchEngine *searchEngine = helpEngine->searchEngine();
    searchEngine->search(searchEngine->queryWidget()->searchInput());
}

void HelpViewer::on_btnClose_clicked()
{
    close();
}
