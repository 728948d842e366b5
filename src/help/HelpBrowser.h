// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "commongui_export.h"

#include <QTextBrowser>

class QHelpEngine;

// A text browser that reads "qthelp" pages from a help collection.
class COMMONGUI_EXPORT HelpBrowser : public QTextBrowser
{
    Q_OBJECT

public:
    // The engine is not owned and must outlive the browser.
    explicit HelpBrowser(QHelpEngine *helpEngine, QWidget *parent = nullptr);

    QVariant loadResource(int type, const QUrl &name) override;

private:
    QHelpEngine *helpEngine;
};
