// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "commongui_export.h"

#include <QByteArray>
#include <QNetworkAccessManager>
#include <QObject>
#include <QString>

class QNetworkReply;

// One query of "<update server>/versioninfo/<product>.info". The object deletes itself
// once the reply has been evaluated: create it with new, call queryForUpdates, forget it.
class COMMONGUI_EXPORT UpdateChecker : public QObject
{
    Q_OBJECT

public:
    explicit UpdateChecker(QObject *parent = nullptr);

    void queryForUpdates(QString productName, QString currentVersion, bool silent);

Q_SIGNALS:
    // Silent mode only, when the server names a newer version.
    void newVersion(QString message);

public Q_SLOTS:
    void replyFinished(QNetworkReply *reply);

private:
    void collect(QNetworkReply *reply);

    QNetworkAccessManager manager;
    QString productName;
    QString title;
    QString currentVersion;
    bool silent = false;
    QByteArray body;
};
