// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "commongui_export.h"

#include <QObject>
#include <QString>

// Sends the minidumps ("*.dmp", at any depth of dumpDirectory) that earlier runs left
// behind to a Sentry minidump endpoint, or deletes them unsent.
class COMMONGUI_EXPORT SentryCrashRecoverer : public QObject
{
    Q_OBJECT

public:
    // An empty uploadUrl disables uploading; the dumps then stay until discarded.
    SentryCrashRecoverer(const QString &uploadUrl, const QString &dumpDirectory, QObject *parent = nullptr);

    bool hasPendingCrashes() const;
    // Blocks until every dump was offered once, running a local event loop per upload.
    // Each dump is deleted after its attempt, whether the upload succeeded or not.
    void uploadPendingCrashes();
    void discardPendingCrashes();

private:
    const QString uploadUrl;
    const QString dumpDirectory;
};
