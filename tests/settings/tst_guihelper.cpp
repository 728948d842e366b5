// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "GuiHelper.h"
#include "QHexEdit.h"
#include "TestSupport.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QDoubleSpinBox>
#include <QFile>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSettings>
#include <QSpinBox>
#include <QStandardPaths>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QtTest>

class tst_GuiHelper : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void savesEachType();
    void restoresEachType();
    void exclusions_data();
    void exclusions();
    void internalChildrenSkipped();
    void comboRestore_data();
    void comboRestore();
    void unknownGroupAndResult();
    void groupBoxEmitsClicked();
    void defaultStore();
    void separateFiles();
    void tableSaved();
    void tableRestore();
    void tableWithoutMark();
    void singleValues();
    void comboboxValue_data();
    void comboboxValue();
    void labelWeight();
    void modalBoxCentred();
    void nonBlockingBox();

private:
    QString ini(const QString &name = QStringLiteral("form.ini")) const { return m_dir.filePath(name); }
    QTemporaryDir m_home;
    QTemporaryDir m_dir;
};

// A form with one named widget of each kept type.
struct Form
{
    QWidget root;
    QLineEdit *edit = new QLineEdit(&root);
    QCheckBox *check = new QCheckBox(&root);
    QSpinBox *spin = new QSpinBox(&root);
    QComboBox *plainCombo = new QComboBox(&root);
    QComboBox *dataCombo = new QComboBox(&root);
    QHexEdit *hex = new QHexEdit(&root);
    QPlainTextEdit *text = new QPlainTextEdit(&root);
    QGroupBox *group = new QGroupBox(&root);

    Form()
    {
        edit->setObjectName("edtName");
        check->setObjectName("chkEnable");
        check->setTristate(true);
        spin->setObjectName("spnNode");
        spin->setRange(1, 127);
        plainCombo->setObjectName("cmbMode");
        plainCombo->addItems({ "Slave", "Master", "Observer" });
        dataCombo->setObjectName("cmbBaud");
        dataCombo->addItem("125 kBit/s", 125);
        dataCombo->addItem("250 kBit/s", 250);
        dataCombo->addItem("500 kBit/s", 500);
        hex->setObjectName("hexImage");
        text->setObjectName("txtNotes");
        group->setObjectName("grpFilter");
        group->setCheckable(true);
    }
    void fillIn()
    {
        edit->setText("Node A");
        check->setCheckState(Qt::PartiallyChecked);
        spin->setValue(42);
        plainCombo->setCurrentIndex(2);
        dataCombo->setCurrentIndex(1);
        hex->setData(QByteArray("\x00\x01\xfe\xff", 4));
        text->setPlainText("line one\nline two");
        group->setChecked(false);
    }
};

void tst_GuiHelper::initTestCase()
{
    QVERIFY(m_home.isValid() && m_dir.isValid());
    qputenv("HOME", m_home.path().toLocal8Bit());
    qputenv("XDG_CONFIG_HOME", (m_home.path() + "/.config").toLocal8Bit());
    QStandardPaths::setTestModeEnabled(true);
}

void tst_GuiHelper::savesEachType()
{
    Form form;
    form.fillIn();
    GuiHelper::saveSettings(&form.root, "Main", ini("types.ini"), nullptr);

    QSettings s(ini("types.ini"), QSettings::IniFormat);
    s.beginGroup("Main");
    QCOMPARE(s.value("edtName").toString(), QString("Node A"));
    QCOMPARE(s.value("chkEnable").toInt(), 1);
    QCOMPARE(s.value("spnNode").toInt(), 42);
    QCOMPARE(s.value("cmbMode").toString(), QString("Observer"));
    QVERIFY(!s.contains("cmbMode_data"));
    QCOMPARE(s.value("cmbBaud_data").toInt(), 250);
    QVERIFY(!s.contains("cmbBaud"));
    QCOMPARE(s.value("hexImage").toByteArray(), QByteArray("\x00\x01\xfe\xff", 4));
    QCOMPARE(s.value("txtNotes").toString(), QString("line one\nline two"));
    QCOMPARE(s.value("grpFilter").toBool(), false);
    QCOMPARE(s.childKeys().size(), 8);
}

void tst_GuiHelper::restoresEachType()
{
    {
        Form saved;
        saved.fillIn();
        GuiHelper::saveSettings(&saved.root, "Main", ini("restore.ini"), nullptr);
    }
    Form form;
    QSignalSpy textSpy(form.edit, &QLineEdit::textChanged);
    QCOMPARE(GuiHelper::restoreSettings(&form.root, "Main", ini("restore.ini"), nullptr), false);
    QCOMPARE(form.edit->text(), QString("Node A"));
    QCOMPARE(form.check->checkState(), Qt::PartiallyChecked);
    QCOMPARE(form.spin->value(), 42);
    QCOMPARE(form.plainCombo->currentText(), QString("Observer"));
    QCOMPARE(form.dataCombo->currentIndex(), 1);
    QCOMPARE(form.hex->data(), QByteArray("\x00\x01\xfe\xff", 4));
    QCOMPARE(form.text->toPlainText(), QString("line one\nline two"));
    QCOMPARE(form.group->isChecked(), false);
    QCOMPARE(textSpy.count(), 1);  // signals are not blocked
}

void tst_GuiHelper::exclusions_data()
{
    QTest::addColumn<QString>("kind");
    QTest::newRow("read-only line edit") << "readonly";
    QTest::newRow("ExcludeSaving true") << "excludeTrue";
    QTest::newRow("ExcludeSaving false") << "excludeFalse";  // presence counts, not value
    QTest::newRow("empty name") << "unnamed";
    QTest::newRow("double spin box") << "double";
    QTest::newRow("group box not checkable") << "plainGroup";
}

void tst_GuiHelper::exclusions()
{
    QFETCH(QString, kind);
    QWidget root;
    QWidget *w = nullptr;
    if (kind == "double") {
        auto d = new QDoubleSpinBox(&root);
        d->setValue(3.5);
        w = d;
    } else if (kind == "plainGroup") {
        w = new QGroupBox(&root);
    } else {
        auto edit = new QLineEdit("value", &root);
        edit->setReadOnly(kind == "readonly");
        if (kind == "excludeTrue")
            edit->setProperty("ExcludeSaving", true);
        if (kind == "excludeFalse")
            edit->setProperty("ExcludeSaving", false);
        w = edit;
    }
    w->setObjectName(kind == "unnamed" ? QString() : QStringLiteral("field"));
    const QString file = ini(kind + ".ini");
    GuiHelper::saveSettings(&root, "Form", file, nullptr);
    QSettings s(file, QSettings::IniFormat);
    QCOMPARE(s.allKeys(), QStringList());

    // Restoring leaves such widgets alone too.
    QSettings writer(file, QSettings::IniFormat);
    writer.setValue("Form/field", "overwritten");
    writer.sync();
    GuiHelper::restoreSettings(&root, "Form", file, nullptr);
    if (auto edit = qobject_cast<QLineEdit *>(w))
        QCOMPARE(edit->text(), QString("value"));
}

void tst_GuiHelper::internalChildrenSkipped()
{
    QWidget root;
    auto spin = new QSpinBox(&root);
    spin->setObjectName("spnCount");
    spin->setRange(0, 1000);
    spin->setValue(7);
    auto dspin = new QDoubleSpinBox(&root);
    dspin->setObjectName("dspGain");
    dspin->setValue(2.25);
    auto date = new QDateEdit(QDate(2024, 3, 15), &root);
    date->setObjectName("datStart");
    GuiHelper::saveSettings(&root, "Form", ini("internal.ini"), nullptr);

    QSettings s(ini("internal.ini"), QSettings::IniFormat);
    QCOMPARE(s.allKeys(), QStringList({ "Form/spnCount" }));

    spin->setValue(9);
    GuiHelper::restoreSettings(&root, "Form", ini("internal.ini"), nullptr);
    QCOMPARE(spin->value(), 7);
    QCOMPARE(dspin->value(), 2.25);
    QCOMPARE(date->date(), QDate(2024, 3, 15));
}

void tst_GuiHelper::comboRestore_data()
{
    QTest::addColumn<QStringList>("keys");
    QTest::addColumn<QVariantList>("values");
    QTest::addColumn<int>("index");
    QTest::newRow("by data, wherever the item is") << QStringList{ "cmbBaud_data" } << QVariantList{ 500 } << 2;
    QTest::newRow("data wins over text") << QStringList{ "cmbBaud_data", "cmbBaud" }
                                         << QVariantList{ 125, "500 kBit/s" } << 0;
    QTest::newRow("data no longer present clears") << QStringList{ "cmbBaud_data" } << QVariantList{ 1000 } << -1;
    QTest::newRow("by text") << QStringList{ "cmbBaud" } << QVariantList{ "250 kBit/s" } << 1;
    QTest::newRow("missing key keeps current") << QStringList{ "other" } << QVariantList{ 1 } << 1;
}

void tst_GuiHelper::comboRestore()
{
    QFETCH(QStringList, keys);
    QFETCH(QVariantList, values);
    QFETCH(int, index);
    const QString file = ini(QStringLiteral("combo_%1.ini").arg(QTest::currentDataTag()).replace(' ', '_'));
    {
        QSettings s(file, QSettings::IniFormat);
        for (int i = 0; i < keys.size(); ++i)
            s.setValue("Dlg/" + keys[i], values[i]);
    }
    QWidget root;
    auto combo = new QComboBox(&root);
    combo->setObjectName("cmbBaud");
    combo->addItem("125 kBit/s", 125);
    combo->addItem("250 kBit/s", 250);
    combo->addItem("500 kBit/s", 500);
    combo->setCurrentIndex(1);
    GuiHelper::restoreSettings(&root, "Dlg", file, nullptr);
    QCOMPARE(combo->currentIndex(), index);
}

void tst_GuiHelper::unknownGroupAndResult()
{
    Form form;
    form.edit->setText("designer default");
    QSettings s(ini("unknown.ini"), QSettings::IniFormat);
    s.setValue("Other/edtName", "foreign");
    s.setValue("main/edtName", "wrong case");
    s.sync();
    QCOMPARE(GuiHelper::restoreSettings(&form.root, "Main", QString(), &s), false);
    QCOMPARE(form.edit->text(), QString("designer default"));
}

void tst_GuiHelper::groupBoxEmitsClicked()
{
    Form form;
    form.group->setChecked(true);
    GuiHelper::saveSettings(&form.root, "Main", ini("group.ini"), nullptr);
    QSignalSpy clicked(form.group, &QGroupBox::clicked);
    GuiHelper::restoreSettings(&form.root, "Main", ini("group.ini"), nullptr);
    // Once, with the restored state, although nothing changed.
    QCOMPARE(clicked.count(), 1);
    QCOMPARE(clicked.first().first().toBool(), true);
}

void tst_GuiHelper::defaultStore()
{
    QCoreApplication::setOrganizationName("Korvil Test");
    qApp->setProperty("AppNameWithVersion", "Bus Monitor 3.1.0");
    Form form;
    form.edit->setText("from default store");
    GuiHelper::saveSettings(&form.root, "Main", QString(), nullptr);

    QSettings expected("Korvil Test", "Bus Monitor 3.1.0");
    QVERIFY(QFile::exists(expected.fileName()));
    QCOMPARE(expected.value("Main/edtName").toString(), QString("from default store"));
    QCOMPARE(GuiHelper::restoreSetting("Main", "edtName", QString(), nullptr).toString(),
             QString("from default store"));
}

void tst_GuiHelper::separateFiles()
{
    Form form;
    form.edit->setText("first");
    GuiHelper::saveSettings(&form.root, "Main", ini("a.ini"), nullptr);
    form.edit->setText("second");
    GuiHelper::saveSettings(&form.root, "Main", ini("b.ini"), nullptr);
    QCOMPARE(QSettings(ini("a.ini"), QSettings::IniFormat).value("Main/edtName").toString(), QString("first"));
    QCOMPARE(QSettings(ini("b.ini"), QSettings::IniFormat).value("Main/edtName").toString(), QString("second"));
}

static QTableWidget *makeTable(QWidget *parent, int rows)
{
    auto table = new QTableWidget(rows, 2, parent);
    table->setObjectName("tblObjects");
    table->setProperty("SaveTable", false);  // presence counts
    for (int r = 0; r < rows; ++r)
        table->setItem(r, 0, new QTableWidgetItem(QStringLiteral("item %1").arg(r)));
    return table;
}

void tst_GuiHelper::tableSaved()
{
    QWidget root;
    QTableWidget *table = makeTable(&root, 3);
    table->setCellWidget(1, 1, new QLineEdit("edit 1"));
    table->setItem(2, 1, new QTableWidgetItem("under"));
    table->setCellWidget(2, 1, new QLineEdit("over"));  // the line edit wins
    table->setCellWidget(0, 1, new QCheckBox);  // other widgets write nothing
    GuiHelper::saveSettings(&root, "Win", ini("table.ini"), nullptr);

    QSettings s(ini("table.ini"), QSettings::IniFormat);
    QCOMPARE(s.value("Win/tblObjects/0/0/Type").toInt(), 0);
    QCOMPARE(s.value("Win/tblObjects/0/0/Value").toString(), QString("item 0"));
    QCOMPARE(s.value("Win/tblObjects/1/1/Type").toInt(), 1);
    QCOMPARE(s.value("Win/tblObjects/1/1/Value").toString(), QString("edit 1"));
    QCOMPARE(s.value("Win/tblObjects/2/1/Value").toString(), QString("over"));
    QVERIFY(!s.contains("Win/tblObjects/0/1/Type"));
}

void tst_GuiHelper::tableRestore()
{
    QSettings s(ini("tablerestore.ini"), QSettings::IniFormat);
    const struct { const char *key; QVariant value; } entries[] = {
        { "Win/tblObjects/0/0/Type", 0 }, { "Win/tblObjects/0/0/Value", "restored 0" },
        { "Win/tblObjects/0/1/Type", 0 }, { "Win/tblObjects/0/1/Value", "item into edit" },
        { "Win/tblObjects/1/0/Type", 1 }, { "Win/tblObjects/1/0/Value", "edit into item" },
        { "Win/tblObjects/2/0/Type", 0 }, { "Win/tblObjects/2/0/Value", "beyond the rows" },
    };
    for (const auto &e : entries)
        s.setValue(e.key, e.value);
    s.sync();

    QWidget root;
    QTableWidget *table = makeTable(&root, 2);  // fewer rows than saved
    auto edit = new QLineEdit("kept");
    table->setCellWidget(0, 1, edit);
    QSignalSpy changed(table, &QTableWidget::itemChanged);
    GuiHelper::restoreSettings(&root, "Win", QString(), &s);

    QCOMPARE(table->item(0, 0)->text(), QString("restored 0"));
    QCOMPARE(edit->text(), QString("kept"));  // Type mismatch
    QCOMPARE(table->item(1, 0)->text(), QString("item 1"));  // Type mismatch
    QCOMPARE(table->rowCount(), 2);
    QCOMPARE(changed.count(), 1);
}

void tst_GuiHelper::tableWithoutMark()
{
    QWidget root;
    QTableWidget *table = makeTable(&root, 1);
    table->setProperty("SaveTable", QVariant());  // removes the mark
    GuiHelper::saveSettings(&root, "Win", ini("nomark.ini"), nullptr);
    QCOMPARE(QSettings(ini("nomark.ini"), QSettings::IniFormat).allKeys(), QStringList());
}

void tst_GuiHelper::singleValues()
{
    GuiHelper::saveSetting("Totd", "ShowAtStart", false, ini("single.ini"), nullptr);
    QCOMPARE(QSettings(ini("single.ini"), QSettings::IniFormat).value("Totd/ShowAtStart").toBool(), false);
    QCOMPARE(GuiHelper::restoreSetting("Totd", "ShowAtStart", ini("single.ini"), nullptr).toBool(), false);
    QVERIFY(!GuiHelper::restoreSetting("Totd", "Missing", ini("single.ini"), nullptr).isValid());
}

void tst_GuiHelper::comboboxValue_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<bool>("found");
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("current");
    QTest::newRow("match") << QVariant(30) << true << 2 << 2;
    QTest::newRow("equal data: first wins") << QVariant(20) << true << 1 << 1;
    QTest::newRow("no match: item count") << QVariant(99) << false << 5 << 4;
}

void tst_GuiHelper::comboboxValue()
{
    QFETCH(QVariant, value);
    QFETCH(bool, found);
    QFETCH(int, index);
    QFETCH(int, current);
    QComboBox combo;
    for (int data : { 10, 20, 30, 20, 50 })
        combo.addItem(QString::number(data), data);
    combo.setCurrentIndex(4);
    int result = -7;
    QCOMPARE(GuiHelper::setComboboxValue(&combo, value, &result), found);
    QCOMPARE(result, index);
    QCOMPARE(combo.currentIndex(), current);
    QCOMPARE(GuiHelper::setComboboxValue(nullptr, value, &result), false);
    QCOMPARE(result, index);  // untouched for a null combo
}

void tst_GuiHelper::labelWeight()
{
    QLabel label("Node");
    QFont font = label.font();
    font.setWeight(QFont::DemiBold);
    label.setFont(font);
    GuiHelper::makeLabelBold(&label, true);
    QCOMPARE(int(label.font().weight()), int(QFont::Bold));
    GuiHelper::makeLabelBold(&label, false);
    QCOMPARE(int(label.font().weight()), int(QFont::Normal));
}

void tst_GuiHelper::modalBoxCentred()
{
    QWidget parent;
    parent.setGeometry(100, 80, 640, 480);
    parent.show();
    QPoint centre;
    QString title;
    QTimer::singleShot(50, [&] {
        auto box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!box)
            return;
        title = box->windowTitle() + "|" + box->text() + "|" + box->informativeText();
        centre = QPoint(box->pos().x() + box->width() / 2, box->pos().y() + box->height() / 2);
        box->button(QMessageBox::No)->click();
    });
    const int result = GuiHelper::showMessageBox(&parent, "Title", "Text", "More",
                                                 QMessageBox::Yes | QMessageBox::No,
                                                 QMessageBox::Question);
    QCOMPARE(result, int(QMessageBox::No));
    QCOMPARE(title, QString("Title|Text|More"));
    const QPoint expected(parent.pos().x() + 320, parent.pos().y() + 240);
    QVERIFY2((centre - expected).manhattanLength() <= 2,
             qPrintable(QStringLiteral("%1,%2").arg(centre.x()).arg(centre.y())));
}

void tst_GuiHelper::nonBlockingBox()
{
    QCOMPARE(GuiHelper::showNonBlockingMessageBox(nullptr, "T", "X", "I", QMessageBox::Ok,
                                                  QMessageBox::Information), -1);
    for (QWidget *w : QApplication::topLevelWidgets())
        QVERIFY(!qobject_cast<QMessageBox *>(w));

    QWidget parent;
    parent.resize(400, 300);
    parent.show();
    QCOMPARE(GuiHelper::showNonBlockingMessageBox(&parent, "T", "X", "I", QMessageBox::Ok,
                                                  QMessageBox::Warning), -1);
    const QList<QMessageBox *> boxes = parent.findChildren<QMessageBox *>();
    QCOMPARE(boxes.size(), 1);
    QVERIFY(boxes.first()->isVisible());
    QVERIFY(!boxes.first()->isModal());
    QCOMPARE(boxes.first()->text(), QString("X"));
}

QTEST_MAIN(tst_GuiHelper)
#include "tst_guihelper.moc"
