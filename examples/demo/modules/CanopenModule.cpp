// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
// CANopen: configure a node from its data sheet and write its DCF.
#include "DemoModule.h"
#include "DemoWindow.h"

#include "CANopenTypes.h"
#include "ConciseDcfCreator.h"
#include "DCFWriter.h"
#include "DataSheet.h"
#include "GuiHelper.h"

#include <QAction>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QSplitter>
#include <QStandardPaths>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QVBoxLayout>

#include <memory>

namespace {

// A small device, written out so the window has something to open at once.
const char sampleEds[] =
    "; Sample I/O device\r\n"
    "[FileInfo]\r\nFileName=sample_io.eds\r\nFileVersion=1\r\nEDSVersion=4.0\r\n\r\n"
    "[DeviceInfo]\r\nVendorName=Korvil\r\nProductName=Sample I/O\r\nBaudRate_125=1\r\n"
    "BaudRate_250=1\r\nBaudRate_500=1\r\n\r\n"
    "[MandatoryObjects]\r\nSupportedObjects=2\r\n1=0x1000\r\n2=0x1001\r\n\r\n"
    "[1000]\r\nParameterName=Device type\r\nObjectType=0x7\r\nDataType=0x0007\r\n"
    "AccessType=ro\r\nDefaultValue=0x00000191\r\nPDOMapping=0\r\n\r\n"
    "[1001]\r\nParameterName=Error register\r\nObjectType=0x7\r\nDataType=0x0005\r\n"
    "AccessType=ro\r\nPDOMapping=1\r\n\r\n"
    "[OptionalObjects]\r\nSupportedObjects=2\r\n1=0x1017\r\n2=0x1800\r\n\r\n"
    "[1017]\r\nParameterName=Producer heartbeat time\r\nObjectType=0x7\r\nDataType=0x0006\r\n"
    "AccessType=rw\r\nDefaultValue=0\r\nPDOMapping=0\r\n\r\n"
    "[1800]\r\nParameterName=TPDO1 communication parameter\r\nObjectType=0x9\r\nSubNumber=3\r\n\r\n"
    "[1800sub0]\r\nParameterName=Highest sub-index supported\r\nObjectType=0x7\r\nDataType=0x0005\r\n"
    "AccessType=const\r\nDefaultValue=2\r\nPDOMapping=0\r\n\r\n"
    "[1800sub1]\r\nParameterName=COB-ID used by TPDO\r\nObjectType=0x7\r\nDataType=0x0007\r\n"
    "AccessType=rw\r\nDefaultValue=$NODEID+0x180\r\nPDOMapping=0\r\n\r\n"
    "[1800sub2]\r\nParameterName=Transmission type\r\nObjectType=0x7\r\nDataType=0x0005\r\n"
    "AccessType=rw\r\nDefaultValue=254\r\nPDOMapping=0\r\n\r\n"
    "[ManufacturerObjects]\r\nSupportedObjects=2\r\n1=0x2000\r\n2=0x2001\r\n\r\n"
    "[2000]\r\nParameterName=Output name\r\nObjectType=0x7\r\nDataType=0x0009\r\n"
    "AccessType=rw\r\nDefaultValue=out\r\nPDOMapping=0\r\n\r\n"
    "[2001]\r\nParameterName=Output 1, inverted\r\nObjectType=0x7\r\nDataType=0x0001\r\n"
    "AccessType=rw\r\nDefaultValue=0\r\nPDOMapping=1\r\n";

enum Column { ColIndex, ColSub, ColName, ColType, ColAccess, ColDefault, ColValue, ColDenotation, ColCount };

class ConfigureNodeWindow : public QDialog
{
    Q_OBJECT

public:
    explicit ConfigureNodeWindow(QWidget *parent = nullptr)
        : QDialog(parent)
    {
        setObjectName(QStringLiteral("ConfigureNodeWindow"));
        setWindowTitle(tr("Configure node"));
        auto layout = new QVBoxLayout(this);

        auto fileRow = new QHBoxLayout;
        m_file = new QLineEdit;
        m_file->setReadOnly(true);
        auto open = new QPushButton(tr("&Open EDS..."));
        fileRow->addWidget(new QLabel(tr("Data sheet:")));
        fileRow->addWidget(m_file, 1);
        fileRow->addWidget(open);
        layout->addLayout(fileRow);

        auto form = new QFormLayout;
        m_nodeId = new QSpinBox;
        m_nodeId->setRange(1, 127);
        m_nodeId->setValue(5);
        m_baud = new QComboBox;
        for (int rate : { 10, 20, 50, 125, 250, 500, 800, 1000 })
            m_baud->addItem(tr("%1 kbit/s").arg(rate), rate);
        m_baud->setCurrentIndex(5);
        m_netNumber = new QSpinBox;
        m_netNumber->setRange(1, 127);
        m_netName = new QLineEdit(tr("Line 1"));
        m_nodeName = new QLineEdit(tr("Sample I/O"));
        auto top = new QHBoxLayout;
        form->addRow(tr("Node &ID:"), m_nodeId);
        form->addRow(tr("&Baud rate:"), m_baud);
        form->addRow(tr("Net &number:"), m_netNumber);
        auto names = new QFormLayout;
        names->addRow(tr("Networ&k name:"), m_netName);
        names->addRow(tr("Node n&ame:"), m_nodeName);
        m_filter = new QLineEdit;
        m_filter->setPlaceholderText(tr("Index, name or type (Ctrl+F)"));
        m_filter->setClearButtonEnabled(true);
        names->addRow(tr("&Filter:"), m_filter);
        top->addLayout(form);
        top->addLayout(names, 1);
        layout->addLayout(top);

        m_table = new QTableWidget(0, ColCount);
        m_table->setHorizontalHeaderLabels({ tr("Index"), tr("Sub"), tr("Name"), tr("Type"), tr("Access"),
                                             tr("Default"), tr("Value"), tr("Denotation") });
        m_table->verticalHeader()->hide();
        m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
        m_table->setTabKeyNavigation(false);
        m_concise = new QTableWidget(0, 4);
        m_concise->setHorizontalHeaderLabels({ tr("Index"), tr("Sub"), tr("Size"), tr("Data (little-endian)") });
        m_concise->verticalHeader()->hide();
        m_concise->horizontalHeader()->setSectionResizeMode(3, QHeaderView::Stretch);
        m_concise->setEditTriggers(QAbstractItemView::NoEditTriggers);
        m_concise->setTabKeyNavigation(false);
        auto conciseBox = new QWidget;
        auto conciseLayout = new QVBoxLayout(conciseBox);
        conciseLayout->setContentsMargins(0, 0, 0, 0);
        conciseLayout->addWidget(new QLabel(tr("Concise DCF entries:")));
        conciseLayout->addWidget(m_concise);
        auto splitter = new QSplitter(Qt::Vertical);
        splitter->addWidget(m_table);
        splitter->addWidget(conciseBox);
        splitter->setStretchFactor(0, 3);
        splitter->setStretchFactor(1, 2);
        layout->addWidget(splitter, 1);

        auto buttons = new QHBoxLayout;
        m_status = new QLabel;
        m_status->setWordWrap(true);
        auto write = new QPushButton(tr("&Write DCF..."));
        auto exportConcise = new QPushButton(tr("&Export concise DCF..."));
        auto close = new QPushButton(tr("&Close"));
        buttons->addWidget(m_status, 1);
        buttons->addWidget(write);
        buttons->addWidget(exportConcise);
        buttons->addWidget(close);
        layout->addLayout(buttons);

        connect(open, &QPushButton::clicked, this, [this] {
            const QString name = QFileDialog::getOpenFileName(this, tr("Open data sheet"), QFileInfo(m_file->text()).path(),
                                                              tr("Data sheets (*.eds *.dcf);;All files (*)"));
            if (!name.isEmpty())
                load(name);
        });
        connect(write, &QPushButton::clicked, this, [this] {
            if (!valuesUsable())
                return;
            const QString suggestion = QFileInfo(m_file->text()).dir().filePath(
                QStringLiteral("node%1.dcf").arg(m_nodeId->value()));
            const QString name = QFileDialog::getSaveFileName(this, tr("Write DCF"), suggestion,
                                                              tr("Device configuration (*.dcf)"));
            if (!name.isEmpty())
                writeDcf(name);
        });
        connect(exportConcise, &QPushButton::clicked, this, [this] {
            if (!valuesUsable())
                return;
            const QString suggestion = QFileInfo(m_file->text()).dir().filePath(
                QStringLiteral("node%1.cdcf").arg(m_nodeId->value()));
            const QString name = QFileDialog::getSaveFileName(this, tr("Export concise DCF"), suggestion,
                                                              tr("Concise DCF (*.cdcf *.bin)"));
            if (!name.isEmpty())
                exportConciseDcf(name);
        });
        connect(close, &QPushButton::clicked, this, &QDialog::accept);
        connect(m_filter, &QLineEdit::textChanged, this, &ConfigureNodeWindow::applyFilter);
        connect(m_table, &QTableWidget::itemChanged, this, [this](QTableWidgetItem *item) {
            if (item->column() == ColValue)
                markValue(item->row());
        });
        connect(m_nodeId, QOverload<int>::of(&QSpinBox::valueChanged), this, [this] {
            for (int row = 0; row < m_table->rowCount(); ++row)
                markValue(row);
        });
        DemoWindow::addFindShortcut(this, m_filter);
        resize(940, 640);

        if (m_sampleDir.isValid()) {
            const QString sample = m_sampleDir.filePath(QStringLiteral("sample_io.eds"));
            QFile file(sample);
            if (file.open(QIODevice::WriteOnly) && file.write(sampleEds) > 0) {
                file.close();
                load(sample);
            }
        }
    }

    std::function<void(const QString &)> onLog;

    void load(const QString &fileName)
    {
        m_file->setText(fileName);
        m_table->setRowCount(0);
        QString error;
        if (!m_sheet.load(fileName, &error)) {
            m_objects.clear();
            m_status->setText(tr("Cannot read %1: %2").arg(fileName, error));
            return;
        }
        m_objects = m_sheet.objects();
        const QSignalBlocker blocker(m_table);
        for (const DataSheetObject &object : qAsConst(m_objects)) {
            const int row = m_table->rowCount();
            m_table->insertRow(row);
            const QStringList cells = { QStringLiteral("0x%1").arg(hex(object.index, 4)), hex(object.subIndex, 1),
                                        object.name, object.dataTypeText, object.accessType, object.defaultValue };
            for (int c = 0; c < cells.size(); ++c) {
                auto item = new QTableWidgetItem(cells.at(c));
                item->setFlags(item->flags() & ~Qt::ItemIsEditable);
                m_table->setItem(row, c, item);
            }
            m_table->setItem(row, ColValue, new QTableWidgetItem(object.parameterValue));
            m_table->setItem(row, ColDenotation, new QTableWidgetItem(object.denotation));
        }
        for (int row = 0; row < m_table->rowCount(); ++row)
            markValue(row);
        m_table->resizeColumnsToContents();
        m_table->setColumnWidth(ColName, qMin(m_table->columnWidth(ColName), 260));
        m_table->setColumnWidth(ColDefault, qMin(m_table->columnWidth(ColDefault), 120));
        m_table->setColumnWidth(ColValue, 120);
        m_table->horizontalHeader()->setSectionResizeMode(ColDenotation, QHeaderView::Stretch);
        applyFilter(m_filter->text());
        QString text = tr("%n object(s)", nullptr, m_table->rowCount());
        if (m_sheet.isLatin1())
            text += QLatin1Char(' ') + tr("(not UTF-8: read as Latin-1)");
        m_status->setText(text);
        log(tr("Opened %1").arg(fileName));
    }

    // Fills the value column as a user would, for the screenshot.
    void setSampleValues()
    {
        const QMap<QString, QPair<QString, QString>> values = {
            { QStringLiteral("0x1017/0"), { QStringLiteral("1000"), tr("Heartbeat 1 s") } },
            { QStringLiteral("0x1800/1"), { QStringLiteral("$NODEID+0x180"), QString() } },
            { QStringLiteral("0x1800/2"), { QStringLiteral("1"), tr("Every SYNC") } },
        };
        for (int row = 0; row < m_table->rowCount(); ++row) {
            const QString key = m_table->item(row, ColIndex)->text() + QLatin1Char('/') + m_table->item(row, ColSub)->text();
            if (values.contains(key)) {
                m_table->item(row, ColValue)->setText(values.value(key).first);
                m_table->item(row, ColDenotation)->setText(values.value(key).second);
            }
        }
    }

    bool writeDcf(const QString &target)
    {
        if (QFileInfo(target).absoluteFilePath() != QFileInfo(m_file->text()).absoluteFilePath()) {
            QFile::remove(target);
            if (!QFile::copy(m_file->text(), target)) {
                m_status->setText(tr("Cannot write %1").arg(target));
                return false;
            }
            QFile::setPermissions(target, QFile::permissions(target) | QFile::WriteOwner);
        }
        DCFWriter writer;
        if (!writer.setDCFFile(target))
            return false;
        const int values = configure(writer);
        writer.writeFile();
        QString text = tr("Wrote %1 (%n value(s))", nullptr, values).arg(QFileInfo(target).fileName());
        const QStringList readOnly = readOnlyValues();
        if (!readOnly.isEmpty())
            text += QLatin1Char(' ') + tr("%n read-only value(s) are in the DCF only, not in a concise DCF.", nullptr,
                                          readOnly.size());
        m_status->setText(text);
        log(tr("Wrote DCF %1 with %n configured object(s)", nullptr, values).arg(target));
        return true;
    }

    // The concise form straight from the data sheet and the table's values.
    bool exportConciseDcf(const QString &output)
    {
        ConciseDcfCreator creator(m_file->text());
        m_concise->setRowCount(0);
        if (!creator.writeConciseDcf(output, [this](DCFWriter &writer) { configure(writer); })) {
            m_status->setText(tr("Not exported: %1").arg(creator.errors().value(0)));
            log(tr("Concise DCF not written:\n%1").arg(creator.errorString()));
            return false;
        }
        QFile file(output);
        QList<ConciseDcfCreator::ConciseEntry> entries;
        QString error;
        if (!file.open(QIODevice::ReadOnly) || !ConciseDcfCreator::readConciseDcf(file.readAll(), &entries, &error)) {
            m_status->setText(error.isEmpty() ? file.errorString() : error);
            return false;
        }
        for (const auto &entry : qAsConst(entries)) {
            const int row = m_concise->rowCount();
            m_concise->insertRow(row);
            const QStringList cells = { QStringLiteral("0x%1").arg(hex(entry.index, 4)), hex(entry.subIndex, 1),
                                        QString::number(entry.data.size()), QString::fromLatin1(entry.data.toHex(' ')) };
            for (int c = 0; c < cells.size(); ++c)
                m_concise->setItem(row, c, new QTableWidgetItem(cells.at(c)));
        }
        m_concise->resizeColumnsToContents();
        m_concise->horizontalHeader()->setSectionResizeMode(3, QHeaderView::Stretch);
        QString text = tr("Exported %n entry(s) to %1", nullptr, entries.size()).arg(QFileInfo(output).fileName());
        const QStringList readOnly = readOnlyValues();
        if (!readOnly.isEmpty())
            text += QLatin1Char(' ') + tr("Not included, being read-only: %1").arg(readOnly.join(QStringLiteral(", ")));
        m_status->setText(text);
        log(tr("Wrote concise DCF %1 with %n entry(s)", nullptr, entries.size()).arg(output));
        return true;
    }

    QString sampleDirectory() const { return m_sampleDir.path(); }

private:
    static QString hex(uint value, int width)
    {
        return QStringLiteral("%1").arg(value, width, 16, QLatin1Char('0')).toUpper();
    }

    QString where(int row) const
    {
        const DataSheetObject &object = m_objects.at(row);
        return QStringLiteral("0x%1sub%2 %3").arg(hex(object.index, 4), hex(object.subIndex, 1), object.name);
    }

    // The table's values and denotations into the writer; returns how many objects got one.
    int configure(DCFWriter &writer) const
    {
        writer.updateDeviceCommisioning(quint16(m_baud->currentData().toInt()), quint8(m_netNumber->value()),
                                        m_netName->text(), quint8(m_nodeId->value()), m_nodeName->text());
        int values = 0;
        for (int row = 0; row < m_table->rowCount(); ++row) {
            const QString value = m_table->item(row, ColValue)->text().trimmed();
            const QString denotation = m_table->item(row, ColDenotation)->text().trimmed();
            if (value.isEmpty() && denotation.isEmpty())
                continue;
            const DataSheetObject &object = m_objects.at(row);
            writer.setParameterValue(object.index, object.subIndex, value, denotation);
            ++values;
        }
        return values;
    }

    QString problem(int row) const
    {
        const QString value = m_table->item(row, ColValue)->text().trimmed();
        return value.isEmpty() ? QString() : DataSheet::checkValue(m_objects.at(row), value, m_nodeId->value());
    }

    QStringList readOnlyValues() const
    {
        QStringList objects;
        for (int row = 0; row < m_table->rowCount(); ++row) {
            if (!m_table->item(row, ColValue)->text().trimmed().isEmpty() && !m_objects.at(row).isWritable())
                objects << where(row);
        }
        return objects;
    }

    // Red for a value its type cannot hold, yellow for one the concise DCF leaves out.
    void markValue(int row)
    {
        QTableWidgetItem *item = m_table->item(row, ColValue);
        if (!item || row >= m_objects.size())
            return;
        const QSignalBlocker blocker(m_table);
        const QString reason = problem(row);
        const bool readOnly = !item->text().trimmed().isEmpty() && !m_objects.at(row).isWritable();
        if (!reason.isEmpty()) {
            item->setBackground(QColor(255, 205, 205));
            item->setToolTip(reason);
        } else if (readOnly) {
            item->setBackground(QColor(255, 240, 190));
            item->setToolTip(tr("%1 is read-only: the value goes into the DCF, not into the concise DCF")
                                 .arg(m_objects.at(row).accessType));
        } else {
            item->setData(Qt::BackgroundRole, QVariant());
            item->setToolTip(QString());
        }
    }

    // Every value checked against its data type before anything is written.
    bool valuesUsable()
    {
        QStringList problems;
        for (int row = 0; row < m_table->rowCount(); ++row) {
            const QString reason = problem(row);
            if (!reason.isEmpty())
                problems << tr("%1: %2").arg(where(row), reason);
        }
        if (problems.isEmpty())
            return true;
        GuiHelper::showMessageBox(this, tr("Configure node"),
                                  tr("%n value(s) cannot be written for their data type.", nullptr, problems.size()),
                                  problems.join(QLatin1Char('\n')), QMessageBox::Ok, QMessageBox::Warning);
        m_status->setText(tr("Nothing written: %n value(s) to correct", nullptr, problems.size()));
        return false;
    }

    void applyFilter(const QString &text)
    {
        for (int row = 0; row < m_table->rowCount(); ++row) {
            bool match = text.isEmpty();
            for (int column = 0; column < ColCount && !match; ++column)
                match = m_table->item(row, column)->text().contains(text, Qt::CaseInsensitive);
            m_table->setRowHidden(row, !match);
        }
    }

    void log(const QString &text)
    {
        if (onLog)
            onLog(text);
    }

    QTemporaryDir m_sampleDir;
    DataSheet m_sheet;
    QList<DataSheetObject> m_objects;  // one per table row
    QLineEdit *m_file = nullptr;
    QSpinBox *m_nodeId = nullptr;
    QComboBox *m_baud = nullptr;
    QSpinBox *m_netNumber = nullptr;
    QLineEdit *m_netName = nullptr;
    QLineEdit *m_nodeName = nullptr;
    QLineEdit *m_filter = nullptr;
    QTableWidget *m_table = nullptr;
    QTableWidget *m_concise = nullptr;
    QLabel *m_status = nullptr;
};

}

static DemoModuleRegistrar registrar({ QString::fromLatin1(QT_TRANSLATE_NOOP("DemoModule", "CANopen")), 40, [](DemoWindow *window) {
    QAction *configure = window->toolsMenu()->addAction(QObject::tr("&Configure node..."));
    QObject::connect(configure, &QAction::triggered, window, [window] {
        auto dialog = new ConfigureNodeWindow(window);
        dialog->setAttribute(Qt::WA_DeleteOnClose);
        DemoWindow::keepWindowState(dialog, dialog->objectName());
        dialog->onLog = [window](const QString &text) { window->log(text); };
        dialog->show();
    });
    window->addScreenshot(QStringLiteral("canopen-configure-node"), [] {
        auto dialog = new ConfigureNodeWindow;
        dialog->setSampleValues();
        dialog->exportConciseDcf(QDir(dialog->sampleDirectory()).filePath(QStringLiteral("node5.cdcf")));
        return dialog;
    });
} });

#include "CanopenModule.moc"
