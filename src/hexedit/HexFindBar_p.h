// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QWidget>

class QCheckBox;
class QComboBox;
class QHexEdit;
class QLabel;
class QLineEdit;
class QToolButton;

// The small bar under the hex view: find (hex or text, next, previous, wrap,
// case) or go to an address. It only drives the editor's public find() and
// goToAddress(); the editor places it and gives it the keyboard.
class HexFindBar : public QWidget
{
    Q_OBJECT

public:
    enum Mode { Find, GoTo };

    explicit HexFindBar(QHexEdit *edit);

    void open(Mode mode);
    Mode mode() const { return m_mode; }
    // Searches for the bar's text; false with feedback when there is no match.
    bool findNext(bool backward);

Q_SIGNALS:
    void visibilityChanged();

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void submit(bool backward);
    void setStatus(const QString &text);
    void close();

    QHexEdit *m_edit;
    Mode m_mode = Find;
    QLabel *m_title;
    QLineEdit *m_text;
    QComboBox *m_kind;
    QToolButton *m_previous;
    QToolButton *m_next;
    QCheckBox *m_wrap;
    QCheckBox *m_case;
    QLabel *m_status;
};
