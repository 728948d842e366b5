// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "TipOfTheDay.h"
#include "ui_TipOfTheDay.h"

#include <QEvent>
#include <QFile>
#include <QFileInfo>
#include <QMovie>
#include <QPixmap>
#include <QScrollBar>
#include <QTextDocument>

#include <limits>

TipOfTheDay::TipOfTheDay(QString tipFileName, bool showOnStartup, unsigned char lastTip,
                         QWidget *parent)
    : QDialog(parent)
    , ui(new Ui::TipOfTheDay)
    , currentTip(lastTip)
    , tipFile(new QFile(tipFileName))
{
    ui->setupUi(this);
    ui->checkBox->setChecked(showOnStartup);
    if (parseTipFile())
        on_btnNext_clicked();
    ui->textBrowser->document()->setDocumentMargin(10);
}

TipOfTheDay::~TipOfTheDay()
{
    delete ui;
}

bool TipOfTheDay::parseTipFile()
{
    if (!tipFile->open(QIODevice::ReadOnly | QIODevice::Text))
        return false;
    // One buffer for every line (a line is never longer than the file), not
    // one grown and shrunk per line.
    const qint64 size = tipFile->isSequential() ? 0 : tipFile->size();
    QByteArray buffer;
    if (size > 0 && size < std::numeric_limits<int>::max())
        buffer.resize(int(size) + 1);
    while (!tipFile->atEnd()) {
        QByteArray raw;
        int length = 0;
        if (buffer.isEmpty()) {
            raw = tipFile->readLine();
            length = raw.size();
        } else {
            const qint64 read = tipFile->readLine(buffer.data(), buffer.size());
            if (read < 0)
                break;
            length = int(read);
        }
        const char *data = buffer.isEmpty() ? raw.constData() : buffer.constData();
        if (length > 0 && data[length - 1] == '\n')
            --length;
        const QString line = QString::fromLocal8Bit(data, length);
        const QStringList parts = line.split(QLatin1Char(';'));
        tips.append({ parts.first(), parts.last().simplified() });
    }
    tipFile->close();
    return true;
}

void TipOfTheDay::showNewTip(unsigned char index)
{
    if (index >= tips.size())
        return;
    currentTip = index;
    const TipStruct &tip = tips.at(index);

    ui->textBrowser->clear();
    ui->imgLabel->clear();
    ui->imgLabel->setMinimumSize(0, 0);
    movie.reset();
    ui->textBrowser->append(tip.tip);
    ui->textBrowser->adjustSize();

    const QString path = QStringLiteral(":/totd/totd/%1").arg(tip.image);
    // An empty name gives the folder itself, which is no picture.
    if (!QFileInfo(path).isFile()) {
        ui->imgLabel->hide();
    } else {
        ui->imgLabel->show();
        if (tip.image.endsWith(QLatin1String("gif"))) {
            movie.reset(new QMovie(path));
            ui->imgLabel->setMovie(movie.data());
            movie->jumpToFrame(0);
            ui->imgLabel->setMinimumSize(movie->frameRect().size());
            movie->start();
        } else {
            const QPixmap picture(path);
            // The form caps the label's height; taller pictures are fitted into it.
            const int height = ui->imgLabel->maximumHeight();
            if (picture.height() > height) {
                ui->imgLabel->setPixmap(picture.scaledToHeight(height, Qt::SmoothTransformation));
            } else {
                ui->imgLabel->setPixmap(picture);
                ui->imgLabel->setMinimumHeight(picture.height());
            }
        }
    }
    ui->textBrowser->verticalScrollBar()->setValue(0);
}

void TipOfTheDay::on_btnClose_clicked()
{
    Q_EMIT newTipValues(currentTip, ui->checkBox->isChecked());
    close();
}

void TipOfTheDay::on_btnNext_clicked()
{
    unsigned char next = currentTip + 1;
    if (next >= tips.size())
        next = 0;
    showNewTip(next);
}

void TipOfTheDay::on_btnPrev_clicked()
{
    if (tips.isEmpty())
        return;
    // Indexes are 8-bit: the last reachable tip is 255.
    const unsigned char last = static_cast<unsigned char>(qMin(tips.size() - 1, 255));
    showNewTip(currentTip == 0 ? last : static_cast<unsigned char>(currentTip - 1));
}

void TipOfTheDay::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        ui->retranslateUi(this);
    QDialog::changeEvent(event);
}
