// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
// "Search all" over a million rows against the plain loop a tool would write
// (read the same role of every row, test it with QString::contains); "Search
// next" after many hits against after a few; and the search over a model that
// builds its texts on demand, as a live trace does, against the same texts stored.
#include "CANopenTypes.h"
#include "GenericViewSearch.h"
#include "TraceText.h"

#include <QAbstractTableModel>
#include <QApplication>
#include <QElapsedTimer>
#include <QItemSelectionModel>
#include <QTableView>
#include <QVector>

#include <cstdio>
#include <functional>

namespace {

const int SearchRole = GenericViewSearch::SearchRole;
const int Rows = 1000000;

// A frame of a small CANopen network, computed from its row.
struct Frame
{
    quint64 micros;
    quint16 cobId;
    int length;
    quint8 data[8];
    CANopen::MessageType type;
};

Frame frame(int row)
{
    Frame f{};
    f.micros = quint64(row) * 250 + quint64(row) * 7919 % 97;
    const quint32 mix = quint32(row) * 2654435761u;
    const int node = 1 + int(mix >> 29);
    switch (row % 16) {
    case 0: f.cobId = 0x080; f.type = CANopen::SYNC; break;
    case 5: f.cobId = 0x580 + node; f.length = 8; f.type = CANopen::SDO_RES; break;
    case 6: f.cobId = 0x600 + node; f.length = 8; f.type = CANopen::SDO_REQ; break;
    case 9: f.cobId = 0x700 + node; f.length = 1; f.type = CANopen::NMT_EC; break;
    default: f.cobId = 0x180 + 0x100 * (row % 4) + node; f.length = 8; f.type = CANopen::PDO; break;
    }
    for (int i = 0; i < f.length; ++i)
        f.data[i] = quint8((mix >> (i * 3)) + i * 17);
    return f;
}

// Texts built when asked for: nothing stored per row.
class OnDemandModel : public QAbstractTableModel
{
public:
    int rowCount(const QModelIndex &parent = QModelIndex()) const override { return parent.isValid() ? 0 : Rows; }
    int columnCount(const QModelIndex &parent = QModelIndex()) const override { return parent.isValid() ? 0 : 5; }
    QVariant data(const QModelIndex &index, int role) const override
    {
        if (role != SearchRole || index.column() != 0)
            return QVariant();
        const Frame f = frame(index.row());
        writeTraceSearchText(m_text, f.micros, f.cobId, *messageTypeNames.find(f.type), f.length, f.data);
        return m_text;
    }

private:
    mutable QString m_text;
};

class StoredModel : public QAbstractTableModel
{
public:
    explicit StoredModel(const std::function<QString(int)> &text)
    {
        m_texts.reserve(Rows);
        for (int i = 0; i < Rows; ++i)
            m_texts.append(text(i));
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

QString syntheticText(int i)
{
    static const char *const types[] = { "NMT", "SYNC", "EMCY", "TPDO1", "RPDO1", "TSDO", "RSDO", "Heartbeat" };
    return QStringLiteral("%1  0x%2  %3  8  %4 00 11 22 33 44 55 66")
        .arg(i)
        .arg(0x180 + i % 0x7f, 3, 16, QLatin1Char('0'))
        .arg(QLatin1String(types[i % 8]))
        .arg(i % 251, 2, 16, QLatin1Char('0'));
}

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

int selectedRows(QTableView &view)
{
    int rows = 0;  // selectedRows() would be quadratic here
    for (const QItemSelectionRange &range : view.selectionModel()->selection())
        rows += range.height();
    return rows;
}

// Best of five of a fresh "Search all" for text over the model, in ms.
double searchAll(QAbstractItemModel &model, const QString &text, int *hits = nullptr)
{
    QTableView view;
    view.setModel(&model);
    GenericViewSearch search(&view, nullptr, nullptr);
    double best = 1e300;
    for (int round = 0; round < 5; ++round) {
        search.resetSearch();
        view.selectionModel()->clearSelection();
        QElapsedTimer timer;
        timer.start();
        search.searchAllOccurrence(text);
        best = qMin(best, timer.nsecsElapsed() / 1e6);
    }
    if (hits)
        *hits = selectedRows(view);
    return best;
}

// Best of five of the first "Search next" after a "Search all" for text, in us;
// or, bare, of selecting the hit it selects straight in the selection model.
double nextAfterAll(QAbstractItemModel &model, const QString &text, bool bare)
{
    QTableView view;
    view.setModel(&model);
    GenericViewSearch search(&view, nullptr, nullptr);
    int next = 1;
    while (!model.index(next, 0).data(SearchRole).toString().contains(text, Qt::CaseInsensitive))
        ++next;
    double best = 1e300;
    for (int round = 0; round < 5; ++round) {
        search.resetSearch();
        view.selectionModel()->clearSelection();
        search.searchAllOccurrence(text);
        QElapsedTimer timer;
        timer.start();
        if (bare) {
            view.selectionModel()->select(model.index(next, 0), QItemSelectionModel::Select
                                              | QItemSelectionModel::Current | QItemSelectionModel::Rows);
        } else {
            search.searchSingleOccurrence(text);
        }
        best = qMin(best, timer.nsecsElapsed() / 1e3);
    }
    return best;
}

void row(const char *name, double ours, const QString &ourName, double peer, const QString &peerName)
{
    std::printf("%-44s | %-22s | %-22s | %.3f\n", name,
                qPrintable(QStringLiteral("%1 %2").arg(ours, 0, 'f', 1).arg(ourName)),
                qPrintable(QStringLiteral("%1 %2").arg(peer, 0, 'f', 1).arg(peerName)), ours / peer);
}

} // namespace

// The progress dialog shows on long searches; the offscreen platform complains about raise().
QtMessageHandler standardHandler = nullptr;
void quietRaise(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (!message.contains(QLatin1String("does not support raise()")))
        standardHandler(type, context, message);
}

int main(int argc, char **argv)
{
    standardHandler = qInstallMessageHandler(quietRaise);
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    StoredModel synthetic(syntheticText);

    struct Case { const char *name; QString text; };
    const Case cases[] = {
        { "search all, 1M rows, 4 hits (ms)", QStringLiteral("999999  0x") },
        { "search all, 1M rows, 125k hits selected (ms)", QStringLiteral("TPDO1") },
    };
    double storedAll[2];
    for (int i = 0; i < 2; ++i) {
        const Case &c = cases[i];
        int ourHits = 0;
        const double ours = searchAll(synthetic, c.text, &ourHits);
        storedAll[i] = ours;
        double peer = 1e300;
        int peerHits = 0;
        for (int round = 0; round < 5; ++round) {
            QElapsedTimer timer;
            timer.start();
            peerHits = bareLoop(synthetic, c.text);
            peer = qMin(peer, timer.nsecsElapsed() / 1e6);
        }
        if (ourHits != peerHits)
            std::fprintf(stderr, "%s: %d hits against %d\n", c.name, ourHits, peerHits);
        row(c.name, ours, "GenericViewSearch", peer, "contains() loop");
    }

    // Replacing the hits by one row costs the selection model time in the number
    // of hits; the search itself must add nothing that grows with them.
    row("search next after 125k hits (us)", nextAfterAll(synthetic, QStringLiteral("TPDO1"), false),
        "GenericViewSearch", nextAfterAll(synthetic, QStringLiteral("TPDO1"), true), "bare select()");

    // A model that builds its texts on demand, as the demo's trace does, against
    // the stored model above, and against its own texts stored.
    OnDemandModel onDemand;
    const double demandNone = searchAll(onDemand, QStringLiteral("no such frame"));
    int hits = 0;
    const double demandAll = searchAll(onDemand, QStringLiteral("SDO"), &hits);
    row("search all, texts on demand, no hit (ms)", demandNone, "on demand", storedAll[0], "stored, 4 hits");
    const QString name = QStringLiteral("search all, texts on demand, %1k hits (ms)").arg(hits / 1000);
    row(qPrintable(name), demandAll, "on demand", storedAll[1], "stored, 125k hits");
    StoredModel stored([&onDemand](int r) { return onDemand.index(r, 0).data(SearchRole).toString(); });
    row("same, no hit, against its texts stored (ms)", demandNone, "on demand",
        searchAll(stored, QStringLiteral("no such frame")), "stored");
    return 0;
}
