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
/**
 * Turns a device configuration file (DCF) into its concise form, the binary
 * configuration a CANopen manager downloads to a node.
 *
 * The concise form is a 32-bit entry count, then per entry a 16-bit index, an
 * 8-bit sub-index, a 32-bit data size and the data, all little-endian. The
 * objects are those listed in the sections "MandatoryObjects", "OptionalObjects"
 * and "ManufacturerObjects". The creator has no Qt parent: the caller owns it.
 */
class COMMONGUI_EXPORT ConciseDcfCreator : public QObject
{
    Q_OBJECT

public:
    /** One entry of the concise form; its data follows in the same order. */
    struct stDataItems
    {
        quint16 index;     //!< The object's index.
        quint8 subIndex;   //!< The object's sub-index.
        quint8 reserved;   //!< Unused, 0.
        quint32 size;      //!< The number of data bytes.
    };

    /** One entry as read back from the binary form by readConciseDcf(). */
    struct ConciseEntry
    {
        quint16 index = 0;    //!< The object's index.
        quint8 subIndex = 0;  //!< The object's sub-index.
        QByteArray data;      //!< The value's bytes, little-endian.
    };

    /**
     * Constructs a creator on the DCF @p fileName. @p parent is ignored on
     * purpose: the creator never has a Qt parent, the caller owns it.
     */
    explicit ConciseDcfCreator(QString fileName, QObject *parent = nullptr);
    /** Destroys the creator. */
    ~ConciseDcfCreator() override;

    /**
     * Appends to @p indices the indices listed in the object-list @p section
     * ("SupportedObjects" and the keys "1", "2", ...). Entries not written as
     * "0x<hex>" (exactly this prefix) are skipped. Returns true.
     */
    bool parseSectionForIndices(QVector<unsigned short> &indices, QString section);
    /**
     * Gathers and sorts the listed objects and visits their sections, as the
     * first stage of the conversion; @p outputName is not used, nothing is
     * written and the result is false. Use writeConciseDcf() for the output.
     */
    bool convert(QString outputName);

    /**
     * Writes the concise form of the DCF to @p outputName: every writable
     * object that has a configured value, in index order. Returns false, and
     * writes nothing, when a value cannot be encoded or the file cannot be
     * written; errors() then names each object and the reason.
     */
    bool writeConciseDcf(const QString &outputName);
    /**
     * The same for the DCF as @p configure sets it up with a DCFWriter: the DCF
     * is made from a private copy, so the file stays as it is and no
     * intermediate DCF is left behind, whether the export works or not.
     */
    bool writeConciseDcf(const QString &outputName, const std::function<void(DCFWriter &)> &configure);
    /** Returns the reasons the last writeConciseDcf() failed, one per object; empty after success. */
    QStringList errors() const { return m_errors; }
    /** Returns errors() as one text, one reason a line. */
    QString errorString() const { return m_errors.join(QLatin1Char('\n')); }
    /** Returns the entries of the last successful writeConciseDcf(), in output order. */
    QList<stDataItems> dataItems() const;

    /**
     * Returns whether @p value can be written for @p dataType (syntax and
     * range); @p nodeId resolves "$NODEID" and is -1 when unknown. On failure
     * @p reason, when not null, says why.
     */
    static bool checkValue(int dataType, const QString &value, int nodeId, QString *reason);

    /**
     * Reads the concise form @p bytes into @p entries. Returns false, with the
     * reason in @p error when not null, for truncated or inconsistent input.
     */
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
