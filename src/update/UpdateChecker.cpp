// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "UpdateChecker.h"

#include "UpdateProtocol_p.h"
#include "UpdateServer.h"

#include <QMessageBox>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QUrl>

namespace {
// A version file is one short line; whatever a server sends beyond this is not kept.
constexpr qint64 maximumBody = 64 * 1024;
}

UpdateChecker::UpdateChecker(QObject *parent)
    : QObject(parent)
    , manager(nullptr)
{
}

void UpdateChecker::queryForUpdates(QString productName, QString currentVersion, bool silent)
{
    this->productName = productName;
    this->currentVersion = currentVersion;
    this->silent = silent;
    if (this->currentVersion.size() == 3)
        this->currentVersion.append(QStringLiteral(".0"));
    title = tr("Update Check");

    QUrl url = CommonGUI::updateServerUrl();
    url.setPath(QStringLiteral("/versioninfo/") + productName + QStringLiteral(".info"));

    connect(&manager, &QNetworkAccessManager::finished, this, &UpdateChecker::replyFinished);
    QNetworkReply *reply = manager.get(QNetworkRequest(url));
    connect(reply, &QIODevice::readyRead, this, [this, reply] { collect(reply); });
}

void UpdateChecker::collect(QNetworkReply *reply)
{
    // Drained as it arrives so that an endless body cannot fill the memory.
    while (reply->bytesAvailable() > 0) {
        const QByteArray chunk = reply->read(qMin<qint64>(reply->bytesAvailable(), maximumBody));
        if (body.size() < maximumBody)
            body.append(chunk.left(int(maximumBody - body.size())));
    }
}

void UpdateChecker::replyFinished(QNetworkReply *reply)
{
    QMessageBox box;
    if (reply->error() != QNetworkReply::NoError) {
        box.setText(tr("Query for update has failed."));
        box.setInformativeText(QStringLiteral("No connection to ") + reply->url().toString());
        box.setIcon(QMessageBox::Warning);
    } else {
        collect(reply);
        const CommonGUI::UpdateProtocol::VersionInfo info
                = CommonGUI::UpdateProtocol::readVersionInfo(body, productName, currentVersion);
        if (info.outcome == CommonGUI::UpdateProtocol::VersionInfo::Invalid) {
            box.setText(tr("Query for update has failed."));
            box.setInformativeText(QStringLiteral("Invalid data received from update server:"));
            box.setIcon(QMessageBox::Warning);
        } else if (info.outcome == CommonGUI::UpdateProtocol::VersionInfo::Newer) {
            const QString message = QStringLiteral("New version ") + info.serverVersion
                    + QStringLiteral(" is available.");
            box.setText(tr("Query for update successful."));
            box.setInformativeText(message);
            box.setIcon(QMessageBox::Information);
            if (silent)
                Q_EMIT newVersion(message);
        } else {
            box.setText(tr("Query for update successful."));
            box.setInformativeText(QStringLiteral("No new version available. Version ") + info.serverVersion
                                   + QStringLiteral(" is current version."));
            box.setIcon(QMessageBox::Warning);
        }
    }
    box.setWindowTitle(title);
    if (!silent)
        box.exec();
    reply->deleteLater();
    deleteLater();
}
