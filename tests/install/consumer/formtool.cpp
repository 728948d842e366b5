// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
// A form made in Designer with the library's widgets, compiled by uic.
#include "ui_form.h"

#include <QApplication>

#include <cstdio>

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    QWidget window;
    Ui::ToolForm form;
    form.setupUi(&window);
    window.show();
    QCoreApplication::processEvents();
    const QList<QWidget *> widgets = { form.hexEdit, form.linkEdit, form.fileEdit, form.textOverlay };
    for (QWidget *widget : widgets) {
        std::printf("%s %s\n", widget->metaObject()->className(),
                    widget->isVisible() && !widget->size().isEmpty() ? "shown" : "hidden");
    }
    std::printf("readOnly %d colour %s suffixes %s return %d caption %s\n",
                form.hexEdit->isReadOnly(), qPrintable(form.hexEdit->addressAreaColor().name()),
                qPrintable(form.fileEdit->property("acceptedSuffixes").toStringList().join(QLatin1Char(','))),
                form.fileEdit->property("invokeReturnPressed").toBool(),
                qPrintable(form.textOverlay->property("text").toString()));
    return 0;
}
