// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "commongui_export.h"

#include <QList>
#include <QModelIndex>
#include <QObject>
#include <QPointer>
#include <QString>

class QAbstractItemModel;
class QAbstractItemView;
class QAction;
class QLineEdit;
class QProgressDialog;
class QPushButton;

// Text search over the rows of any item view. The model answers role 0x12345
// of column 0 with the text to search. The view must outlive this object; the
// line edit and the button may go at any time.
class COMMONGUI_EXPORT GenericViewSearch : public QObject
{
    Q_OBJECT

public:
    enum ActionType { SearchNext = 0, SearchSubElements = 1, SearchAll = 2 };
    Q_ENUM(ActionType)
    enum SearchResult { NotFound = 0, Wrapped = 1, Found = 2 };
    Q_ENUM(SearchResult)

    static constexpr int SearchRole = 0x12345;

    GenericViewSearch(QAbstractItemView *view, QLineEdit *lineEdit, QPushButton *findButton,
                      QObject *parent = nullptr);
    ~GenericViewSearch() override;

    // A new action parented to this object, or null for an unknown type.
    QAction *getMenuAction(GenericViewSearch::ActionType type);

    void resetSearch();
    void searchSingleOccurrence(QString text);
    void searchAllOccurrence(QString text);
    void searchThroughRows(QString text, unsigned char rowStep, QModelIndex start, bool findAll);
    void handleFoundIndices();
    bool jumpToNextIndex();
    QModelIndex foundIndexAfterRow(int row);
    void searchResult(GenericViewSearch::SearchResult result);
    void showProgressBar(bool show, bool showProgress, int maximum);
    void updateProgressbar(unsigned char value);
    void createAndAddProgressDialog();

Q_SIGNALS:
    void sigShowProgressbar(bool show, bool showProgress, int maximum);
    void sigNewProgress(unsigned char progress);
    void sigSearchResult(GenericViewSearch::SearchResult searchResult);
    void stopAutoscroll();

public Q_SLOTS:
    void setSearchTVChildren(bool enabled);
    void onSearchNext();
    void onSearchTextChanged(QString newText);
    void checkShowProgressBar();
    void handleFoundIndex();
    void resetBtnFindStyleSheet();
    void onSearchAll();

private:
    void watchModel(QAbstractItemModel *model);
    void forgetHits();
    void forgetHitsOfOtherModel();

    QPointer<QLineEdit> m_lineEdit;
    QPointer<QPushButton> m_findButton;
    QPointer<QProgressDialog> m_progressDialog;
    QPointer<QAbstractItemView> m_view;
    QString m_lastSearchText;
    QString m_currentText;
    bool m_searching = false;
    QList<QModelIndex> m_foundIndices;
    int m_currentRow = 0;
    int m_lastMatchRow = 0;
    bool m_showProgress = false;
    bool m_searchChildren = false;
    QPointer<QAbstractItemModel> m_watchedModel;
};
