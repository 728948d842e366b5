// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "commongui_export.h"

#include <QTextBrowser>

class QHelpEngine;

/**
 * A text browser that reads the pages of a Qt help collection.
 *
 * URLs with the scheme "qthelp" are read from the help engine; all others load
 * as in QTextBrowser. HelpViewer creates one for its pages.
 */
class COMMONGUI_EXPORT HelpBrowser : public QTextBrowser
{
    Q_OBJECT

public:
    /**
     * Constructs a browser that reads from @p helpEngine. The engine is not
     * owned and must outlive the browser.
     */
    explicit HelpBrowser(QHelpEngine *helpEngine, QWidget *parent = nullptr);

    /**
     * Returns the bytes of @p name from the help engine when its scheme is
     * exactly "qthelp", and otherwise what QTextBrowser loads for @p type.
     * A page missing from the collection gives an empty byte array.
     */
    QVariant loadResource(int type, const QUrl &name) override;

private:
    QHelpEngine *helpEngine;
};
