// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
// The hex editor: a firmware image in a QHexEdit with undo, redo and a status line.
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

// A made-up 1 MiB image: a header with magic, version and length, then code-like
// patterns and a text block, padded with 0xff as erased flash is.
QByteArray firmwareImage()
{
    const int size = 1024 * 1024;
    QByteArray image(size, '\xff');
    const QByteArray header = QByteArrayLiteral("KVFW\x01\x04\x00\x00") + QByteArray("\x00\x00\x10\x00", 4)
        + QByteArrayLiteral("CANopen Node 3.1");
    image.replace(0, header.size(), header);
    for (int i = 0x40; i < size / 2; ++i)
        image[i] = char((i * 7 + (i >> 8)) & 0xff);
    const QByteArray text("Copyright (c) Korvil. Device configuration firmware, build 2026-11-22.");
    image.replace(size / 2, text.size(), text);
    return image;
}

QString sizeText(int size)
{
    return QObject::tr("Size: %1 bytes").arg(size);
}

class HexEditorWindow : public QMainWindow
{
    Q_OBJECT

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
        QAction *readOnly = new QAction(tr("Read-onl&y"), this);
        readOnly->setCheckable(true);
        connect(readOnly, &QAction::toggled, m_edit, &QHexEdit::setReadOnly);

        QMenu *edit = menuBar()->addMenu(tr("&Edit"));
        edit->addAction(undo);
        edit->addAction(redo);
        edit->addSeparator();
        edit->addAction(tr("&Copy as hex"), m_edit, &QHexEdit::copy);
        edit->addAction(tr("&Paste hex"), m_edit, &QHexEdit::paste);
        edit->addAction(tr("Select &all"), m_edit, &QHexEdit::selectAll);
        edit->addSeparator();
        edit->addAction(overwrite);
        edit->addAction(readOnly);
        QToolBar *tools = addToolBar(tr("Edit"));
        tools->setObjectName(QStringLiteral("tbHexEdit"));
        tools->addAction(undo);
        tools->addAction(redo);
        tools->addAction(overwrite);

        m_address = new QLabel(this);
        m_size = new QLabel(this);
        m_mode = new QLabel(this);
        m_address->setMinimumWidth(200);
        statusBar()->addWidget(m_address);
        statusBar()->addWidget(m_size);
        statusBar()->addPermanentWidget(m_mode);
        connect(m_edit, &QHexEdit::currentAddressChanged, this, &HexEditorWindow::showAddress);
        connect(m_edit, &QHexEdit::currentSizeChanged, this,
                [this](int size) { m_size->setText(sizeText(size)); });
        connect(m_edit, &QHexEdit::overwriteModeChanged, this, &HexEditorWindow::showMode);

        m_edit->setData(firmwareImage());
        showAddress(m_edit->cursorPosition() + m_edit->addressOffset());
        m_size->setText(sizeText(m_edit->size()));
        showMode(m_edit->overwriteMode());
        resize(860, 560);
    }

    QHexEdit *editor() const { return m_edit; }

private:
    void showAddress(int address)
    {
        m_address->setText(tr("Address: 0x%1").arg(uint(address), 8, 16, QChar('0')));
    }
    void showMode(bool overwrite) { m_mode->setText(overwrite ? tr("OVR") : tr("INS")); }

    QHexEdit *m_edit = nullptr;
    QLabel *m_address = nullptr;
    QLabel *m_size = nullptr;
    QLabel *m_mode = nullptr;
};

// Sample edits so the screenshot shows changed bytes, a selection and the cursor.
QWidget *screenshotWindow()
{
    auto window = new HexEditorWindow;
    QHexEdit *edit = window->editor();
    edit->replace(0x14, QByteArray("\x02\x07", 2));
    edit->replace(0x4a, QByteArray("\xde\xad\xbe\xef", 4));
    edit->setCursorPosition(0x25);
    edit->setSelection(0x30, 6);
    return window;
}

}

static DemoModuleRegistrar registrar({ QString::fromLatin1(QT_TRANSLATE_NOOP("DemoModule", "Hex editor")), 60, [](DemoWindow *window) {
    window->toolsMenu()->addAction(QObject::tr("&Hex editor"), window, [window] {
        auto editor = new HexEditorWindow;
        editor->setAttribute(Qt::WA_DeleteOnClose);
        editor->show();
        window->log(QObject::tr("Hex editor opened on a %1 byte firmware image").arg(editor->editor()->size()));
    });
    window->addScreenshot(QStringLiteral("hex-editor"), screenshotWindow);
} });

#include "HexEditorModule.moc"
