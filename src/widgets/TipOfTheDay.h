// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "commongui_export.h"

#include <QDialog>
#include <QList>
#include <QSharedPointer>

class QFile;
class QMovie;
namespace Ui { class TipOfTheDay; }

// Shows one tip at a time from a tip file, with an optional picture or
// animation from ":/totd/totd/". The host stores what newTipValues() reports.
//
// Tip file: one tip per line, "text;picture" (the text cannot hold ";").
class COMMONGUI_EXPORT TipOfTheDay : public QDialog
{
    Q_OBJECT

public:
    struct TipStruct
    {
        QString tip;    // rich text
        QString image;  // relative to ":/totd/totd/"; may be empty
    };

    // Opens on the tip after `lastTip`.
    TipOfTheDay(QString tipFileName, bool showOnStartup, unsigned char lastTip,
                QWidget *parent = nullptr);
    ~TipOfTheDay() override;

    bool parseTipFile();
    void showNewTip(unsigned char index);

Q_SIGNALS:
    // Sent when the dialog is closed by its close button (not by the frame).
    void newTipValues(unsigned char lastTip, bool showTips);

public Q_SLOTS:
    void on_btnClose_clicked();
    void on_btnNext_clicked();
    void on_btnPrev_clicked();

protected:
    void changeEvent(QEvent *event) override;

private:
    Ui::TipOfTheDay *ui;
    unsigned char currentTip;
    QSharedPointer<QFile> tipFile;
    QList<TipStruct> tips;
    QSharedPointer<QMovie> movie;
};
