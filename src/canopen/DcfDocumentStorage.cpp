// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "DcfStorage_p.h"
#include "IniDocument_p.h"

#include <QDebug>

namespace {

class DocumentStorage final : public DcfStorage
{
public:
    explicit DocumentStorage(const QString &fileName)
        : m_fileName(fileName)
    {
        QString error;
        m_readable = m_document.load(fileName, &error);
        if (!m_readable)
            qWarning("Cannot read data sheet %s: %s", qPrintable(fileName), qPrintable(error));
    }

    QStringList allKeys() const override { return m_document.allKeys(); }
    QStringList childGroups() const override { return m_document.childGroups(); }
    QVariant value(const QString &path, const QVariant &defaultValue) const override
    {
        return m_document.variantValue(path, defaultValue);
    }
    void setValue(const QString &path, const QVariant &value) override
    {
        m_document.setValue(path, value.toString());
        m_modified = true;
    }
    void remove(const QString &path) override
    {
        if (m_document.remove(path))
            m_modified = true;
    }
    void removeKeysIf(const std::function<bool(const QString &)> &accept) override
    {
        if (m_document.removeKeysIf(accept))
            m_modified = true;
    }
    bool sync() override
    {
        // An unreadable file is never overwritten with what little we know of it.
        if (!m_modified || !m_readable)
            return m_readable;
        QString error;
        if (!m_document.save(m_fileName, &error)) {
            qWarning("Cannot write data sheet %s: %s", qPrintable(m_fileName), qPrintable(error));
            return false;
        }
        m_modified = false;
        return true;
    }

private:
    QString m_fileName;
    IniDocument m_document;
    bool m_readable = false;
    bool m_modified = false;
};

}

std::unique_ptr<DcfStorage> createDocumentStorage(const QString &fileName)
{
    return std::make_unique<DocumentStorage>(fileName);
}
