// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QList>
#include <QString>

#include <functional>

class DemoWindow;

// One subsystem's part of the demo tool. Each file in modules/ registers one
// with a static DemoModuleRegistrar, so subsystems never touch each other's code.
struct DemoModule
{
    QString name;  // marked with QT_TRANSLATE_NOOP("DemoModule", ...)
    int order = 0;  // menus are filled in ascending order
    std::function<void(DemoWindow *)> install;
};

QList<DemoModule> &demoModules();

struct DemoModuleRegistrar
{
    explicit DemoModuleRegistrar(DemoModule module) { demoModules().append(std::move(module)); }
};
