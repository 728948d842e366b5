// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QStringList>
#include <QVariant>

#include <functional>
#include <memory>

class IniDocument;

// What the DCF writer needs from the INI layer beneath it. Paths are
// "section/key"; a path without a key names a whole section.
class DcfStorage
{
public:
    virtual ~DcfStorage() = default;

    virtual QStringList allKeys() const = 0;
    // Top-level sections that hold at least one key, sorted case-sensitively.
    virtual QStringList childGroups() const = 0;
    virtual QVariant value(const QString &path, const QVariant &defaultValue = QVariant()) const = 0;
    virtual void setValue(const QString &path, const QVariant &value) = 0;
    virtual void remove(const QString &path) = 0;
    // As remove() for each path.
    virtual void removeAll(const QStringList &paths) = 0;
    virtual void removeKeysIf(const std::function<bool(const QString &)> &accept) = 0;
    virtual bool sync() = 0;
    // Changes whenever the text changes, by this handle, another one on the
    // same file, or a save that took in the file as changed on disk.
    virtual quint64 revision() const = 0;
};

// The file as text edited in place: untouched lines are written back unchanged.
// All handles on one file share one text within the process; a save re-reads a
// file changed on disk and applies the process's own edits to it, and a
// change is saved on the next pass of the event loop.
std::unique_ptr<DcfStorage> createDocumentStorage(const QString &fileName);

// The text of the file as the process sees it: the shared one when a handle is
// open on it, else as read from disk.
bool readDocument(const QString &fileName, IniDocument *document, QString *error);

// The same as bytes, for readers that take the text as it is written.
bool readText(const QString &fileName, QByteArray *bytes, QString *error);
