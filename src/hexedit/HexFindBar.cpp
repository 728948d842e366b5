// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "HexFindBar_p.h"

#include "QHexEdit.h"
#include "QHexEditPrivate.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

HexFindBar::HexFindBar(QHexEdit *edit)
    : QWidget(edit)
    , m_edit(edit)
    , m_title(new QLabel(this))
    , m_text(new QLineEdit(this))
    , m_kind(new QComboBox(this))
    , m_previous(new QToolButton(this))
    , m_next(new QToolButton(this))
    , m_wrap(new QCheckBox(tr("&Wrap"), this))
    , m_case(new QCheckBox(tr("Match &case"), this))
    , m_status(new QLabel(this))
{
    setObjectName(QStringLiteral("qt_hexedit_findbar"));
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Window);
    m_text->setObjectName(QStringLiteral("findText"));
    m_text->setClearButtonEnabled(true);
    m_text->installEventFilter(this);
    m_kind->setObjectName(QStringLiteral("findKind"));
    m_kind->addItems({ tr("Hex"), tr("Text") });
    m_previous->setText(tr("Previous"));
    m_previous->setToolTip(tr("Find previous (Shift+F3)"));
    m_next->setText(tr("Next"));
    m_next->setToolTip(tr("Find next (F3)"));
    m_wrap->setObjectName(QStringLiteral("findWrap"));
    m_wrap->setChecked(true);
    m_case->setObjectName(QStringLiteral("findCase"));
    m_status->setObjectName(QStringLiteral("findStatus"));
    auto closeButton = new QToolButton(this);
    closeButton->setText(QStringLiteral("\u00d7"));
    closeButton->setToolTip(tr("Close (Esc)"));
    closeButton->setAutoRaise(true);

    auto row = new QHBoxLayout(this);
    row->setContentsMargins(4, 2, 4, 2);
    row->addWidget(m_title);
    row->addWidget(m_text, 1);
    row->addWidget(m_kind);
    row->addWidget(m_previous);
    row->addWidget(m_next);
    row->addWidget(m_wrap);
    row->addWidget(m_case);
    row->addWidget(m_status);
    row->addWidget(closeButton);

    connect(m_previous, &QToolButton::clicked, this, [this] { submit(true); });
    connect(m_next, &QToolButton::clicked, this, [this] { submit(false); });
    connect(closeButton, &QToolButton::clicked, this, &HexFindBar::close);
    connect(m_text, &QLineEdit::textEdited, this, [this] { setStatus(QString()); });
    connect(m_kind, QOverload<int>::of(&QComboBox::currentIndexChanged), this, [this] {
        m_case->setEnabled(m_kind->currentIndex() == 1);
        setStatus(QString());
    });
    m_case->setEnabled(false);
    hide();
}

void HexFindBar::open(Mode mode)
{
    const bool find = mode == Find;
    if (mode != m_mode)
        m_text->clear();
    m_mode = mode;
    m_title->setText(find ? tr("Find:") : tr("Go to:"));
    m_text->setPlaceholderText(find ? tr("Bytes, as hex or text") : tr("1f00, 0x1f00, #7936 decimal, +10, -0x20"));
    for (QWidget *w : std::initializer_list<QWidget *>{ m_kind, m_previous, m_next, m_wrap, m_case })
        w->setVisible(find);
    // The current selection is the natural thing to look for again.
    if (find && m_edit->hasSelection() && m_edit->selectionEnd() - m_edit->selectionStart() <= 64) {
        const QByteArray bytes = m_edit->selectedData();
        m_text->setText(m_kind->currentIndex() == 0 ? QString::fromLatin1(bytes.toHex(' ')) : QString::fromLatin1(bytes));
    }
    setStatus(QString());
    show();
    m_text->setFocus(Qt::ShortcutFocusReason);
    m_text->selectAll();
}

bool HexFindBar::findNext(bool backward)
{
    QByteArray bytes;
    if (m_kind->currentIndex() == 0) {
        if (!hexToBytes(m_text->text(), &bytes)) {
            setStatus(tr("not hex"));
            return false;
        }
    } else {
        bytes = m_text->text().toLatin1();
    }
    if (bytes.isEmpty())
        return false;
    QHexEdit::FindFlags flags;
    if (backward)
        flags |= QHexEdit::FindBackward;
    if (m_wrap->isChecked())
        flags |= QHexEdit::FindWrapAround;
    if (m_kind->currentIndex() == 1 && !m_case->isChecked())
        flags |= QHexEdit::FindCaseInsensitive;
    const bool found = m_edit->find(bytes, flags);
    setStatus(found ? QString() : tr("not found"));
    return found;
}

void HexFindBar::submit(bool backward)
{
    if (m_mode == Find) {
        findNext(backward);
    } else if (m_edit->goToAddress(m_text->text())) {
        close();
    } else {
        setStatus(tr("no such address"));
    }
}

void HexFindBar::setStatus(const QString &text)
{
    m_status->setText(text);
    QPalette pal = m_text->palette();
    pal.setColor(QPalette::Base, text.isEmpty() ? palette().color(QPalette::Base)
                                                : QColor::fromHsl(0, 180, palette().color(QPalette::Base).lightness() < 128 ? 70 : 225));
    m_text->setPalette(pal);
}

void HexFindBar::close()
{
    hide();
    m_edit->setFocus(Qt::OtherFocusReason);
}

void HexFindBar::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    Q_EMIT visibilityChanged();
}

void HexFindBar::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    Q_EMIT visibilityChanged();
}

bool HexFindBar::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_text && event->type() == QEvent::KeyPress) {
        auto key = static_cast<QKeyEvent *>(event);
        if (key->key() == Qt::Key_Escape) {
            close();
            return true;
        }
        if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) {
            submit(key->modifiers() & Qt::ShiftModifier);
            return true;
        }
        if (m_mode == Find && (key->matches(QKeySequence::FindNext) || key->matches(QKeySequence::FindPrevious))) {
            submit(key->matches(QKeySequence::FindPrevious));
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}
