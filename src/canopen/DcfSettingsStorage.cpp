#include "DcfStorage_p.h"

#include <QSettings>

namespace {

class SettingsStorage final : public DcfStorage
{
public:
    explicit SettingsStorage(const QString &fileName)
        : m_settings(fileName, QSettings::IniFormat)
    {
        m_settings.setIniCodec("UTF-8");
    }

    QStringList allKeys() const override { return m_settings.allKeys(); }
    QStringList childGroups() const override { return m_settings.childGroups(); }
    QVariant value(const QString &path, const QVariant &defaultValue) const override
    {
        return m_settings.value(path, defaultValue);
    }
    void setValue(const QString &path, const QVariant &value) override { m_settings.setValue(path, value); }
    void remove(const QString &path) override { m_settings.remove(path); }
    bool sync() override
    {
        m_settings.sync();
        return m_settings.status() == QSettings::NoError;
    }

private:
    QSettings m_settings;
};

}

std::unique_ptr<DcfStorage> createSettingsStorage(const QString &fileName)
{
    return std::make_unique<SettingsStorage>(fileName);
}
