// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "GuiHelper.h"

#include "QHexEdit.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QPlainTextEdit>
#include <QSettings>
#include <QSpinBox>
#include <QTableWidget>

#include <memory>

namespace {

// The store an operation works on; one it had to create lives until the
// operation ends and is then synced and freed.
class Store
{
public:
    Store(const QString &fileName, QSettings *settings)
    {
        if (settings) {
            m_settings = settings;
        } else if (!fileName.isEmpty()) {
            m_owned = std::make_unique<QSettings>(fileName, QSettings::IniFormat);
        } else {
            m_owned = std::make_unique<QSettings>(
                    QCoreApplication::organizationName(),
                    qApp ? qApp->property("AppNameWithVersion").toString() : QString());
        }
        if (m_owned)
            m_settings = m_owned.get();
    }
    QSettings &operator*() const { return *m_settings; }
    QSettings *operator->() const { return m_settings; }

private:
    QSettings *m_settings = nullptr;
    std::unique_ptr<QSettings> m_owned;
};

// Unnamed widgets and Qt's own internals ("qt_spinbox_lineedit" inside every spin
// box and date edit) would share or clobber keys.
bool isKeyed(const QWidget *widget)
{
    const QString name = widget->objectName();
    return !name.isEmpty() && !name.startsWith(QLatin1String("qt_"));
}

bool isSaved(const QWidget *widget)
{
    return isKeyed(widget) && !widget->property("ExcludeSaving").isValid();
}

template<typename T, typename F>
void forEachSaved(QWidget *root, F f)
{
    const QList<T *> widgets = root->findChildren<T *>();
    for (T *w : widgets) {
        if (isSaved(w))
            f(w);
    }
}

QList<QTableWidget *> savedTables(QWidget *root)
{
    QList<QTableWidget *> tables;
    const QList<QTableWidget *> all = root->findChildren<QTableWidget *>();
    for (QTableWidget *t : all) {
        if (isKeyed(t) && t->property("SaveTable").isValid())
            tables << t;
    }
    return tables;
}

const QString typeKey = QStringLiteral("Type");
const QString valueKey = QStringLiteral("Value");

// Never a stored kind: cells never saved, or saved as the other kind, keep their text.
constexpr int noType = 100;
constexpr int itemType = 0;
constexpr int lineEditType = 1;

void centreOn(QWidget *box, const QWidget *parent)
{
    box->move(parent->pos().x() + parent->width() / 2 - box->width() / 2,
              parent->pos().y() + parent->height() / 2 - box->height() / 2);
}

void fill(QMessageBox &box, const QString &title, const QString &text,
          const QString &informativeText, QMessageBox::StandardButtons buttons,
          QMessageBox::Icon icon)
{
    box.setWindowTitle(title);
    box.setInformativeText(informativeText);
    box.setText(text);
    box.setStandardButtons(buttons);
    box.setIcon(icon);
}

}

void GuiHelper::saveSettings(QWidget *widget, QString group, QString fileName, QSettings *settings)
{
    Store store(fileName, settings);
    store->beginGroup(group);

    forEachSaved<QLineEdit>(widget, [&](QLineEdit *w) {
        if (!w->isReadOnly())
            store->setValue(w->objectName(), w->text());
    });
    forEachSaved<QCheckBox>(widget, [&](QCheckBox *w) {
        store->setValue(w->objectName(), int(w->checkState()));
    });
    forEachSaved<QSpinBox>(widget, [&](QSpinBox *w) {
        store->setValue(w->objectName(), w->value());
    });
    forEachSaved<QComboBox>(widget, [&](QComboBox *w) {
        const QVariant data = w->currentData(Qt::UserRole);
        if (data.isValid())
            store->setValue(w->objectName() + QLatin1String("_data"), data);
        else
            store->setValue(w->objectName(), w->currentText());
    });
    forEachSaved<QHexEdit>(widget, [&](QHexEdit *w) {
        store->setValue(w->objectName(), w->data());
    });
    forEachSaved<QPlainTextEdit>(widget, [&](QPlainTextEdit *w) {
        store->setValue(w->objectName(), w->document()->toPlainText());
    });
    forEachSaved<QGroupBox>(widget, [&](QGroupBox *w) {
        if (w->isCheckable())
            store->setValue(w->objectName(), w->isChecked());
    });
    for (QTableWidget *table : savedTables(widget))
        saveTable(table, *store);

    store->sync();
    store->endGroup();
}

bool GuiHelper::restoreSettings(QWidget *widget, QString group, QString fileName,
                                QSettings *settings)
{
    Store store(fileName, settings);
    // A window that never saved keeps its designer defaults.
    if (!store->childGroups().contains(group))
        return false;
    store->beginGroup(group);

    // The current value is the default: a key missing from older settings leaves
    // the widget as it is. Signals are not blocked, so dependent slots run.
    forEachSaved<QLineEdit>(widget, [&](QLineEdit *w) {
        if (!w->isReadOnly())
            w->setText(store->value(w->objectName(), w->text()).toString());
    });
    forEachSaved<QCheckBox>(widget, [&](QCheckBox *w) {
        w->setCheckState(Qt::CheckState(store->value(w->objectName(), int(w->checkState())).toUInt()));
    });
    forEachSaved<QSpinBox>(widget, [&](QSpinBox *w) {
        w->setValue(store->value(w->objectName(), w->value()).toInt());
    });
    forEachSaved<QComboBox>(widget, [&](QComboBox *w) {
        const QVariant data = store->value(w->objectName() + QLatin1String("_data"));
        if (!data.isValid()) {
            w->setCurrentText(store->value(w->objectName(), w->currentText()).toString());
        } else {
            // -1 when no item holds that data any more: the selection is cleared.
            w->setCurrentIndex(w->findData(data, Qt::UserRole,
                                           Qt::MatchExactly | Qt::MatchCaseSensitive));
        }
    });
    forEachSaved<QHexEdit>(widget, [&](QHexEdit *w) {
        w->setData(store->value(w->objectName(), w->data()).toByteArray());
    });
    forEachSaved<QPlainTextEdit>(widget, [&](QPlainTextEdit *w) {
        w->setPlainText(store->value(w->objectName(), w->toPlainText()).toString());
    });
    forEachSaved<QGroupBox>(widget, [&](QGroupBox *w) {
        if (!w->isCheckable())
            return;
        w->setChecked(store->value(w->objectName(), w->isChecked()).toBool());
        // As if the user had clicked: slots enabling dependent widgets run too.
        Q_EMIT w->clicked(w->isChecked());
    });
    for (QTableWidget *table : savedTables(widget))
        restoreTable(table, *store);

    store->endGroup();
    return false;
}

void GuiHelper::saveSetting(QString group, QString key, QVariant value, QString fileName,
                            QSettings *settings)
{
    Store store(fileName, settings);
    store->beginGroup(group);
    store->setValue(key, value);
    store->endGroup();
}

QVariant GuiHelper::restoreSetting(QString group, QString key, QString fileName,
                                   QSettings *settings)
{
    Store store(fileName, settings);
    store->beginGroup(group);
    const QVariant value = store->value(key);
    store->endGroup();
    return value;
}

void GuiHelper::saveTable(QTableWidget *table, QSettings &settings)
{
    settings.beginGroup(table->objectName());
    for (int row = 0; row < table->rowCount(); ++row) {
        settings.beginGroup(QStringLiteral("%1").arg(row));
        for (int column = 0; column < table->columnCount(); ++column) {
            settings.beginGroup(QStringLiteral("%1").arg(column));
            // A line edit placed over an item wins.
            if (QWidget *cell = table->cellWidget(row, column)) {
                if (auto edit = qobject_cast<QLineEdit *>(cell)) {
                    settings.setValue(typeKey, lineEditType);
                    settings.setValue(valueKey, edit->text());
                }
            } else if (QTableWidgetItem *item = table->item(row, column)) {
                settings.setValue(typeKey, itemType);
                settings.setValue(valueKey, item->data(Qt::DisplayRole).toString());
            }
            settings.endGroup();
        }
        settings.endGroup();
    }
    settings.sync();
    settings.endGroup();
}

void GuiHelper::restoreTable(QTableWidget *table, QSettings &settings)
{
    if (!settings.childGroups().contains(table->objectName()))
        return;
    settings.beginGroup(table->objectName());
    for (int row = 0; row < table->rowCount(); ++row) {
        settings.beginGroup(QStringLiteral("%1").arg(row));
        for (int column = 0; column < table->columnCount(); ++column) {
            settings.beginGroup(QStringLiteral("%1").arg(column));
            auto edit = qobject_cast<QLineEdit *>(table->cellWidget(row, column));
            if (edit) {
                if (settings.value(typeKey, noType).toInt() == lineEditType)
                    edit->setText(settings.value(valueKey, QString()).toString());
            } else if (QTableWidgetItem *item = table->item(row, column)) {
                if (settings.value(typeKey, noType).toInt() == itemType)
                    item->setData(Qt::DisplayRole, settings.value(valueKey, QString()).toString());
            }
            settings.endGroup();
        }
        settings.endGroup();
    }
    settings.sync();
    settings.endGroup();
}

int GuiHelper::showMessageBox(QWidget *parent, QString title, QString text,
                              QString informativeText, QMessageBox::StandardButtons buttons,
                              QMessageBox::Icon icon)
{
    // No parent: a top-level box that is not tied to the window it is centred on.
    QMessageBox box;
    fill(box, title, text, informativeText, buttons, icon);
    if (parent)
        parent->raise();
    box.show();  // the box knows its size only once shown
    if (parent)
        centreOn(&box, parent);
    return box.exec();
}

int GuiHelper::showNonBlockingMessageBox(QWidget *parent, QString title, QString text,
                                         QString informativeText,
                                         QMessageBox::StandardButtons buttons,
                                         QMessageBox::Icon icon)
{
    if (!parent)
        return -1;
    auto box = new QMessageBox(parent);
    fill(*box, title, text, informativeText, buttons, icon);
    box->setModal(false);
    box->show();
    parent->raise();
    centreOn(box, parent);
    return -1;
}

void GuiHelper::makeLabelBold(QLabel *label, bool bold)
{
    QFont font = label->font();
    font.setWeight(bold ? QFont::Bold : QFont::Normal);
    label->setFont(font);
}

bool GuiHelper::setComboboxValue(QComboBox *combo, QVariant value, int *index)
{
    if (!combo)
        return false;
    for (int i = 0; i < combo->count(); ++i) {
        if (combo->itemData(i, Qt::UserRole) == value) {
            combo->setCurrentIndex(i);
            if (index)
                *index = i;
            return true;
        }
    }
    if (index)
        *index = combo->count();
    return false;
}

namespace {
const QString geometryKey = QStringLiteral("_windowGeometry");
const QString stateKey = QStringLiteral("_windowState");
}

void GuiHelper::saveWindowState(QWidget *window, QString group, QString fileName, QSettings *settings)
{
    if (!window)
        return;
    Store store(fileName, settings);
    store->beginGroup(group);
    store->setValue(geometryKey, window->saveGeometry());
    if (auto main = qobject_cast<QMainWindow *>(window))
        store->setValue(stateKey, main->saveState());
    store->endGroup();
    store->sync();
}

bool GuiHelper::restoreWindowState(QWidget *window, QString group, QString fileName,
                                   QSettings *settings)
{
    if (!window)
        return false;
    Store store(fileName, settings);
    store->beginGroup(group);
    const QByteArray geometry = store->value(geometryKey).toByteArray();
    const QByteArray state = store->value(stateKey).toByteArray();
    store->endGroup();
    bool restored = !geometry.isEmpty() && window->restoreGeometry(geometry);
    if (auto main = qobject_cast<QMainWindow *>(window); main && !state.isEmpty())
        restored = main->restoreState(state) || restored;
    return restored;
}
