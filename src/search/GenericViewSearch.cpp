// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "GenericViewSearch.h"

#include <QAbstractItemView>
#include <QAction>
#include <QCoreApplication>
#include <QItemSelection>
#include <QItemSelectionModel>
#include <QKeySequence>
#include <QLineEdit>
#include <QProgressBar>
#include <QProgressDialog>
#include <QPushButton>
#include <QStringMatcher>
#include <QTimer>

#include <algorithm>

GenericViewSearch::GenericViewSearch(QAbstractItemView *view, QLineEdit *lineEdit,
                                     QPushButton *findButton, QObject *parent)
    : QObject(parent), m_lineEdit(lineEdit), m_findButton(findButton), m_view(view)
{
    createAndAddProgressDialog();
    if (lineEdit) {
        connect(lineEdit, &QLineEdit::textChanged, this, &GenericViewSearch::onSearchTextChanged);
        connect(lineEdit, &QLineEdit::returnPressed, this, &GenericViewSearch::onSearchNext);
    }
}

GenericViewSearch::~GenericViewSearch() = default;

QAction *GenericViewSearch::getMenuAction(GenericViewSearch::ActionType type)
{
    QAction *action = nullptr;
    switch (type) {
    case SearchNext:
        action = new QAction(tr("Search next"), this);
        action->setShortcut(QKeySequence::FindNext);
        connect(action, &QAction::triggered, this, &GenericViewSearch::onSearchNext);
        break;
    case SearchSubElements:
        action = new QAction(tr("Search sub elements"), this);
        action->setCheckable(true);
        action->setChecked(false);
        connect(action, &QAction::triggered, this, &GenericViewSearch::setSearchTVChildren);
        break;
    case SearchAll:
        action = new QAction(tr("Search all"), this);
        action->setShortcut(QKeySequence(tr("F4")));
        connect(action, &QAction::triggered, this, &GenericViewSearch::onSearchAll);
        break;
    }
    return action;
}

void GenericViewSearch::resetSearch()
{
    m_lastSearchText.clear();
    m_foundIndices.clear();
    m_currentRow = 0;
    m_searching = false;
}

void GenericViewSearch::searchSingleOccurrence(QString text)
{
    if (m_searching)
        return;
    forgetHitsOfOtherModel();
    if (text.isEmpty() && m_lastSearchText.isEmpty()) {
        searchResult(NotFound);
        return;
    }
    m_currentRow = 0;
    if (text == m_lastSearchText && !m_foundIndices.isEmpty() && jumpToNextIndex())
        return;
    // Only a real scan needs the start: stepping through kept hits must not
    // cost as much as the selection they made.
    const QModelIndex start = firstSelectedIndex();

    m_foundIndices.clear();
    m_lastMatchRow = -1;
    m_showProgress = false;
    m_lastSearchText.clear();
    QTimer::singleShot(200, this, &GenericViewSearch::checkShowProgressBar);
    const QPointer<GenericViewSearch> self(this);
    searchThroughRows(text, 1, start, false);
    if (self)
        handleFoundIndex();
}

void GenericViewSearch::searchAllOccurrence(QString text)
{
    if (m_searching)
        return;
    forgetHitsOfOtherModel();
    if (text.isEmpty()) {
        searchResult(NotFound);
        return;
    }
    if (text != m_lastSearchText) {
        m_currentRow = 0;
        m_lastSearchText = text;
        m_lastMatchRow = -1;
        m_foundIndices.clear();
        m_showProgress = false;
        QTimer::singleShot(200, this, &GenericViewSearch::checkShowProgressBar);
        QModelIndex first;
        if (m_view && m_view->model())
            first = m_view->model()->index(0, 0);
        const QPointer<GenericViewSearch> self(this);
        searchThroughRows(text, 1, first, true);
        if (!self)
            return;
    }
    handleFoundIndices();
}

void GenericViewSearch::searchThroughRows(QString text, unsigned char rowStep, QModelIndex start,
                                          bool findAll)
{
    if (!m_view || !m_view->model())
        return;
    // Keep the model alive across the event processing below.
    QPointer<QAbstractItemModel> model = m_view->model();
    watchModel(model);
    const QPointer<GenericViewSearch> self(this);
    m_searching = true;
    const int rowCount = model->rowCount();
    const int step = rowStep == 0 ? 1 : rowStep;  // a zero step would never end

    int startRow;
    int firstChildRow;
    if (start.isValid() && start.parent().isValid()) {
        startRow = start.parent().row();
        firstChildRow = start.row() + 1;
    } else {
        startRow = start.row();
        firstChildRow = 0;
    }
    if (startRow > rowCount)
        startRow = 0;
    if (rowCount < 0) {
        m_searching = false;
        return;
    }

    // One matcher for the whole scan: no per-row allocation for the pattern.
    const QStringMatcher matcher(text, Qt::CaseInsensitive);
    auto hit = [&matcher](const QModelIndex &index) {
        const QVariant value = index.data(SearchRole);
        if (value.userType() == QMetaType::QString) {
            const QString *s = static_cast<const QString *>(value.constData());
            return matcher.indexIn(*s) >= 0;
        }
        return matcher.indexIn(value.toString()) >= 0;
    };

    bool wrapped = false;
    int r = startRow;
    for (;;) {
        if (r % 1000 == 0) {
            QCoreApplication::processEvents();
            if (!self)
                return;  // deleted by an event handler: touch nothing
            if (!model || !m_view)
                break;
        }
        if (wrapped && r >= startRow)
            break;
        if (!findAll && m_lastMatchRow >= 1 && (m_lastMatchRow < r || wrapped))
            break;

        const QModelIndex index = model->index(r, 0);
        if (index.isValid()) {
            if (findAll || r != startRow) {
                if (hit(index)) {
                    m_lastMatchRow = r;
                    m_foundIndices.append(index);
                    if (!findAll)
                        break;
                }
            }
            if (m_searchChildren) {
                const int children = model->rowCount(index);
                bool done = false;
                for (int c = firstChildRow; c < children; ++c) {
                    const QModelIndex child = model->index(c, 0, index);
                    if (hit(child)) {
                        m_lastMatchRow = r;
                        m_foundIndices.append(child);
                        if (!findAll) {
                            done = true;
                            break;
                        }
                    }
                }
                if (done)
                    break;
            }
            firstChildRow = 0;
        }

        r += step;
        if (r > rowCount) {
            r = 0;
            wrapped = true;
        }
    }
    m_searching = false;
}

// Kept hits are plain indices: once rows move or go they point nowhere, so a
// change of the model's structure forgets them and the next search scans again.
void GenericViewSearch::watchModel(QAbstractItemModel *model)
{
    if (model == m_watchedModel)
        return;
    if (m_watchedModel)
        disconnect(m_watchedModel, nullptr, this, nullptr);
    m_watchedModel = model;
    if (!model)
        return;
    connect(model, &QObject::destroyed, this, &GenericViewSearch::forgetHits);
    connect(model, &QAbstractItemModel::modelAboutToBeReset, this, &GenericViewSearch::forgetHits);
    connect(model, &QAbstractItemModel::layoutAboutToBeChanged, this, &GenericViewSearch::forgetHits);
    // Rows appended at the end, as a live trace does, leave every kept index valid.
    connect(model, &QAbstractItemModel::rowsAboutToBeInserted, this,
            [this, model](const QModelIndex &parent, int first) {
                if (first < model->rowCount(parent))
                    forgetHits();
            });
    connect(model, &QAbstractItemModel::rowsAboutToBeRemoved, this, &GenericViewSearch::forgetHits);
    connect(model, &QAbstractItemModel::rowsAboutToBeMoved, this, &GenericViewSearch::forgetHits);
}

void GenericViewSearch::forgetHits()
{
    m_foundIndices.clear();
    m_lastSearchText.clear();
}

// The view may have been given another model since the hits were gathered.
void GenericViewSearch::forgetHitsOfOtherModel()
{
    const QAbstractItemModel *shown = m_view ? m_view->model() : nullptr;
    if (shown != m_watchedModel)
        forgetHits();
}

// What selectedIndexes().first() gives, without listing every selected cell.
QModelIndex GenericViewSearch::firstSelectedIndex() const
{
    if (!m_view || !m_view->selectionModel())
        return QModelIndex();
    for (const QItemSelectionRange &range : m_view->selectionModel()->selection()) {
        const QAbstractItemModel *model = range.model();
        if (!range.isValid() || !model)
            continue;
        for (int row = range.top(); row <= range.bottom(); ++row) {
            for (int column = range.left(); column <= range.right(); ++column) {
                const QModelIndex index = model->index(row, column, range.parent());
                const Qt::ItemFlags flags = model->flags(index);
                if ((flags & Qt::ItemIsSelectable) && (flags & Qt::ItemIsEnabled))
                    return index;
            }
        }
    }
    return QModelIndex();
}

void GenericViewSearch::handleFoundIndex()
{
    if (m_searching)
        return;
    showProgressBar(false, false, 0);
    Q_EMIT stopAutoscroll();
    if (m_foundIndices.isEmpty()) {
        searchResult(NotFound);
        return;
    }
    std::sort(m_foundIndices.begin(), m_foundIndices.end());
    QModelIndex target = m_foundIndices.first();
    for (const QModelIndex &index : qAsConst(m_foundIndices)) {
        if (index.row() >= m_currentRow) {
            target = index;
            break;
        }
    }
    if (!m_view)
        return;
    m_view->scrollTo(target, QAbstractItemView::PositionAtBottom);
    if (m_view->selectionModel())
        m_view->selectionModel()->select(target, QItemSelectionModel::ClearAndSelect
                                                     | QItemSelectionModel::Rows);
}

void GenericViewSearch::handleFoundIndices()
{
    Q_EMIT stopAutoscroll();
    showProgressBar(false, false, 0);
    if (!m_view || !m_view->selectionModel())
        return;
    QItemSelectionModel *selection = m_view->selectionModel();
    const QAbstractItemModel *model = m_view->model();
    if (!model)
        return;
    selection->clearSelection();
    m_view->setUpdatesEnabled(false);
    // Each hit's row is gathered instead of selected one by one: every select()
    // with Current replaces the one before, so only the gathered selection
    // below stays, and one change signal replaces one per hit.
    QItemSelection gathered;
    for (const QModelIndex &index : qAsConst(m_foundIndices)) {
        if (!index.isValid())
            continue;
        const QModelIndex parent = index.parent();
        const int lastColumn = qMax(0, model->columnCount(parent) - 1);
        // Consecutive rows of one parent share a range: same selection, fewer ranges.
        if (!gathered.isEmpty()) {
            QItemSelectionRange &last = gathered.last();
            if (last.parent() == parent && last.bottom() + 1 == index.row()) {
                last = QItemSelectionRange(last.topLeft(),
                                           model->index(index.row(), lastColumn, parent));
                continue;
            }
        }
        gathered.append(QItemSelectionRange(model->index(index.row(), 0, parent),
                                            model->index(index.row(), lastColumn, parent)));
    }
    m_view->setUpdatesEnabled(true);
    // The gathered ranges already span whole rows; letting the model widen them
    // again merges range by range, quadratic in the number of hits.
    selection->select(gathered, QItemSelectionModel::Select | QItemSelectionModel::Current);
    m_view->setFocus(Qt::OtherFocusReason);
}

QModelIndex GenericViewSearch::foundIndexAfterRow(int row)
{
    if (m_foundIndices.isEmpty())
        return QModelIndex();
    for (const QModelIndex &index : qAsConst(m_foundIndices)) {
        if (index.row() > row)
            return index;
    }
    searchResult(Wrapped);
    return m_foundIndices.first();
}

bool GenericViewSearch::jumpToNextIndex()
{
    const QModelIndex index = foundIndexAfterRow(m_currentRow);
    if (!index.isValid() || !m_view)
        return false;
    m_view->scrollTo(index, QAbstractItemView::PositionAtBottom);
    if (m_view->selectionModel())
        m_view->selectionModel()->select(index, QItemSelectionModel::Select
                                                    | QItemSelectionModel::Current
                                                    | QItemSelectionModel::Rows);
    return true;
}

void GenericViewSearch::searchResult(GenericViewSearch::SearchResult result)
{
    if (result == NotFound) {
        if (m_view && m_view->selectionModel())
            m_view->selectionModel()->clearSelection();
        if (m_findButton)
            m_findButton->setStyleSheet(QStringLiteral("QPushButton {background-color: red}"));
    } else if (result == Wrapped) {
        if (m_findButton)
            m_findButton->setStyleSheet(QStringLiteral("QPushButton {background-color: blue}"));
    }
    QTimer::singleShot(1000, this, &GenericViewSearch::resetBtnFindStyleSheet);
}

void GenericViewSearch::resetBtnFindStyleSheet()
{
    if (m_findButton)
        m_findButton->setStyleSheet(QString());
}

void GenericViewSearch::createAndAddProgressDialog()
{
    // Without a view there is nothing to search and nothing to centre on.
    if (!m_view)
        return;
    auto dialog = new QProgressDialog(m_view);
    auto bar = new QProgressBar(dialog);
    bar->setFormat(tr("Searching data...  %p%"));
    bar->setAlignment(Qt::AlignCenter);
    dialog->setBar(bar);
    dialog->setCancelButton(nullptr);
    dialog->setWindowFlags(dialog->windowFlags() | Qt::FramelessWindowHint);
    dialog->setWindowModality(Qt::WindowModal);
    dialog->setAttribute(Qt::WA_NoSystemBackground);
    dialog->setAttribute(Qt::WA_TranslucentBackground);
    dialog->setAttribute(Qt::WA_TransparentForMouseEvents);
    dialog->adjustSize();
    QFont font = dialog->font();
    font.setWeight(QFont::Bold);
    dialog->setFont(font);
    // reset() also stops the dialog's own show-after-delay timer: only we show it.
    dialog->reset();
    dialog->close();
    m_progressDialog = dialog;
}

void GenericViewSearch::checkShowProgressBar()
{
    if (!m_searching)
        return;
    showProgressBar(true, m_showProgress, -1);
    updateProgressbar(0);
}

void GenericViewSearch::showProgressBar(bool show, bool showProgress, int maximum)
{
    if (!m_progressDialog)
        return;
    QProgressDialog *dialog = m_progressDialog;
    if (maximum >= 0)
        dialog->setMaximum(maximum);
    if (!show) {
        dialog->hide();
        dialog->reset();
        return;
    }
    const QString text = showProgress ? QStringLiteral("Searching data... %p%")
                                      : QStringLiteral("Searching...");
    if (auto bar = dialog->findChild<QProgressBar *>())
        bar->setFormat(text);
    dialog->setLabelText(text);
    const QPoint centre = m_view->mapToGlobal(
        QPoint((m_view->width() - 1) / 2, (m_view->height() - 1) / 2));
    dialog->show();
    dialog->move(centre.x() - dialog->width() / 2, centre.y() - dialog->height() / 2);
    dialog->raise();
}

void GenericViewSearch::updateProgressbar(unsigned char value)
{
    if (m_progressDialog && m_progressDialog->isVisible())
        m_progressDialog->setValue(value);
}

void GenericViewSearch::setSearchTVChildren(bool enabled)
{
    m_searchChildren = enabled;
}

void GenericViewSearch::onSearchNext()
{
    searchSingleOccurrence(m_currentText);
}

void GenericViewSearch::onSearchTextChanged(QString newText)
{
    m_currentText = newText;
}

void GenericViewSearch::onSearchAll()
{
    searchAllOccurrence(m_currentText);
}
