#include "ConciseDcfCreator.h"

#include <QSettings>

#include <algorithm>
#include <cstdio>

static_assert(sizeof(ConciseDcfCreator::stDataItems) == 8, "entries are packed records");

ConciseDcfCreator::ConciseDcfCreator(QString fileName, QObject *parent)
    : QObject(nullptr)
    , m_fileName(std::move(fileName))
{
    Q_UNUSED(parent)
}

ConciseDcfCreator::~ConciseDcfCreator() = default;

bool ConciseDcfCreator::parseSectionForIndices(QVector<unsigned short> &indices, QString section)
{
    if (!m_settings) {
        m_settings = std::make_unique<QSettings>(m_fileName, QSettings::IniFormat);
        m_settings->setIniCodec("UTF-8");
    }
    m_settings->beginGroup(section);
    bool ok = false;
    int count = m_settings->value(QStringLiteral("SupportedObjects"), 0).toString().toInt(&ok, 0);
    if (!ok)
        count = 0;
    for (int i = 1; i <= count; ++i) {
        const QByteArray entry = m_settings->value(QString::number(i)).toString().toLocal8Bit();
        unsigned int index = 0;
        // Deliberately strict: only a literal lower-case "0x" prefix is accepted.
        if (std::sscanf(entry.constData(), "0x%x", &index) == 1)
            indices.append(static_cast<unsigned short>(index & 0xFFFF));
    }
    m_settings->endGroup();
    return true;
}

bool ConciseDcfCreator::convert(QString outputName)
{
    Q_UNUSED(outputName)
    m_settings = std::make_unique<QSettings>(m_fileName, QSettings::IniFormat);
    m_settings->setIniCodec("UTF-8");

    QVector<unsigned short> indices;
    parseSectionForIndices(indices, QStringLiteral("MandatoryObjects"));
    parseSectionForIndices(indices, QStringLiteral("OptionalObjects"));
    parseSectionForIndices(indices, QStringLiteral("ManufacturerObjects"));
    std::sort(indices.begin(), indices.end());

    for (unsigned short index : qAsConst(indices)) {
        const QString section = QString::number(index, 16);
        m_settings->beginGroup(section);
        if (!m_settings->contains(QStringLiteral("ParameterName"))) {
            m_settings->endGroup();
            m_settings->beginGroup(section.toUpper());
        }
        m_settings->endGroup();
    }
    return false;
}
