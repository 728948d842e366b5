// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
// Keeping a window's state between runs.
#include <CommonGUI/GuiHelper.h>
#include <CommonGUI/KorvilBaseApplication.h>

#include <QDialog>
#include <QFormLayout>
#include <QLineEdit>
#include <QSpinBox>
#include <QTableWidget>

int main(int argc, char **argv)
{
    KorvilBaseApplication app(argc, argv, QStringLiteral("Node Tool"), QStringLiteral("1.0"));
    app.setOrganizationName(QStringLiteral("Korvil"));
    app.setProperty("AppNameWithVersion", QStringLiteral("Node Tool 1.0"));  // the default store

    QDialog dialog;
    auto form = new QFormLayout(&dialog);
    auto name = new QLineEdit;
    name->setObjectName(QStringLiteral("edtNodeName"));  // the object name is the key
    form->addRow(QStringLiteral("Name"), name);
    auto node = new QSpinBox;
    node->setObjectName(QStringLiteral("spnNodeId"));
    form->addRow(QStringLiteral("Node id"), node);
    auto scratch = new QLineEdit;
    scratch->setObjectName(QStringLiteral("edtScratch"));
    scratch->setProperty("ExcludeSaving", true);  // never kept
    form->addRow(QStringLiteral("Scratch"), scratch);
    auto table = new QTableWidget(3, 2);
    table->setObjectName(QStringLiteral("tblMapping"));
    table->setProperty("SaveTable", true);  // tables are kept only when marked
    form->addRow(table);

    GuiHelper::restoreSettings(&dialog, QStringLiteral("NodeDialog"), QString(), nullptr);
    const int result = dialog.exec();
    GuiHelper::saveSettings(&dialog, QStringLiteral("NodeDialog"), QString(), nullptr);

    if (result == QDialog::Accepted)
        GuiHelper::showMessageBox(nullptr, QStringLiteral("Node Tool"), QStringLiteral("Saved."),
                                  QString(), QMessageBox::Ok, QMessageBox::Information);
    return 0;
}
