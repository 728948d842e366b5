// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "commongui_export.h"

#include <QByteArray>
#include <QNetworkAccessManager>
#include <QObject>
#include <QString>

class QNetworkReply;

/**
 * One check for a newer release by a GET of
 * "<update server>/versioninfo/<product>.info".
 *
 * The object deletes itself (deleteLater()) once the reply has been evaluated,
 * whatever the outcome: create it with \c new, call queryForUpdates() once and
 * forget it. Without \e silent the outcome is shown in a modal message box;
 * with it, only a newer version is reported, by newVersion(), and failures are
 * not reported at all. No time-out is set: without a reply the object lives
 * until its parent is destroyed.
 *
 * The reply is a line "<product>:<version>". Versions are compared as text,
 * case-insensitively, not numerically: 2.10.0 counts as older than 2.9.0. A
 * current version of exactly three characters, such as 2.4, is compared as 2.4.0.
 */
class COMMONGUI_EXPORT UpdateChecker : public QObject
{
    Q_OBJECT

public:
    /** Constructs a checker and its network access manager. */
    explicit UpdateChecker(QObject *parent = nullptr);

    /**
     * Starts the query for @p productName (the file name on the server and the
     * name the reply must carry) running @p currentVersion, and returns at once.
     * With @p silent no message box is shown. Call it only once per object.
     */
    void queryForUpdates(QString productName, QString currentVersion, bool silent);

Q_SIGNALS:
    /**
     * This signal is emitted in silent mode only, when the server names a newer
     * version, with the sentence "New version <version> is available.".
     */
    void newVersion(QString message);

public Q_SLOTS:
    /**
     * Evaluates the finished @p reply, shows or signals the outcome and deletes
     * the reply and the checker later. Called by the network access manager.
     * A network error shows "Query for update has failed." with "No connection
     * to <url>"; a reply that names another product (compared case-sensitively)
     * or does not match shows "Invalid data received from update server:".
     */
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
