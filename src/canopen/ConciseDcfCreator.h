#pragma once

#include "commongui_export.h"

#include <QList>
#include <QObject>
#include <QString>
#include <QVector>

#include <memory>

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

    // The parent is ignored on purpose: the caller owns the creator.
    explicit ConciseDcfCreator(QString fileName, QObject *parent = nullptr);
    ~ConciseDcfCreator() override;

    // Appends the indices listed in one object-list section; entries not
    // written as "0x<hex>" are skipped.
    bool parseSectionForIndices(QVector<unsigned short> &indices, QString section);
    // Prepares the ordered object list; produces no output and reports false.
    bool convert(QString outputName);

private:
    QString m_fileName;
    std::unique_ptr<QSettings> m_settings;
    QList<stDataItems> m_communicationItems;
    QList<stDataItems> m_manufacturerItems;
    QList<stDataItems> m_profileItems;
};
