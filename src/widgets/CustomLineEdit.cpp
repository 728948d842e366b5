// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "CustomLineEdit.h"

#include <QDragMoveEvent>
#include <QDropEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QUrl>

CustomLineEdit::CustomLineEdit(QWidget *parent)
    : QLineEdit(parent)
{
    setDragEnabled(true);
    setAcceptDrops(true);
}

void CustomLineEdit::addAcceptedSuffix(QString suffix)
{
    acceptedSuffixes.append(suffix);
}

void CustomLineEdit::setAcceptedSuffixes(const QStringList &suffixes)
{
    acceptedSuffixes = suffixes;
}

void CustomLineEdit::setInvokeReturnPressed(bool invoke)
{
    invokeReturnPressed = invoke;
}

// The absolute path of the first URL when it is a local file of an accepted
// suffix, else an empty string.
QString CustomLineEdit::acceptableFile(const QMimeData *data) const
{
    if (!data || !data->hasUrls())
        return QString();
    const QList<QUrl> urls = data->urls();
    if (urls.isEmpty() || !urls.first().isLocalFile())
        return QString();
    const QFileInfo file(urls.first().toLocalFile());
    if (!acceptedSuffixes.contains(file.suffix(), Qt::CaseSensitive))
        return QString();
    return file.absoluteFilePath();
}

// QLineEdit would take only text drags: without this a file drag never
// reaches dragMoveEvent.
void CustomLineEdit::dragEnterEvent(QDragEnterEvent *event)
{
    dragMoveEvent(event);
}

void CustomLineEdit::dragMoveEvent(QDragMoveEvent *event)
{
    if (!acceptableFile(event->mimeData()).isEmpty())
        event->acceptProposedAction();
    else
        event->ignore();
}

void CustomLineEdit::dropEvent(QDropEvent *event)
{
    const QString path = acceptableFile(event->mimeData());
    if (path.isEmpty())
        return;
    event->acceptProposedAction();
    setText(path);
    if (invokeReturnPressed)
        Q_EMIT returnPressed();
}
