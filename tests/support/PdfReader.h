#pragma once

#include <QImage>
#include <QList>
#include <QString>

namespace kuyum {

/// Reads printed pages back with poppler's tools.

struct PdfWord
{
    int page = 0; ///< from 1
    double x = 0; ///< of the top left corner, in twips
    double y = 0;
    QString text;
};

QList<PdfWord> pdfWords(const QString &path);
/// The first word that reads so; an empty one when there is none.
PdfWord pdfWord(const QString &path, const QString &text);
/// The first page in black and white dots, so many to the inch.
QImage pdfDots(const QString &path, int dotsPerInch);
/// The fonts as pdffonts lists them, one line each.
QStringList pdfFonts(const QString &path);
/// The pictures as pdfimages lists them, one line for each place on a page.
QStringList pdfImages(const QString &path);

} // namespace kuyum
