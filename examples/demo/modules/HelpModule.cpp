// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
// Help and small widgets: help viewer, quick help, manuals, tip of the day,
// value converter, About box, the application style and an EDS drop field.
#include "DemoModule.h"
#include "DemoWindow.h"

#include "AboutDialog.h"
#include "CalcoraDialog.h"
#include "ClickableLineEdit.h"
#include "CustomLineEdit.h"
#include "GuiHelper.h"
#include "HelpViewer.h"
#include "HelpViewerDialog.h"
#include "KorvilAppStyle.h"
#include "ManualHandler.h"
#include "TextOverlay.h"
#include "TipOfTheDay.h"

#include <QAction>
#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QEvent>
#include <QElapsedTimer>
#include <QHelpContentWidget>
#include <QHelpEngine>
#include <QHelpLink>
#include <QKeyEvent>
#include <QFileInfo>
#include <QLabel>
#include <QLocale>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPointer>
#include <QStandardPaths>
#include <QToolBar>
#include <QUrl>

namespace {

QString dataPath(const QString &relative)
{
    return QDir(QCoreApplication::applicationDirPath()).filePath(relative);
}

QString tipFile()
{
    // Tips follow the language the library's texts were loaded in.
    const bool german = QCoreApplication::translate("TipOfTheDay", "Next Tip") != QLatin1String("Next Tip");
    return german ? QStringLiteral(":/totd/totd/tips_de.txt") : QStringLiteral(":/totd/totd/tips_en.txt");
}

const char credits[] = QT_TRANSLATE_NOOP("QObject",
        "<p><b>CommonGUI Demo</b> shows the shared building blocks of the Korvil "
        "CANopen tools.</p>"
        "<p>Copyright &copy; Korvil. Licensed to the holder of a tool licence; "
        "see the licence agreement delivered with the tool.</p>"
        "<p>Built with the Qt toolkit, used under the GNU LGPL version 3.</p>");

// Opens on the start page with the contents unfolded; `wait` lets the
// screenshot see the contents, which the engine builds in the background.
HelpViewer *createHelpViewer(QWidget *parent, bool wait = false)
{
    auto viewer = new HelpViewer(parent);
    viewer->setWindowTitle(QObject::tr("CommonGUI Demo - Help"));
    viewer->setAttribute(Qt::WA_DeleteOnClose);
    viewer->resize(900, 560);
    const QString collection = dataPath(QStringLiteral("help/demo.qhc"));
    if (!QFileInfo::exists(collection))
        return viewer;
    viewer->setHelpFile(collection);
    auto engine = viewer->findChild<QHelpEngine *>();
    if (!engine)
        return viewer;
    QObject::connect(engine->contentModel(), &QHelpContentModel::contentsCreated, viewer,
                     [engine] { engine->contentWidget()->expandAll(); });
    const QUrl start(QStringLiteral("qthelp://com.korvil.commongui.demo/doc/pages/index.html"));
    viewer->onDocumentActivated(QHelpLink { start, QString() }, QString());
    QElapsedTimer waited;
    waited.start();
    while (wait && engine->contentModel()->rowCount() == 0 && waited.elapsed() < 5000)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 100);
    engine->contentWidget()->expandAll();
    return viewer;
}

// The library's API reference (CommonGUI.qch, beside the tool in the build tree,
// under share/doc/qch when installed), registered into a collection of its own.
HelpViewer *createApiReference(QWidget *parent, const QString &page, bool wait = false)
{
    QString qch = dataPath(QStringLiteral("help/CommonGUI.qch"));
    if (!QFileInfo::exists(qch))
        qch = dataPath(QStringLiteral("../share/doc/qch/CommonGUI.qch"));
    if (!QFileInfo::exists(qch))
        return nullptr;
    qch = QFileInfo(qch).canonicalFilePath();
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation);
    QDir().mkpath(folder);
    const QString collection = folder + QStringLiteral("/api-reference.qhc");
    {
        QHelpEngineCore core(collection);
        core.setupData();
        const QString name = QHelpEngineCore::namespaceName(qch);
        if (core.documentationFileName(name) != qch) {
            core.unregisterDocumentation(name);
            core.registerDocumentation(qch);
        }
    }
    auto viewer = new HelpViewer(parent);
    viewer->setWindowTitle(QObject::tr("CommonGUI API Reference"));
    viewer->setAttribute(Qt::WA_DeleteOnClose);
    viewer->resize(1000, 640);
    viewer->setHelpFile(collection);
    const QUrl url(QStringLiteral("qthelp://com.korvil.commongui/commongui/") + page);
    viewer->onDocumentActivated(QHelpLink { url, QString() }, QString());
    auto engine = viewer->findChild<QHelpEngine *>();
    if (!engine)
        return viewer;
    QObject::connect(engine->contentModel(), &QHelpContentModel::contentsCreated, viewer,
                     [engine] { engine->contentWidget()->expandToDepth(0); });
    QElapsedTimer waited;
    waited.start();
    while (wait && engine->contentModel()->rowCount() == 0 && waited.elapsed() < 5000)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 100);
    engine->contentWidget()->expandToDepth(0);
    return viewer;
}

const QString tipGroup = QStringLiteral("TipOfTheDay");

TipOfTheDay *createTips(bool showOnStartup, unsigned char lastTip, QWidget *parent)
{
    auto tips = new TipOfTheDay(tipFile(), showOnStartup, lastTip, parent);
    tips->setAttribute(Qt::WA_DeleteOnClose);
    QObject::connect(tips, &TipOfTheDay::newTipValues, [](unsigned char last, bool show) {
        GuiHelper::saveSetting(tipGroup, QStringLiteral("lastTip"), last, QString(), nullptr);
        GuiHelper::saveSetting(tipGroup, QStringLiteral("showOnStartup"), show, QString(), nullptr);
    });
    return tips;
}

// With the main window as parent: closing it closes the tips too. `done` runs
// when the tips are gone (or were not wanted).
void showTips(bool atStartup, QWidget *window, std::function<void()> done = {})
{
    const QVariant stored = GuiHelper::restoreSetting(tipGroup, QStringLiteral("showOnStartup"),
                                                      QString(), nullptr);
    const bool show = !stored.isValid() || stored.toBool();
    if (atStartup && !show) {
        if (done)
            done();
        return;
    }
    const QVariant lastTip = GuiHelper::restoreSetting(tipGroup, QStringLiteral("lastTip"), QString(), nullptr);
    const auto last = static_cast<unsigned char>(lastTip.isValid() ? lastTip.toUInt() : 255);
    TipOfTheDay *tips = createTips(show, last, window);
    if (done)
        QObject::connect(tips, &QObject::destroyed, window, [done] { done(); });
    tips->show();
}

// The link reacts to the keyboard as to a click.
class LinkKeys : public QObject
{
public:
    LinkKeys(ClickableLineEdit *link, QString target)
        : QObject(link), m_link(link), m_target(std::move(target))
    {
        link->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() != QEvent::KeyPress)
            return false;
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key != Qt::Key_Return && key != Qt::Key_Enter && key != Qt::Key_Space)
            return false;
        Q_EMIT m_link->clicked(m_target);
        return true;
    }

private:
    ClickableLineEdit *m_link;
    QString m_target;
};

// Keeps the watermark over the whole log view.
class OverlayFitter : public QObject
{
public:
    OverlayFitter(TextOverlay *overlay, QWidget *host)
        : QObject(overlay), m_overlay(overlay)
    {
        host->installEventFilter(this);
        fit(host->size());
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Resize)
            fit(static_cast<QWidget *>(watched)->size());
        return false;
    }

private:
    void fit(const QSize &size)
    {
        m_overlay->setCoords(QPoint(20, 20), QPoint(size.width() - 20, size.height() - 20));
        m_overlay->setGeometry(0, 0, size.width(), size.height());
    }
    TextOverlay *m_overlay;
};

}

static DemoModuleRegistrar registrar({ QString::fromLatin1(QT_TRANSLATE_NOOP("DemoModule", "Help and widgets")), 80, [](DemoWindow *window) {
    QApplication::setStyle(new KorvilAppStyle);
    const bool screenshots = window->arguments().contains(QStringLiteral("--screenshots"));

    // Tool bar: an EDS field that takes dropped files, and a link field.
    QToolBar *bar = window->addToolBar(QObject::tr("Files"));
    bar->setObjectName(QStringLiteral("tbrFiles"));
    auto edsLabel = new QLabel(QObject::tr(" &EDS file: "));
    bar->addWidget(edsLabel);
    auto edsField = new CustomLineEdit;
    edsLabel->setBuddy(edsField);
    edsField->setObjectName(QStringLiteral("edtEdsFile"));
    edsField->addAcceptedSuffix(QStringLiteral("eds"));
    edsField->addAcceptedSuffix(QStringLiteral("dcf"));
    edsField->setPlaceholderText(QObject::tr("Drop an .eds or .dcf file here"));
    edsField->setMinimumWidth(320);
    bar->addWidget(edsField);
    QObject::connect(edsField, &QLineEdit::returnPressed, window, [window, edsField] {
        const QFileInfo file(edsField->text());
        window->log(file.isFile() ? QObject::tr("EDS file chosen: %1 (%2 bytes)").arg(file.absoluteFilePath()).arg(file.size())
                                  : QObject::tr("No such EDS file: %1").arg(edsField->text()));
    });
    bar->addSeparator();
    auto link = new ClickableLineEdit;
    link->setObjectName(QStringLiteral("edtProductPage"));
    link->setReadOnly(true);
    link->setText(QObject::tr("Release notes (PDF)"));
    QFont linkFont = link->font();
    linkFont.setUnderline(true);
    link->setFont(linkFont);
    // Wide enough for the text in every language.
    link->setFixedWidth(link->fontMetrics().horizontalAdvance(link->text()) + 16);
    link->setStyleSheet(QStringLiteral("QLineEdit { color: palette(link); }"));
    const QString notes = dataPath(QStringLiteral("manuals/release_notes.pdf"));
    link->setLinkText(QObject::tr("Opens %1").arg(notes), QUrl::fromLocalFile(notes).toString());
    QObject::connect(link, &ClickableLineEdit::clicked, window, [window](const QString &target) {
        window->log(QObject::tr("Link clicked: %1").arg(target));
        QDesktopServices::openUrl(QUrl(target));
    });
    link->setFocusPolicy(Qt::StrongFocus);
    link->setToolTip(QObject::tr("Return or Space opens the release notes"));
    new LinkKeys(link, QUrl::fromLocalFile(notes).toString());
    bar->addWidget(link);
    QWidget::setTabOrder(edsField, link);

    // A faint caption over the activity log.
    if (auto log = qobject_cast<QPlainTextEdit *>(window->centralWidget())) {
        auto overlay = new TextOverlay(QStringLiteral("DEMO"), log->viewport());
        new OverlayFitter(overlay, log->viewport());
    }

    // Tools > Value Converter.
    QAction *converter = window->toolsMenu()->addAction(QIcon(QStringLiteral(":/data/icons/converter.png")),
                                                        QObject::tr("&Value Converter..."));
    QObject::connect(converter, &QAction::triggered, window, [window] {
        auto dialog = new CalcoraDialog(window);
        dialog->setAttribute(Qt::WA_DeleteOnClose);
        dialog->show();
    });

    // Help menu.
    QMenu *help = window->helpMenu();
    QAction *contents = help->addAction(QIcon(QStringLiteral(":/data/icons/help.png")), QObject::tr("&Help Contents..."));
    contents->setShortcut(QKeySequence::HelpContents);
    contents->setShortcutContext(Qt::ApplicationShortcut);  // F1 in every window of the tool
    QObject::connect(contents, &QAction::triggered, window, [window] {
        if (!QFileInfo::exists(dataPath(QStringLiteral("help/demo.qhc"))))
            window->log(QObject::tr("No help collection next to the tool"));
        createHelpViewer(window)->show();
    });
    auto quickHelp = new HelpViewerDialog(window);
    quickHelp->setFile(dataPath(QStringLiteral("help/quickhelp.html")));
    QAction *quick = help->addAction(QObject::tr("&Quick Help..."));
    QObject::connect(quick, &QAction::triggered, quickHelp, [quickHelp] { quickHelp->setTopic(QStringLiteral("eds")); });
    QAction *userManual = help->addAction(QIcon(QStringLiteral(":/data/icons/manual.png")), QObject::tr("User &Manual (PDF)"));
    QObject::connect(userManual, &QAction::triggered, quickHelp, [quickHelp] { quickHelp->setTopic(QStringLiteral("Manual")); });

    auto manuals = new ManualHandler(window);
    manuals->setManualsPath(dataPath(QStringLiteral("manuals")));
    if (QMenu *menu = manuals->getManualsMenu()) {
        menu->setParent(window, menu->windowFlags());  // the window frees it
        menu->setIcon(QIcon(QStringLiteral(":/data/icons/manual.png")));
        menu->setTitle(QObject::tr("Ma&nuals"));
        help->addMenu(menu);
    } else {
        window->log(QObject::tr("No PDF manuals in %1").arg(dataPath(QStringLiteral("manuals"))));
    }

    QAction *api = help->addAction(QObject::tr("CommonGUI API &Reference..."));
    QObject::connect(api, &QAction::triggered, window, [window] {
        if (HelpViewer *viewer = createApiReference(window, QStringLiteral("index.html")))
            viewer->show();
        else
            window->log(QObject::tr("The API reference CommonGUI.qch was not built"));
    });

    help->addSeparator();
    QAction *tips = help->addAction(QIcon(QStringLiteral(":/data/icons/questionmark.png")), QObject::tr("&Tip of the Day..."));
    QObject::connect(tips, &QAction::triggered, window, [window] { showTips(false, window); });
    help->addSeparator();
    QAction *about = help->addAction(QIcon(QStringLiteral(":/data/icons/info.png")), QObject::tr("&About..."));
    QObject::connect(about, &QAction::triggered, window, [window] {
        AboutDialog dialog(QString(), QString(), QObject::tr(credits), window);
        dialog.exec();
    });

    if (!screenshots)
        window->addStartupStep([window](std::function<void()> done) { showTips(true, window, done); });

    // Screenshots of every window of this module.
    window->addScreenshot(QStringLiteral("help-viewer"), [] {
        HelpViewer *viewer = createHelpViewer(nullptr, true);
        viewer->setAttribute(Qt::WA_DeleteOnClose, false);
        return viewer;
    });
    window->addScreenshot(QStringLiteral("api-reference"), [] {
        HelpViewer *viewer = createApiReference(nullptr, QStringLiteral("classQHexEdit.html"), true);
        if (viewer)
            viewer->setAttribute(Qt::WA_DeleteOnClose, false);
        return static_cast<QWidget *>(viewer);
    });
    window->addScreenshot(QStringLiteral("help-dialog"), [] {
        auto dialog = new HelpViewerDialog;
        dialog->setFile(dataPath(QStringLiteral("help/quickhelp.html")));
        dialog->resize(520, 380);
        return dialog;
    });
    window->addScreenshot(QStringLiteral("tip-of-the-day"), [] {
        auto tips = createTips(true, 255, nullptr);
        tips->setAttribute(Qt::WA_DeleteOnClose, false);
        return tips;
    });
    window->addScreenshot(QStringLiteral("tip-of-the-day-animated"), [] {
        auto tips = createTips(true, 2, nullptr);
        tips->setAttribute(Qt::WA_DeleteOnClose, false);
        return tips;
    });
    window->addScreenshot(QStringLiteral("value-converter"), [] {
        auto dialog = new CalcoraDialog;
        if (auto characters = dialog->findChild<QLineEdit *>(QStringLiteral("edtAscii")))
            characters->setText(QStringLiteral("AB"));
        return dialog;
    });
    window->addScreenshot(QStringLiteral("about"), [] {
        return new AboutDialog(QString(), QString(), QObject::tr(credits));
    });
    window->addScreenshot(QStringLiteral("manuals-menu"), [] {
        ManualHandler handler;
        handler.setManualsPath(dataPath(QStringLiteral("manuals")));
        QMenu *menu = handler.getManualsMenu();
        if (!menu)
            return static_cast<QWidget *>(nullptr);
        // The entries go with the handler: show a copy that owns its actions.
        auto copy = new QMenu(menu->title());
        for (QAction *action : menu->actions())
            copy->addAction(new QAction(action->text(), copy));
        delete menu;
        return static_cast<QWidget *>(copy);
    });
} });
