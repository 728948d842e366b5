// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QObject>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

#include <functional>

// What Designer shows and writes for one widget class of the library.
struct WidgetDescription
{
    QString className;
    QString toolTip;
    QString whatsThis;
    QString domXml;
    std::function<QIcon()> icon;
    std::function<QWidget *(QWidget *parent)> create;
};

// One entry of the "CommonGUI" group in Designer's widget box.
class WidgetPlugin : public QObject, public QDesignerCustomWidgetInterface
{
    Q_OBJECT
    Q_INTERFACES(QDesignerCustomWidgetInterface)

public:
    WidgetPlugin(WidgetDescription description, QObject *parent);

    QString name() const override;
    QString group() const override;
    QString toolTip() const override;
    QString whatsThis() const override;
    QString includeFile() const override;
    QIcon icon() const override;
    bool isContainer() const override;
    QWidget *createWidget(QWidget *parent) override;
    bool isInitialized() const override;
    void initialize(QDesignerFormEditorInterface *core) override;
    QString domXml() const override;

private:
    WidgetDescription m_description;
    bool m_initialized = false;
};
