// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
// Writes the demo tool's PDF manuals, so that its Manuals menu has something
// real to open: a title page and a few lines of text each.
#include <QDir>
#include <QGuiApplication>
#include <QPainter>
#include <QPdfWriter>

#include <cstdio>

namespace {

bool writeManual(const QString &path, const QString &title, const QString &subtitle,
                 const QStringList &paragraphs)
{
    QPdfWriter pdf(path);
    pdf.setTitle(title);
    pdf.setCreator(QStringLiteral("CommonGUI demo"));
    pdf.setPageSize(QPageSize(QPageSize::A5));
    pdf.setResolution(150);
    QPainter p;
    if (!p.begin(&pdf))
        return false;
    const int width = pdf.width();
    p.fillRect(QRect(0, 0, width, 160), QColor(0x3d, 0x6f, 0x9e));
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPointSize(20);
    font.setBold(true);
    p.setFont(font);
    p.setPen(Qt::white);
    p.drawText(QRect(40, 20, width - 80, 120), Qt::AlignLeft | Qt::AlignVCenter, title);
    font.setPointSize(11);
    font.setBold(false);
    p.setFont(font);
    p.setPen(QColor(0x23, 0x26, 0x29));
    p.drawText(QRect(40, 190, width - 80, 60), Qt::AlignLeft, subtitle);
    int y = 280;
    for (const QString &paragraph : paragraphs) {
        const QRect box = p.boundingRect(QRect(40, y, width - 80, 2000), Qt::TextWordWrap, paragraph);
        p.drawText(box, Qt::TextWordWrap, paragraph);
        y = box.bottom() + 30;
    }
    return p.end();
}

}

int main(int argc, char **argv)
{
    QGuiApplication app(argc, argv);
    if (argc != 3) {
        std::fprintf(stderr, "usage: %s MANUALS_DIR DOC_DIR\n", argv[0]);
        return 2;
    }
    const QDir manuals(QString::fromLocal8Bit(argv[1]));
    const QDir doc(QString::fromLocal8Bit(argv[2]));
    QDir().mkpath(manuals.path());
    QDir().mkpath(doc.path());
    const QStringList en = {
        QStringLiteral("This manual describes the demo tool of the CommonGUI library."),
        QStringLiteral("Chapter 1 explains how to connect to a CANopen network, chapter 2 how "
                       "to read and write objects, chapter 3 how to work with EDS and DCF files."),
    };
    const QStringList de = {
        QStringLiteral("Dieses Handbuch beschreibt das Demo-Werkzeug der CommonGUI-Bibliothek."),
        QStringLiteral("Kapitel 1 erklärt die Verbindung mit einem CANopen-Netz, Kapitel 2 das "
                       "Lesen und Schreiben von Objekten, Kapitel 3 den Umgang mit EDS- und DCF-Dateien."),
    };
    bool ok = true;
    ok &= writeManual(manuals.filePath(QStringLiteral("handbook_tarvet_de.pdf")),
                      QStringLiteral("Handbuch"), QStringLiteral("Ausgabe 0.9"), de);
    ok &= writeManual(manuals.filePath(QStringLiteral("handbook_tarvet_en.pdf")),
                      QStringLiteral("Manual"), QStringLiteral("Edition 0.9"), en);
    ok &= writeManual(manuals.filePath(QStringLiteral("extension_tarvet_en.pdf")),
                      QStringLiteral("Extension Manual"), QStringLiteral("Vendor extensions"),
                      { QStringLiteral("Vendor-specific objects and their use.") });
    ok &= writeManual(manuals.filePath(QStringLiteral("scripting_reference.pdf")),
                      QStringLiteral("Script API"), QStringLiteral("Reference"),
                      { QStringLiteral("Every function a tool script can call, by module.") });
    ok &= writeManual(manuals.filePath(QStringLiteral("release_notes.pdf")),
                      QStringLiteral("Release notes"), QStringLiteral("0.9"),
                      { QStringLiteral("First public release of the demo tool.") });
    ok &= writeManual(doc.filePath(QStringLiteral("manual_tarvet_de.pdf")),
                      QStringLiteral("Benutzerhandbuch"), QStringLiteral("Ausgabe 0.9"), de);
    return ok ? 0 : 1;
}
