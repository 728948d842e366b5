// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "commongui_export.h"

#include <QTranslator>

// The library's own translations ("commongui_<language>.qm"). Install it next
// to the tool's translator:
//     auto translator = new CommonGUITranslator(&app);
//     if (translator->loadLanguage(QStringLiteral("de")))
//         app.installTranslator(translator);
class COMMONGUI_EXPORT CommonGUITranslator : public QTranslator
{
    Q_OBJECT

public:
    explicit CommonGUITranslator(QObject *parent = nullptr);

    // Looks in `directory` first when given, then next to the installed
    // library, then in the copy built into the library.
    bool loadLanguage(const QString &language, const QString &directory = QString());
};
