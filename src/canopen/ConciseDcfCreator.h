// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "commongui_export.h"

#include <QByteArray>
#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QVector>

#include <functional>
#include <memory>

class DCFWriter;

class QSettings;
// Turns a device configuration file into its concise form.
class COMMONGUI_EXPORT ConciseDcfCreator : public QObject
{
    Q_OBJECT

public:
    // One entry of the concise form; its bytes follow the entries in order.
    struct stDataItems
    {
        quint16 index;
        quint8 subIndex;
        quint8 reserved;
        quint32 size;
    };

    // One entry as read back from the binary form.
    struct ConciseEntry
    {
        quint16 index = 0;
        quint8 subIndex = 0;
        QByteArray data;
    };

    // The parent is ignored on purpose: the caller owns the creator.
    explicit ConciseDcfCreator(QString fileName, QObject *parent = nullptr);
    ~ConciseDcfCreator() override;

    // Appends the indices listed in one object-list section; entries not
    // written as "0x<hex>" are skipped.
    bool parseSectionForIndices(QVector<unsigned short> &indices, QString section);
    // Prepares the ordered object list; produces no output and reports false.
    bool convert(QString outputName);

    // Writes the binary concise form: every writable object with a configured
    // value, in index order. When a value cannot be encoded nothing is
    // written and errors() names each object and the reason.
    bool writeConciseDcf(const QString &outputName);
    /**
     * Writes the concise form of the file as @p configure sets it up through a
     * DCFWriter: the DCF is made from a private copy, so the file stays as it
     * is and no intermediate DCF is left behind, whether the export works or not.
     */
    bool writeConciseDcf(const QString &outputName, const std::function<void(DCFWriter &)> &configure);
    QStringList errors() const { return m_errors; }
    QString errorString() const { return m_errors.join(QLatin1Char('\n')); }
    // The entries of the last successful writeConciseDcf(), in output order.
    QList<stDataItems> dataItems() const;

    // Reads the binary form; false, with the reason, for truncated or
    // inconsistent input.
    /**
     * Whether @p value can be written for @p dataType (range and syntax);
     * @p nodeId resolves "$NODEID" and is -1 when unknown. On failure
     * @p reason, when given, says why.
     */
    static bool checkValue(int dataType, const QString &value, int nodeId, QString *reason);

    static bool readConciseDcf(const QByteArray &bytes, QList<ConciseEntry> *entries, QString *error);

private:
    QVector<unsigned short> prepare();
    void addItem(const stDataItems &item, const QByteArray &data);

    QString m_fileName;
    std::unique_ptr<QSettings> m_settings;
    QList<stDataItems> m_communicationItems;
    QList<stDataItems> m_manufacturerItems;
    QList<stDataItems> m_profileItems;
    // The data of each list's entries, back to back in the same order.
    QByteArray m_communicationData;
    QByteArray m_manufacturerData;
    QByteArray m_profileData;
    QStringList m_errors;
};
