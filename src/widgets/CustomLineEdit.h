// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "commongui_export.h"

#include <QLineEdit>
#include <QStringList>

class QMimeData;

/**
 * A line edit that takes the path of a local file dropped onto it when the
 * file's suffix is one of the accepted ones.
 *
 * Only the first URL of a drag counts: a drag of several files is accepted or
 * refused by its first file alone. A drop sets the text to the file's absolute
 * path and, unless switched off with setInvokeReturnPressed(), emits
 * returnPressed() as if the user had pressed Return. With no accepted suffix
 * every file drag is refused.
 */
class COMMONGUI_EXPORT CustomLineEdit : public QLineEdit
{
    Q_OBJECT
    /**
     * The accepted file suffixes without the dot, such as "eds", compared
     * case-sensitively with the part after the last dot of the file name.
     * Empty by default. Read it with property("acceptedSuffixes").
     */
    Q_PROPERTY(QStringList acceptedSuffixes MEMBER acceptedSuffixes WRITE setAcceptedSuffixes)
    /**
     * Whether a drop emits returnPressed(); true by default.
     * Read it with property("invokeReturnPressed").
     */
    Q_PROPERTY(bool invokeReturnPressed MEMBER invokeReturnPressed WRITE setInvokeReturnPressed)

public:
    /** Constructs the line edit with dragging and dropping enabled. */
    explicit CustomLineEdit(QWidget *parent = nullptr);

    /**
     * Adds @p suffix, without the dot, to the accepted suffixes. The comparison
     * is case-sensitive: "eds" takes x.eds but refuses x.EDS and x.eds.bak.
     */
    void addAcceptedSuffix(QString suffix);
    /** Replaces the accepted suffixes with @p suffixes (without dots). */
    void setAcceptedSuffixes(const QStringList &suffixes);
    /** Sets whether a drop emits returnPressed() to @p invoke. */
    void setInvokeReturnPressed(bool invoke);

protected:
    /** Treats entering like moving, so that file drags are judged at once. */
    void dragEnterEvent(QDragEnterEvent *event) override;
    /** Accepts the proposed action for an acceptable file and ignores the rest. */
    void dragMoveEvent(QDragMoveEvent *event) override;
    /** Takes the path of an acceptable file; anything else is left alone. */
    void dropEvent(QDropEvent *event) override;

private:
    QString acceptableFile(const QMimeData *data) const;

    QStringList acceptedSuffixes;
    bool invokeReturnPressed = true;
};
