// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
// The hex editor: a 256 MiB flash image in a QHexEdit with undo, find, go to,
// the clipboard and a status line.
#include "DemoModule.h"
#include "DemoWindow.h"

#include "QHexEdit.h"

#include <QAction>
#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>
#include <QToolBar>
#include <QUndoStack>

namespace {

const int s_imageSize = 256 * 1024 * 1024;

// A made-up flash image: a header with magic, version and length, code-like
// patterns and a text block in the first MiB, erased flash (0xff) after it and
// a trailer at the end, so that find and go to have something to land on.
QByteArray firmwareImage()
{
    QByteArray image(s_imageSize, '\xff');
    char *p = image.data();
    const QByteArray header = QByteArrayLiteral("KVFW\x01\x04\x00\x00") + QByteArray("\x00\x00\x00\x10", 4)
        + QByteArrayLiteral("CANopen Node 3.1");
    std::copy(header.cbegin(), header.cend(), p);
    for (int i = 0x40; i < 0x80000; ++i)
        p[i] = char((i * 7 + (i >> 8)) & 0xff);
    const QByteArray text("Copyright (c) Korvil. Device configuration firmware, build 2026-11-22.");
    std::copy(text.cbegin(), text.cend(), p + 0x80000);
    const QByteArray trailer("KVFW-END\xde\xad\xbe\xef", 12);
    std::copy(trailer.cbegin(), trailer.cend(), p + s_imageSize - trailer.size());
    return image;
}

class HexEditorWindow : public QMainWindow
{
public:
    HexEditorWindow()
    {
        setObjectName(QStringLiteral("HexEditorWindow"));
        setWindowTitle(tr("Hex editor - firmware.bin"));
        m_edit = new QHexEdit(this);
        m_edit->setObjectName(QStringLiteral("hexFirmware"));
        m_edit->setAddressOffset(0x08000000);
        setCentralWidget(m_edit);

        QUndoStack *stack = m_edit->undoStack();
        QAction *undo = stack->createUndoAction(this, tr("&Undo"));
        undo->setShortcut(QKeySequence::Undo);
        QAction *redo = stack->createRedoAction(this, tr("&Redo"));
        redo->setShortcut(QKeySequence::Redo);
        QAction *overwrite = new QAction(tr("&Overwrite mode"), this);
        overwrite->setCheckable(true);
        overwrite->setChecked(m_edit->overwriteMode());
        connect(overwrite, &QAction::toggled, m_edit, &QHexEdit::setOverwriteMode);
        connect(m_edit, &QHexEdit::overwriteModeChanged, overwrite, &QAction::setChecked);
        QAction *readOnly = new QAction(tr("Read &only"), this);
        readOnly->setCheckable(true);
        connect(readOnly, &QAction::toggled, m_edit, &QHexEdit::setReadOnly);
        // Read-only refuses undo too: the actions say so.
        connect(readOnly, &QAction::toggled, this, [stack, undo, redo](bool on) {
            undo->setEnabled(!on && stack->canUndo());
            redo->setEnabled(!on && stack->canRedo());
        });

        QMenu *edit = menuBar()->addMenu(tr("&Edit"));
        edit->addAction(undo);
        edit->addAction(redo);
        edit->addSeparator();
        edit->addAction(tr("Cu&t"), m_edit, &QHexEdit::cut, QKeySequence::Cut);
        edit->addAction(tr("&Copy"), m_edit, &QHexEdit::copy, QKeySequence::Copy);
        edit->addAction(tr("&Paste"), m_edit, &QHexEdit::paste, QKeySequence::Paste);
        edit->addAction(tr("Select &all"), m_edit, &QHexEdit::selectAll, QKeySequence::SelectAll);
        edit->addSeparator();
        QAction *find = edit->addAction(tr("&Find..."), m_edit, &QHexEdit::showFindBar, QKeySequence::Find);
        edit->addAction(tr("&Go to address..."), m_edit, &QHexEdit::showGoToBar, QKeySequence(tr("Ctrl+G")));
        edit->addSeparator();
        edit->addAction(overwrite);
        edit->addAction(readOnly);
        QToolBar *tools = addToolBar(tr("Edit"));
        tools->setObjectName(QStringLiteral("tbHexEdit"));
        tools->addAction(undo);
        tools->addAction(redo);
        tools->addAction(find);
        tools->addAction(overwrite);

        m_address = new QLabel(this);
        m_selection = new QLabel(this);
        m_mode = new QLabel(this);
        m_address->setMinimumWidth(180);
        statusBar()->addWidget(m_address);
        statusBar()->addWidget(m_selection);
        statusBar()->addPermanentWidget(m_mode);
        connect(m_edit, &QHexEdit::currentAddressChanged, this, &HexEditorWindow::showAddress);
        connect(m_edit, &QHexEdit::selectionChanged, this, &HexEditorWindow::showSelection);
        connect(m_edit, &QHexEdit::currentSizeChanged, this, &HexEditorWindow::showSelection);
        connect(m_edit, &QHexEdit::overwriteModeChanged, this, &HexEditorWindow::showMode);
        connect(m_edit, &QHexEdit::inputRefused, this,
                [this](const QString &reason) { statusBar()->showMessage(reason, 4000); });

        m_edit->setData(firmwareImage());
        showAddress(m_edit->cursorPosition() + m_edit->addressOffset());
        showSelection();
        showMode(m_edit->overwriteMode());
        resize(900, 580);
    }

    QHexEdit *editor() const { return m_edit; }

private:
    void showAddress(int address)
    {
        m_address->setText(tr("Address: 0x%1").arg(uint(address), 8, 16, QChar('0')));
    }
    void showSelection()
    {
        const int selected = m_edit->selectionEnd() - m_edit->selectionStart();
        m_selection->setText(selected > 0 ? tr("Selected: %n byte(s)", nullptr, selected)
                                          : tr("Size: %1 MiB").arg(m_edit->size() / (1024.0 * 1024.0), 0, 'f', 1));
    }
    void showMode(bool overwrite) { m_mode->setText(overwrite ? tr("OVR") : tr("INS")); }

    QHexEdit *m_edit = nullptr;
    QLabel *m_address = nullptr;
    QLabel *m_selection = nullptr;
    QLabel *m_mode = nullptr;
};

// Sample edits so the screenshot shows changed bytes, a found match and the find bar.
QWidget *screenshotWindow()
{
    auto window = new HexEditorWindow;
    QHexEdit *edit = window->editor();
    edit->replace(0x14, QByteArray("\x02\x07", 2));
    edit->replace(0x4a, QByteArray("\xde\xad\xbe\xef", 4));
    edit->setCursorPosition(0);
    edit->find("CANopen");
    edit->showFindBar();  // takes the found bytes as its text
    return window;
}

}

static DemoModuleRegistrar registrar({ QStringLiteral("Hex editor"), 60, [](DemoWindow *window) {
    window->toolsMenu()->addAction(QObject::tr("&Hex editor"), window, [window] {
        auto editor = new HexEditorWindow;
        editor->setAttribute(Qt::WA_DeleteOnClose);
        editor->show();
        window->log(QObject::tr("Hex editor opened on a %1 MiB firmware image").arg(editor->editor()->size() >> 20));
    });
    window->addScreenshot(QStringLiteral("hex-editor"), screenshotWindow);
} });
