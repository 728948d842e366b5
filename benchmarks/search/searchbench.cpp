// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
// "Search all" over a million rows against the plain loop a tool would write:
// read the same role of every row and test it with QString::contains.
#include "GenericViewSearch.h"

#include <QAbstractTableModel>
#include <QApplication>
#include <QElapsedTimer>
#include <QItemSelectionModel>
#include <QTableView>
#include <QVector>

#include <cstdio>

namespace {

const int SearchRole = 0x12345;

class TraceModel : public QAbstractTableModel
{
public:
    explicit TraceModel(int rows)
    {
        static const char *const types[] = { "NMT", "SYNC", "EMCY", "TPDO1", "RPDO1", "TSDO", "RSDO", "Heartbeat" };
        m_texts.reserve(rows);
        for (int i = 0; i < rows; ++i) {
            m_texts.append(QStringLiteral("%1  0x%2  %3  8  %4 00 11 22 33 44 55 66")
                               .arg(i)
                               .arg(0x180 + i % 0x7f, 3, 16, QLatin1Char('0'))
                               .arg(QLatin1String(types[i % 8]))
                               .arg(i % 251, 2, 16, QLatin1Char('0')));
        }
    }
    int rowCount(const QModelIndex &parent = QModelIndex()) const override { return parent.isValid() ? 0 : m_texts.size(); }
    int columnCount(const QModelIndex &parent = QModelIndex()) const override { return parent.isValid() ? 0 : 3; }
    QVariant data(const QModelIndex &index, int role) const override
    {
        if (role == SearchRole || role == Qt::DisplayRole)
            return m_texts.at(index.row());
        return QVariant();
    }

private:
    QVector<QString> m_texts;
};

int bareLoop(const QAbstractItemModel &model, const QString &text)
{
    int hits = 0;
    const int rows = model.rowCount();
    for (int r = 0; r < rows; ++r) {
        if (model.index(r, 0).data(SearchRole).toString().contains(text, Qt::CaseInsensitive))
            ++hits;
    }
    return hits;
}

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    const int rows = 1000000;
    TraceModel model(rows);
    QTableView view;
    view.setModel(&model);
    GenericViewSearch search(&view, nullptr, nullptr);

    struct Case { const char *name; QString text; };
    const Case cases[] = {
        { "search all, 1M rows, 4 hits (ms)", QStringLiteral("999999  0x") },
        { "search all, 1M rows, 125k hits selected (ms)", QStringLiteral("TPDO1") },
    };
    for (const Case &c : cases) {
        double ours = 1e300, peer = 1e300;
        int ourHits = 0, peerHits = 0;
        // Alternate both sides so that they see the same machine state.
        for (int round = 0; round < 5; ++round) {
            search.resetSearch();
            view.selectionModel()->clearSelection();
            QElapsedTimer timer;
            timer.start();
            search.searchAllOccurrence(c.text);
            ours = qMin(ours, timer.nsecsElapsed() / 1e6);
            ourHits = 0;  // selectedRows() would be quadratic here
            for (const QItemSelectionRange &range : view.selectionModel()->selection())
                ourHits += range.height();

            timer.restart();
            peerHits = bareLoop(model, c.text);
            peer = qMin(peer, timer.nsecsElapsed() / 1e6);
        }
        if (ourHits != peerHits)
            std::fprintf(stderr, "%s: %d hits against %d\n", c.name, ourHits, peerHits);
        std::printf("%-44s | %-22s | %-22s | %.3f\n", c.name,
                    qPrintable(QStringLiteral("%1 GenericViewSearch").arg(ours, 0, 'f', 1)),
                    qPrintable(QStringLiteral("%1 contains() loop").arg(peer, 0, 'f', 1)), ours / peer);
    }
    return 0;
}
