// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "FileViewerDialog.h"
#include "ui_FileViewerDialog.h"

#include "AnsiCHighlighter.h"
#include "DBCHighlighter.h"
#include "EdsHighlighter.h"
#include "PlcHighlighter.h"
#include "TextCompat_p.h"
#include "XMLHighlighter.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QFile>
#include <QFileInfo>
#include <QFileSystemWatcher>
#include <QShortcut>
#include <QTextStream>
#include <QTimer>
#include <QUrl>

FileViewerDialog::FileViewerDialog(QString filePath, QWidget *parent)
    : QDialog(parent), ui(new Ui::FileViewerDialog), m_filePath(filePath)
{
    ui->setupUi(this);

    // A resource path says little to a user: show the bare name only.
    if (!filePath.startsWith(QLatin1Char(':'))) {
        setWindowTitle(tr("File Viewer - ") + filePath);
    } else {
        const QString last = filePath.split(QLatin1Char('/')).last();
        setWindowTitle(tr("File Viewer - ") + last.split(QLatin1Char('.')).first());
    }

    QFile file(filePath);
    // A folder passes the readable check but cannot be opened: same message.
    if (QFileInfo(filePath).isReadable() && file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        QTextStream stream(&file);
        CommonGUICompat::useUtf8(stream);
        // Always plain: setText would render a file that looks like HTML (a DOCTYPE, a leading tag).
        ui->txtViewer->setPlainText(stream.readAll());
        file.close();
    } else {
        ui->txtViewer->setPlainText(tr("Error %1 is not readable.").arg(filePath));
    }

    ui->txtViewer->setFont(QFont(QStringLiteral("Courier 13")));

    QCoreApplication::processEvents();
    setCursor(Qt::WaitCursor);
    QCoreApplication::processEvents();

    QTextDocument *document = ui->txtViewer->document();
    const QString suffix = QFileInfo(filePath).completeSuffix();
    QSyntaxHighlighter *highlighter = nullptr;
    if (suffix == QLatin1String("c") || suffix == QLatin1String("h"))
        highlighter = new AnsiCHighlighter(document);
    else if (suffix == QLatin1String("eds"))
        highlighter = new EdsHighlighter(document);
    else if (suffix == QLatin1String("dcf"))
        highlighter = new EdsHighlighter(document);
    else if (suffix == QLatin1String("txt"))
        highlighter = new PlcHighlighter(document);
    else if (suffix == QLatin1String("xml"))
        highlighter = new XMLHighlighter(document);
    else if (suffix == QLatin1String("dbc"))
        highlighter = new DBCHighlighter(document);
    if (highlighter)
        QCoreApplication::processEvents();

    setCursor(Qt::ArrowCursor);
    QCoreApplication::processEvents();

    m_watcher = new QFileSystemWatcher(this);
    m_watcher->addPath(filePath);
    connect(m_watcher.data(), &QFileSystemWatcher::fileChanged, this, &FileViewerDialog::fileModified);

    connect(new QShortcut(QKeySequence(tr("Ctrl++", "Increase font size")), this), &QShortcut::activated,
            this, &FileViewerDialog::on_actionIncreaseFontSize_triggered);
    connect(new QShortcut(QKeySequence(tr("Ctrl+-", "Decrease font size")), this), &QShortcut::activated,
            this, &FileViewerDialog::on_actionDescreaseFontSize_triggered);
    connect(new QShortcut(QKeySequence(tr("/", "Find dialog")), this), &QShortcut::activated,
            this, &FileViewerDialog::on_actionOpenSearchDialog_triggered);
    connect(new QShortcut(QKeySequence(tr("n", "Find next")), this), &QShortcut::activated,
            this, &FileViewerDialog::findNext);
    connect(new QShortcut(QKeySequence(tr("b", "Find previous")), this), &QShortcut::activated,
            this, &FileViewerDialog::findBackwards);

    ui->frSearchAndButton->hide();
}

FileViewerDialog::~FileViewerDialog()
{
    delete ui;
}

void FileViewerDialog::setTextSize(double size)
{
    ui->txtViewer->setFontPointSize(size);
    timerElapsed();
}

void FileViewerDialog::fileModified(const QString &path)
{
    Q_UNUSED(path)
    // One reload per notification, each after the writer has had time to finish.
    QTimer::singleShot(700, this, &FileViewerDialog::timerElapsed);
}

void FileViewerDialog::timerElapsed()
{
    QFile file(m_filePath);
    file.open(QIODevice::ReadOnly | QIODevice::Text);
    // A failed open leaves the view empty.
    const QByteArray bytes = file.isOpen() ? file.readAll() : QByteArray();
    // Text ends at the first zero byte.
    ui->txtViewer->setPlainText(QString::fromUtf8(bytes.constData()));
    file.close();
}

void FileViewerDialog::on_actionIncreaseFontSize_triggered()
{
    QFont font = ui->txtViewer->font();
    font.setPointSizeF(font.pointSizeF() + 2);
    ui->txtViewer->setFont(font);
}

void FileViewerDialog::on_actionDescreaseFontSize_triggered()
{
    QFont font = ui->txtViewer->font();
    font.setPointSizeF(font.pointSizeF() - 1);
    ui->txtViewer->setFont(font);
}

void FileViewerDialog::on_actionOpenSearchDialog_triggered()
{
    ui->frSearchAndButton->show();
    ui->edtSearchLine->setFocus(Qt::OtherFocusReason);
}

void FileViewerDialog::on_edtSearchLine_textChanged(const QString &text)
{
    m_searchText = text;
    ui->txtViewer->find(text);
}

void FileViewerDialog::on_edtSearchLine_returnPressed()
{
    ui->frSearchAndButton->hide();
}

void FileViewerDialog::findNext()
{
    ui->txtViewer->find(m_searchText);
}

void FileViewerDialog::findBackwards()
{
    ui->txtViewer->find(m_searchText, QTextDocument::FindBackward);
}

void FileViewerDialog::on_pushButton_clicked()
{
    QDesktopServices::openUrl(QUrl::fromLocalFile(QFileInfo(m_filePath).path()));
}
