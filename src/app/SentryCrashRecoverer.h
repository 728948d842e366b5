// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "commongui_export.h"

#include <QObject>
#include <QString>

/**
 * Sends the crash dumps that earlier runs left behind to a Sentry minidump
 * endpoint, or deletes them unsent.
 *
 * The dumps are the files "*.dmp" (lower case) at any depth below the dump
 * directory. Each is uploaded as multipart form data, the dump in the field
 * "upload_file_minidump" and "<application name>@<version>" as
 * "sentry[release]". An empty or missing dump directory has no dumps.
 */
class COMMONGUI_EXPORT SentryCrashRecoverer : public QObject
{
    Q_OBJECT

public:
    /**
     * Constructs a recoverer that uploads to @p uploadUrl the dumps found below
     * @p dumpDirectory. An empty @p uploadUrl disables uploading; the dumps
     * then stay until discarded.
     */
    SentryCrashRecoverer(const QString &uploadUrl, const QString &dumpDirectory, QObject *parent = nullptr);

    /** Returns whether any dump lies below the dump directory. */
    bool hasPendingCrashes() const;
    /**
     * Uploads every dump once and blocks until all were offered, running a local
     * event loop per upload. Each dump is deleted after its attempt, whether the
     * upload succeeded or not; an empty dump is deleted unsent, one that cannot
     * be read stays for the next run. Does nothing without an upload URL.
     */
    void uploadPendingCrashes();
    /** Deletes every dump below the dump directory without sending it. */
    void discardPendingCrashes();

private:
    const QString uploadUrl;
    const QString dumpDirectory;
};
