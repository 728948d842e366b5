// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
// A CAN trace window searched with GenericViewSearch, and the file viewer.
#include "DemoModule.h"
#include "DemoWindow.h"

#include "CANopenTypes.h"
#include "FileViewerDialog.h"
#include "GenericViewSearch.h"
#include "TraceText.h"

#include <QAbstractTableModel>
#include <QAction>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QShortcut>
#include <QStatusBar>
#include <QTableView>
#include <QTemporaryDir>
#include <QVBoxLayout>

namespace {

// The CANopen message type of a frame by its identifier (and, for NMT error
// control, its first byte), named by the library's table.
QString messageTypeName(quint16 cobId, quint8 firstByte)
{
    CANopen::MessageType type = CANopen::UNKNOWN;
    if (cobId == 0x000)
        type = CANopen::NMT;
    else if (cobId == 0x080)
        type = CANopen::SYNC;
    else if (cobId > 0x080 && cobId < 0x100)
        type = CANopen::EMCY;
    else if (cobId == 0x100)
        type = CANopen::TIME;
    else if (cobId >= 0x180 && cobId < 0x580)
        type = CANopen::PDO;
    else if (cobId >= 0x580 && cobId < 0x600)
        type = CANopen::SDO_RES;
    else if (cobId >= 0x600 && cobId < 0x680)
        type = CANopen::SDO_REQ;
    else if (cobId >= 0x700 && cobId < 0x780)
        type = firstByte == 0 ? CANopen::NMT_EC_BOOTUP : CANopen::NMT_EC;
    else if (cobId == 0x7E4)
        type = CANopen::LSS_RES;
    else if (cobId == 0x7E5)
        type = CANopen::LSS_REQ;
    return messageTypeNames.value(type);
}

// A trace of generated frames: every row is computed when asked for, so a
// million frames cost no memory.
class TraceModel : public QAbstractTableModel
{
public:
    enum Column { Time, Identifier, Type, Length, Data, ColumnCount };

    explicit TraceModel(int frames, QObject *parent = nullptr)
        : QAbstractTableModel(parent), m_frames(frames) {}

    int rowCount(const QModelIndex &parent = QModelIndex()) const override { return parent.isValid() ? 0 : m_frames; }
    int columnCount(const QModelIndex &parent = QModelIndex()) const override { return parent.isValid() ? 0 : ColumnCount; }

    QVariant headerData(int section, Qt::Orientation orientation, int role) const override
    {
        if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
            return QVariant();
        static const char *const titles[] = { QT_TRANSLATE_NOOP("QObject", "Time (s)"), QT_TRANSLATE_NOOP("QObject", "ID"),
                                              QT_TRANSLATE_NOOP("QObject", "Type"), QT_TRANSLATE_NOOP("QObject", "DLC"),
                                              QT_TRANSLATE_NOOP("QObject", "Data") };
        return QObject::tr(titles[section]);
    }

    QVariant data(const QModelIndex &index, int role) const override
    {
        if (!index.isValid())
            return QVariant();
        const Frame f = frame(index.row());
        if (role == GenericViewSearch::SearchRole && index.column() == 0) {
            // Read for every row by each search: one reused buffer, no arg() chain.
            writeTraceSearchText(m_searchText, f.micros, f.cobId, messageTypeName(f.cobId, f.data[0]), f.length, f.data);
            return m_searchText;
        }
        if (role == Qt::TextAlignmentRole)
            return index.column() == Data ? int(Qt::AlignLeft | Qt::AlignVCenter) : int(Qt::AlignRight | Qt::AlignVCenter);
        if (role != Qt::DisplayRole)
            return QVariant();
        switch (index.column()) {
        case Time: return time(f);
        case Identifier: return id(f);
        case Type: return messageTypeName(f.cobId, f.data[0]);
        case Length: return f.length;
        case Data: return bytes(f);
        }
        return QVariant();
    }

private:
    struct Frame
    {
        quint64 micros;
        quint16 cobId;
        int length;
        quint8 data[8];
    };

    // A small network: SYNC every 10 ms, PDOs of three nodes, SDO traffic and heartbeats.
    static Frame frame(int row)
    {
        Frame f{};
        f.micros = quint64(row) * 250 + (quint64(row) * 7919 % 97);
        const quint32 mix = quint32(row) * 2654435761u;
        const int node = 1 + int(mix >> 30) % 3;
        switch (row % 40) {
        case 0: f.cobId = 0x080; f.length = 0; break;
        case 7: case 23: f.cobId = 0x580 + node; f.length = 8; break;
        case 8: case 24: f.cobId = 0x600 + node; f.length = 8; break;
        case 13: f.cobId = 0x700 + node; f.length = 1; break;
        case 31: f.cobId = row % 4000 == 31 ? 0x080 + node : 0x300 + node; f.length = 8; break;
        default: f.cobId = 0x180 + 0x100 * (row % 3) + node; f.length = 8; break;
        }
        for (int i = 0; i < f.length; ++i)
            f.data[i] = quint8((mix >> (i * 3)) + i * 17);
        if (f.cobId >= 0x700)
            f.data[0] = row % 4000 == 13 ? 0x00 : 0x05;  // boot-up now and then, else operational
        return f;
    }
    static QString time(const Frame &f) { return QString::number(f.micros / 1e6, 'f', 6); }
    static QString id(const Frame &f) { return QStringLiteral("0x%1").arg(f.cobId, 3, 16, QLatin1Char('0')).toUpper().replace(QLatin1String("0X"), QLatin1String("0x")); }
    static QString bytes(const Frame &f)
    {
        QString text;
        for (int i = 0; i < f.length; ++i)
            text += QStringLiteral("%1 ").arg(f.data[i], 2, 16, QLatin1Char('0')).toUpper();
        return text.trimmed();
    }

    int m_frames;
    mutable QString m_searchText;
};

class TraceWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit TraceWindow(int frames, QWidget *parent = nullptr) : QMainWindow(parent)
    {
        setWindowTitle(tr("CAN Trace"));
        auto central = new QWidget(this);
        auto layout = new QVBoxLayout(central);
        auto bar = new QHBoxLayout;
        edit = new QLineEdit(central);
        edit->setPlaceholderText(tr("Search the trace (Return: next, F4: all)"));
        edit->setClearButtonEnabled(true);
        auto find = new QPushButton(tr("Find"), central);
        bar->addWidget(new QLabel(tr("Search:"), central));
        bar->addWidget(edit, 1);
        bar->addWidget(find);
        layout->addLayout(bar);
        view = new QTableView(central);
        view->setModel(new TraceModel(frames, view));
        view->setSelectionBehavior(QAbstractItemView::SelectRows);
        view->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 4);
        view->verticalHeader()->hide();
        view->horizontalHeader()->setStretchLastSection(true);
        view->setColumnWidth(0, 110);
        view->setColumnWidth(1, 70);
        view->setColumnWidth(2, 135);
        view->setColumnWidth(3, 45);
        view->setAlternatingRowColors(true);
        layout->addWidget(view);
        setCentralWidget(central);

        search = new GenericViewSearch(view, edit, find, this);
        connect(find, &QPushButton::clicked, search, &GenericViewSearch::onSearchNext);
        QMenu *menu = menuBar()->addMenu(tr("&Search"));
        menu->addAction(search->getMenuAction(GenericViewSearch::SearchNext));
        menu->addAction(search->getMenuAction(GenericViewSearch::SearchAll));
        menu->addSeparator();
        menu->addAction(search->getMenuAction(GenericViewSearch::SearchSubElements));
        // A permanent text: hovering a menu must not wipe it.
        statusBar()->addWidget(new QLabel(tr("%L1 frames").arg(frames), this));
        DemoWindow::addFindShortcut(this, edit);
        resize(720, 480);
    }

    QLineEdit *edit;
    QTableView *view;
    GenericViewSearch *search;
};

const char sampleC[] =
    "/* CANopen heartbeat consumer, sample file of the demo tool. */\n"
    "#include <stdint.h>\n"
    "#include \"co_node.h\"\n"
    "\n"
    "typedef struct {\n"
    "    uint8_t node;      // node-ID 1..127\n"
    "    uint16_t timeout;  // milliseconds\n"
    "} consumer_t;\n"
    "\n"
    "static const char *state_name(int state)\n"
    "{\n"
    "    switch (state) {\n"
    "    case 0x05: return \"operational\";\n"
    "    case 0x7F: return \"pre-operational\";\n"
    "    default: return \"stopped\";\n"
    "    }\n"
    "}\n"
    "\n"
    "void on_heartbeat(const consumer_t *c, unsigned int state)\n"
    "{\n"
    "    QString unused; // Q words are classes\n"
    "    log_printf(\"node %u is %s\", c->node, state_name(state));\n"
    "}\n";

// Ctrl+F opens the viewer's search, as in every other window (its own key is "/").
void addFindShortcut(FileViewerDialog *dialog)
{
    auto shortcut = new QShortcut(QKeySequence::Find, dialog);
    QObject::connect(shortcut, &QShortcut::activated, dialog, [dialog] {
        QMetaObject::invokeMethod(dialog, "on_actionOpenSearchDialog_triggered");
    });
}

FileViewerDialog *sampleViewer()
{
    auto dir = new QTemporaryDir;
    QFile file(dir->filePath(QStringLiteral("heartbeat.c")));
    if (file.open(QIODevice::WriteOnly))
        file.write(sampleC);
    file.close();
    auto dialog = new FileViewerDialog(file.fileName());
    QObject::connect(dialog, &QObject::destroyed, [dir] { delete dir; });
    dialog->resize(640, 480);
    return dialog;
}

} // namespace

static DemoModuleRegistrar registrar({ QString::fromLatin1(QT_TRANSLATE_NOOP("DemoModule", "Trace and file viewer")), 30, [](DemoWindow *window) {
    QMenu *file = window->fileMenu();
    auto viewFile = new QAction(QObject::tr("&View..."), file);
    file->insertAction(file->actions().value(0), viewFile);
    QObject::connect(viewFile, &QAction::triggered, window, [window] {
        const QString path = QFileDialog::getOpenFileName(window, QObject::tr("View file"));
        if (path.isEmpty())
            return;
        auto dialog = new FileViewerDialog(path, window);
        dialog->setAttribute(Qt::WA_DeleteOnClose);
        addFindShortcut(dialog);
        dialog->resize(720, 540);
        dialog->show();
        window->log(QObject::tr("Viewing %1").arg(path));
    });

    QAction *trace = window->toolsMenu()->addAction(QObject::tr("CAN &trace window"));
    QObject::connect(trace, &QAction::triggered, window, [window] {
        auto w = new TraceWindow(1000000, window);
        w->setObjectName(QStringLiteral("TraceWindow"));
        w->setWindowFlag(Qt::Window);
        w->setAttribute(Qt::WA_DeleteOnClose);
        DemoWindow::keepWindowState(w, w->objectName());
        w->show();
        window->log(QObject::tr("Trace window with %L1 generated frames").arg(1000000));
    });

    window->addScreenshot(QStringLiteral("can-trace"), [] {
        auto w = new TraceWindow(1000000);
        w->edit->setText(QStringLiteral("SDO_RES"));
        w->search->onSearchAll();
        w->view->scrollToTop();
        return w;
    });
    window->addScreenshot(QStringLiteral("file-viewer"), [] { return sampleViewer(); });
} });

#include "TraceModule.moc"
