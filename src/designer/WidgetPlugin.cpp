// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "WidgetPlugin.h"

#include <QIcon>

WidgetPlugin::WidgetPlugin(WidgetDescription description, QObject *parent)
    : QObject(parent)
    , m_description(std::move(description))
{
}

QString WidgetPlugin::name() const
{
    return m_description.className;
}

QString WidgetPlugin::group() const
{
    return QStringLiteral("CommonGUI");
}

QString WidgetPlugin::toolTip() const
{
    return m_description.toolTip;
}

QString WidgetPlugin::whatsThis() const
{
    return m_description.whatsThis;
}

// Angle brackets make uic write a global include, as tools include installed headers.
QString WidgetPlugin::includeFile() const
{
    return QStringLiteral("<CommonGUI/%1.h>").arg(m_description.className);
}

QIcon WidgetPlugin::icon() const
{
    return m_description.icon();
}

bool WidgetPlugin::isContainer() const
{
    return false;
}

QWidget *WidgetPlugin::createWidget(QWidget *parent)
{
    return m_description.create(parent);
}

bool WidgetPlugin::isInitialized() const
{
    return m_initialized;
}

void WidgetPlugin::initialize(QDesignerFormEditorInterface *core)
{
    Q_UNUSED(core)
    m_initialized = true;
}

QString WidgetPlugin::domXml() const
{
    return m_description.domXml;
}
