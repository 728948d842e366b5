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

/**
 * Text search over the rows of any item view, driven by a line edit and a find
 * button, with "Search next", "Search all" and "Search sub elements".
 *
 * The model must answer SearchRole (0x12345) of column 0 with the text to
 * search; the display role is not read. Matching ignores case and finds the
 * text anywhere in it. Only top-level rows are searched, and with
 * setSearchTVChildren() also their direct children. The find button shows the
 * outcome for one second: red for nothing found, blue for a search that
 * wrapped to the first hit. A search that takes longer than 200 ms shows a
 * frameless progress dialog over the view; the event loop runs every 1000 rows,
 * and requests made meanwhile are ignored.
 *
 * The view must outlive this object; the line edit and the button may be
 * deleted at any time. "Search next" with the text of the last "Search all"
 * steps through that search's hits: it selects the first hit below row 0 each
 * time, and only when all hits lie in row 0 wraps to the first (blue).
 */
class COMMONGUI_EXPORT GenericViewSearch : public QObject
{
    Q_OBJECT

public:
    /** The menu actions of getMenuAction(). */
    enum ActionType {
        SearchNext = 0,         //!< "Search next", the standard Find Next key; runs onSearchNext().
        SearchSubElements = 1,  //!< "Search sub elements", checkable; runs setSearchTVChildren().
        SearchAll = 2,          //!< "Search all", F4; runs onSearchAll().
    };
    Q_ENUM(ActionType)
    /** The outcome shown on the find button by searchResult(). */
    enum SearchResult {
        NotFound = 0,  //!< Nothing found: the selection is cleared and the button turns red.
        Wrapped = 1,   //!< The search wrapped round to the first hit: the button turns blue.
        Found = 2,     //!< Found: the button keeps its colour.
    };
    Q_ENUM(SearchResult)

    /** The item-data role whose text is searched, in column 0 of each row. */
    static constexpr int SearchRole = 0x12345;

    /**
     * Constructs a search over @p view. Return in @p lineEdit runs "Search next"
     * with its text; @p findButton shows the outcome. Either may be null.
     */
    GenericViewSearch(QAbstractItemView *view, QLineEdit *lineEdit, QPushButton *findButton,
                      QObject *parent = nullptr);
    /** Destroys the search; the widgets stay. */
    ~GenericViewSearch() override;

    /**
     * Returns a new action of @p type, parented to this object, for the tool's
     * menus, or null for an unknown type.
     */
    QAction *getMenuAction(GenericViewSearch::ActionType type);

    /** Forgets the hits and the text of the last "Search all". */
    void resetSearch();
    /**
     * Selects and shows the next row below the selected one whose text contains
     * @p text, wrapping to the top; the selected row itself is skipped. With
     * the text of the last "Search all" it steps through that search's hits
     * instead. Nothing found clears the selection and shows red.
     */
    void searchSingleOccurrence(QString text);
    /**
     * Selects every row containing @p text and gives the view the focus. The
     * same text as last time reuses the earlier hits without a new scan. Nothing
     * found leaves the selection empty without a colour; an empty text shows red.
     */
    void searchAllOccurrence(QString text);
    /**
     * Scans the rows in steps of @p rowStep from @p start for @p text and
     * collects the hits; with @p findAll every hit, otherwise the first one.
     * Called by the two searches.
     */
    void searchThroughRows(QString text, unsigned char rowStep, QModelIndex start, bool findAll);
    /** Selects every hit of the last scan, whole rows, and emits stopAutoscroll(). */
    void handleFoundIndices();
    /** Selects and shows the next hit after the reference row; returns false when there are no hits. */
    bool jumpToNextIndex();
    /**
     * Returns the first hit below @p row, or, reporting Wrapped, the first hit
     * of all; an invalid index when there are no hits.
     */
    QModelIndex foundIndexAfterRow(int row);
    /** Shows @p result on the find button for one second. */
    void searchResult(GenericViewSearch::SearchResult result);
    /**
     * Shows the progress dialog centred on the view, with a percentage when
     * @p showProgress is set, or hides it when @p show is false. A @p maximum of
     * 0 or more becomes the dialog's maximum.
     */
    void showProgressBar(bool show, bool showProgress, int maximum);
    /** Sets the progress dialog's value to @p value while it is visible. */
    void updateProgressbar(unsigned char value);
    /** Creates the hidden progress dialog over the view; the constructor calls it. */
    void createAndAddProgressDialog();

Q_SIGNALS:
    /** Declared for the tool's own progress display; the search does not emit it. */
    void sigShowProgressbar(bool show, bool showProgress, int maximum);
    /** Declared for the tool's own progress display; the search does not emit it. */
    void sigNewProgress(unsigned char progress);
    /** Declared for the tool's own result display; the search does not emit it. */
    void sigSearchResult(GenericViewSearch::SearchResult searchResult);
    /**
     * This signal is emitted when a search has finished and its hits are about
     * to be shown, so that the tool can stop scrolling the view automatically.
     */
    void stopAutoscroll();

public Q_SLOTS:
    /** Sets whether the direct children of each row are searched too; off by default. */
    void setSearchTVChildren(bool enabled);
    /** Runs "Search next" with the line edit's text. */
    void onSearchNext();
    /** Remembers @p newText as the search text; no search starts. */
    void onSearchTextChanged(QString newText);
    /** Shows the progress dialog when a search is still running; called 200 ms after it started. */
    void checkShowProgressBar();
    /** Selects and shows the first hit of a single search, or reports NotFound. */
    void handleFoundIndex();
    /** Gives the find button back its normal look. */
    void resetBtnFindStyleSheet();
    /** Runs "Search all" with the line edit's text. */
    void onSearchAll();

private:
    void watchModel(QAbstractItemModel *model);
    void forgetHits();
    void forgetHitsOfOtherModel();
    QModelIndex firstSelectedIndex() const;

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
