// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "HelpBrowser.h"

#include <QHelpEngine>

HelpBrowser::HelpBrowser(QHelpEngine *helpEngine, QWidget *parent)
    : QTextBrowser(parent)
    , helpEngine(helpEngine)
{
}

QVariant HelpBrowser::loadResource(int type, const QUrl &name)
{
    if (helpEngine && name.scheme() == QLatin1String("qthelp"))
        return QVariant(helpEngine->fileData(name));
    return QTextBrowser::loadResource(type, name);
}
