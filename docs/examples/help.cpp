// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
// A tool's Help and Tools menus on CommonGUI: help viewer, manuals, tips,
// value converter and About box, in the library's German texts on request.
#include <CommonGUI/AboutDialog.h>
#include <CommonGUI/CalcoraDialog.h>
#include <CommonGUI/CommonGUITranslator.h>
#include <CommonGUI/CustomLineEdit.h>
#include <CommonGUI/HelpViewer.h>
#include <CommonGUI/HelpViewerDialog.h>
#include <CommonGUI/KorvilAppStyle.h>
#include <CommonGUI/ManualHandler.h>
#include <CommonGUI/TipOfTheDay.h>

#include <QApplication>
#include <QMainWindow>
#include <QMenuBar>
#include <QSettings>
#include <QTimer>
#include <QToolBar>

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    app.setApplicationName(QStringLiteral("Bus Monitor"));
    app.setApplicationVersion(QStringLiteral("3.1.0"));
    QApplication::setStyle(new KorvilAppStyle);

    // The user's locale picks the library's catalogue and Qt's own.
    CommonGUITranslator::installTranslations(&app);

    QMainWindow window;
    const QString appDir = QCoreApplication::applicationDirPath();

    // A field that loads a dropped .eds file at once (it emits returnPressed).
    auto edsField = new CustomLineEdit;
    edsField->addAcceptedSuffix(QStringLiteral("eds"));
    window.addToolBar(QStringLiteral("Files"))->addWidget(edsField);

    QMenu *tools = window.menuBar()->addMenu(QObject::tr("&Tools"));
    tools->addAction(QObject::tr("&Value Converter..."), &window, [&window] {
        auto converter = new CalcoraDialog(&window);
        converter->setAttribute(Qt::WA_DeleteOnClose);
        converter->show();
    });

    QMenu *help = window.menuBar()->addMenu(QObject::tr("&Help"));
    help->addAction(QObject::tr("&Contents..."), &window, [&window, appDir] {
        auto viewer = new HelpViewer(&window);
        viewer->setAttribute(Qt::WA_DeleteOnClose);
        viewer->setHelpFile(appDir + QStringLiteral("/help/busmonitor.qhc"));
        viewer->show();
    });
    auto quickHelp = new HelpViewerDialog(&window);
    quickHelp->setFile(appDir + QStringLiteral("/help/quickhelp.html"));
    help->addAction(QObject::tr("&Quick Help"), quickHelp, [quickHelp] { quickHelp->setTopic(QStringLiteral("start")); });

    // The Manuals submenu: one entry per PDF; the window keeps the menu.
    auto manuals = new ManualHandler(&window);
    manuals->setManualsPath(appDir + QStringLiteral("/manuals"));
    if (QMenu *menu = manuals->getManualsMenu()) {
        menu->setParent(&window, menu->windowFlags());
        help->addMenu(menu);
    }

    // Tips: the host stores what the dialog reports when it is closed.
    auto showTips = [&window](bool atStartup) {
        QSettings settings;
        const bool wanted = settings.value(QStringLiteral("Tips/show"), true).toBool();
        if (atStartup && !wanted)
            return;
        const auto last = static_cast<unsigned char>(settings.value(QStringLiteral("Tips/last"), 255).toUInt());
        auto tips = new TipOfTheDay(QStringLiteral(":/totd/tips.txt"), wanted, last, &window);
        tips->setAttribute(Qt::WA_DeleteOnClose);
        QObject::connect(tips, &TipOfTheDay::newTipValues, [](unsigned char lastTip, bool show) {
            QSettings settings;
            settings.setValue(QStringLiteral("Tips/last"), lastTip);
            settings.setValue(QStringLiteral("Tips/show"), show);
        });
        tips->show();
    };
    help->addAction(QObject::tr("&Tip of the Day..."), &window, [showTips] { showTips(false); });
    help->addAction(QObject::tr("&About..."), &window, [&window] {
        AboutDialog(QString(), QString(), QStringLiteral("<p>Licensed under the Korvil terms.</p>"), &window).exec();
    });

    window.show();
    QTimer::singleShot(0, &window, [showTips] { showTips(true); });
    return app.exec();
}
