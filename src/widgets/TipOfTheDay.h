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

/**
 * The "Tip of the day" dialog: one tip at a time from a tip file, with an
 * optional picture or animation, buttons to step through the tips and the check
 * box "Show Tips on Startup".
 *
 * The tip file holds one tip per line, "text;picture": the text is rich text
 * and cannot contain ";", the picture a file name under the resource folder
 * ":/totd/totd/" (a name ending in "gif", case-sensitive, is animated). A line
 * without ";" is taken as text and as picture name. The dialog remembers
 * nothing: the tool passes in the tip shown last and stores what
 * newTipValues() reports. Only 256 tips can be reached (8-bit indexes).
 */
class COMMONGUI_EXPORT TipOfTheDay : public QDialog
{
    Q_OBJECT

public:
    /** One tip of the tip file. */
    struct TipStruct
    {
        QString tip;    //!< The tip's text, shown as rich text.
        QString image;  //!< The picture's file name relative to ":/totd/totd/"; may be empty.
    };

    /**
     * Constructs the dialog on the tip file @p tipFileName (often a resource
     * path) and opens it on the tip after @p lastTip, wrapping to the first.
     * @p showOnStartup sets the check box. A file that cannot be read leaves
     * the dialog empty.
     */
    TipOfTheDay(QString tipFileName, bool showOnStartup, unsigned char lastTip,
                QWidget *parent = nullptr);
    /** Destroys the dialog. */
    ~TipOfTheDay() override;

    /**
     * Reads the tip file and appends its tips. Returns false when the file
     * cannot be opened. The constructor calls it.
     */
    bool parseTipFile();
    /**
     * Shows the tip at @p index with its picture; an index past the last tip
     * does nothing, a picture that names no resource hides the picture area.
     */
    void showNewTip(unsigned char index);

Q_SIGNALS:
    /**
     * This signal is emitted when the dialog is closed by its Close button (not
     * by the window frame), with the index of the tip shown last and whether
     * tips are wanted at start-up.
     */
    void newTipValues(unsigned char lastTip, bool showTips);

public Q_SLOTS:
    /** Emits newTipValues() and closes the dialog. */
    void on_btnClose_clicked();
    /** Shows the next tip, after the last one the first. */
    void on_btnNext_clicked();
    /** Shows the previous tip, before the first one the last. */
    void on_btnPrev_clicked();

protected:
    /** \reimp Retranslates the form's texts when the application's language changes. */
    void changeEvent(QEvent *event) override;

private:
    Ui::TipOfTheDay *ui;
    unsigned char currentTip;
    QSharedPointer<QFile> tipFile;
    QList<TipStruct> tips;
    QSharedPointer<QMovie> movie;
};
