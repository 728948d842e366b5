// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QStringList>
#include <QVariant>

#include <functional>
#include <memory>

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
    virtual void removeKeysIf(const std::function<bool(const QString &)> &accept) = 0;
    virtual bool sync() = 0;
};

// The file as text edited in place: untouched lines are written back unchanged.
std::unique_ptr<DcfStorage> createDocumentStorage(const QString &fileName);
