// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "UpdateServer.h"

#include "UpdateServerDefault_p.h"

namespace CommonGUI {

namespace {
QUrl baseUrl(const QByteArray &text)
{
    QUrl url(QString::fromUtf8(text.trimmed()), QUrl::StrictMode);
    if (!url.isValid() || url.scheme().isEmpty() || url.host().isEmpty())
        return QUrl();
    // Only scheme, host and port count; a trailing slash or path is dropped.
    url.setPath(QString());
    url.setQuery(QString());
    url.setFragment(QString());
    return url;
}
}

QUrl defaultUpdateServerUrl()
{
    return baseUrl(COMMONGUI_UPDATE_SERVER_DEFAULT);
}

QUrl updateServerUrl()
{
    const QByteArray override = qgetenv("COMMONGUI_UPDATE_SERVER");
    if (!override.isEmpty()) {
        const QUrl url = baseUrl(override);
        if (url.isValid())
            return url;
    }
    return defaultUpdateServerUrl();
}

}
