// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

// Test helpers shared by the update and crash-upload tests: the loopback HTTP server
// (updateserver.py) as a child process, and a recorder of shown message boxes.

#include <QApplication>
#include <QEvent>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMessageBox>
#include <QProcess>
#include <QTcpServer>
#include <QTemporaryDir>
#include <QtTest>

class UpdateTestServer
{
public:
    UpdateTestServer()
    {
        const QString script = qEnvironmentVariable("COMMONGUI_TEST_SOURCE_DIR")
                + QStringLiteral("/update/updateserver.py");
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_process.start(QStringLiteral("python3"), { script, m_dir.path() });
        if (!m_process.waitForStarted())
            return;
        while (!m_process.canReadLine() && m_process.waitForReadyRead(30000)) { }
        m_port = quint16(m_process.readLine().trimmed().toUInt());
    }
    ~UpdateTestServer()
    {
        m_process.kill();
        m_process.waitForFinished();
    }

    bool isRunning() const { return m_port != 0 && m_dir.isValid(); }
    QString url() const { return QStringLiteral("http://127.0.0.1:%1").arg(m_port); }
    QString path(const QString &name) const { return m_dir.filePath(name); }

    void writeFile(const QString &name, const QByteArray &content)
    {
        QFile file(path(name));
        QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(content);
    }
    void removeFile(const QString &name) { QFile::remove(path(name)); }

    // Every request so far, oldest first.
    QList<QJsonObject> requests() const
    {
        QList<QJsonObject> result;
        QFile file(m_dir.filePath(QStringLiteral("requests.log")));
        if (!file.open(QIODevice::ReadOnly))
            return result;
        for (const QByteArray &line : file.readAll().split('\n')) {
            if (!line.isEmpty())
                result << QJsonDocument::fromJson(line).object();
        }
        return result;
    }

private:
    QTemporaryDir m_dir;
    QProcess m_process;
    quint16 m_port = 0;
};

// A loopback port on which nothing listens.
inline quint16 closedPort()
{
    QTcpServer server;
    server.listen(QHostAddress::LocalHost);
    const quint16 port = server.serverPort();
    server.close();
    return port;
}

// Notes each message box as it is shown, before anything can answer it.
class BoxRecorder : public QObject
{
public:
    struct Box
    {
        QString title;
        QString text;
        QString informativeText;
        QMessageBox::Icon icon;
    };

    BoxRecorder() { qApp->installEventFilter(this); }
    ~BoxRecorder() override { qApp->removeEventFilter(this); }

    QList<Box> boxes;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Show) {
            if (auto box = qobject_cast<QMessageBox *>(watched))
                boxes.append({ box->windowTitle(), box->text(), box->informativeText(), box->icon() });
        }
        return false;
    }
};
