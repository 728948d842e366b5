// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QMessageBox>
#include <QObject>
#include <QProcessEnvironment>
#include <QString>
#include <QTimer>

namespace TestSupport {

// Answers whatever modal widget is active, polling until destroyed: modal
// boxes under test block in exec().
class ModalCloser : public QObject
{
    Q_OBJECT
public:
    explicit ModalCloser(int intervalMs = 50, QObject *parent = nullptr);
    int closedCount() const { return m_closed; }
    QStringList seenTexts() const { return m_texts; }
    QStringList seenTitles() const { return m_titles; }
    // The button to press on message boxes; by default their escape button.
    void setAnswer(QMessageBox::StandardButton answer) { m_answer = answer; }

private:
    void poll();
    QTimer m_timer;
    int m_closed = 0;
    QStringList m_texts;
    QStringList m_titles;
    QMessageBox::StandardButton m_answer = QMessageBox::NoButton;
};

// Environment for a child process whose HOME, XDG dirs and documents folder lie in `home`.
QProcessEnvironment isolatedEnvironment(const QString &home);

// The documents folder that isolatedEnvironment() gives a child.
QString documentsFolder(const QString &home);

}
