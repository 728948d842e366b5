// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
// The "Network" panel: its inputs and its node table survive restarts through
// GuiHelper (restored when the window opens, saved when it closes).
#include "DemoModule.h"
#include "DemoWindow.h"

#include "GuiHelper.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDockWidget>
#include <QFormLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QAction>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTableWidget>
#include <QVBoxLayout>

namespace {

const QString group = QStringLiteral("NetworkPanel");

QWidget *createPanel()
{
    auto panel = new QWidget;
    panel->setObjectName(QStringLiteral("NetworkPanel"));
    auto layout = new QVBoxLayout(panel);
    auto form = new QFormLayout;
    auto name = new QLineEdit;
    name->setObjectName(QStringLiteral("edtNetworkName"));
    name->setPlaceholderText(QObject::tr("e.g. Conveyor line 2"));
    form->addRow(QObject::tr("Network name:"), name);
    auto master = new QSpinBox;
    master->setObjectName(QStringLiteral("spnMasterNode"));
    master->setRange(1, 127);
    master->setValue(1);
    form->addRow(QObject::tr("Master node id:"), master);
    auto baud = new QComboBox;
    baud->setObjectName(QStringLiteral("cmbBaudrate"));
    for (int kbit : { 10, 20, 50, 125, 250, 500, 800, 1000 })
        baud->addItem(QObject::tr("%1 kBit/s").arg(kbit), kbit);
    baud->setCurrentIndex(5);
    form->addRow(QObject::tr("Baud rate:"), baud);
    auto autostart = new QCheckBox(QObject::tr("Start the network when the tool opens"));
    autostart->setObjectName(QStringLiteral("chkAutostart"));
    form->addRow(QString(), autostart);
    layout->addLayout(form);

    auto filter = new QGroupBox(QObject::tr("Trace filter"));
    filter->setObjectName(QStringLiteral("grpTraceFilter"));
    filter->setCheckable(true);
    filter->setChecked(false);
    auto filterLayout = new QFormLayout(filter);
    auto ids = new QLineEdit;
    ids->setObjectName(QStringLiteral("edtFilterIds"));
    ids->setPlaceholderText(QStringLiteral("0x181, 0x281"));
    filterLayout->addRow(QObject::tr("COB-IDs:"), ids);
    layout->addWidget(filter);

    auto table = new QTableWidget(4, 3);
    table->setObjectName(QStringLiteral("tblNodes"));
    table->setProperty("SaveTable", true);
    table->setHorizontalHeaderLabels({ QObject::tr("Node"), QObject::tr("Name"), QObject::tr("EDS file") });
    table->horizontalHeader()->setStretchLastSection(true);
    table->verticalHeader()->hide();
    table->setTabKeyNavigation(false);  // Tab leaves the table; arrows move between cells
    const QStringList defaults = { QObject::tr("Drive"), QObject::tr("I/O module"),
                                   QObject::tr("Encoder"), QObject::tr("Display") };
    for (int row = 0; row < table->rowCount(); ++row) {
        table->setItem(row, 0, new QTableWidgetItem(QString::number(row + 2)));
        table->setItem(row, 1, new QTableWidgetItem(defaults.at(row)));
        table->setItem(row, 2, new QTableWidgetItem);
    }
    layout->addWidget(table, 1);

    auto notes = new QPlainTextEdit;
    notes->setObjectName(QStringLiteral("txtNotes"));
    notes->setPlaceholderText(QObject::tr("Notes on this network"));
    notes->setMaximumHeight(80);
    notes->setTabChangesFocus(true);  // a tab character in the notes is never meant
    layout->addWidget(notes);

    QObject::connect(filter, &QGroupBox::clicked, ids, &QWidget::setEnabled);
    ids->setEnabled(filter->isChecked());
    return panel;
}

}

static DemoModuleRegistrar registrar({ QString::fromLatin1(QT_TRANSLATE_NOOP("DemoModule", "Settings persistence")), 10, [](DemoWindow *window) {
    auto dock = new QDockWidget(QObject::tr("Network"), window);
    dock->setObjectName(QStringLiteral("dockNetwork"));
    QWidget *panel = createPanel();
    dock->setWidget(panel);
    window->addDockWidget(Qt::LeftDockWidgetArea, dock);
    QAction *toggle = dock->toggleViewAction();
    toggle->setText(QObject::tr("&Network panel"));
    window->toolsMenu()->addAction(toggle);

    GuiHelper::restoreSettings(panel, group, QString(), nullptr);
    window->onClose([panel] { GuiHelper::saveSettings(panel, group, QString(), nullptr); });
    window->log(QObject::tr("Network panel restored from the tool's settings"));
    window->addScreenshot(QStringLiteral("network-panel"), [] {
        QWidget *panel = createPanel();
        panel->resize(420, 520);
        return panel;
    });
} });
