#pragma once

#include <QByteArray>
#include <QImage>
#include <QRectF>
#include <QString>
#include <QStringList>
#include <vector>

// What a PDF file holds, as the programs of poppler see it.
namespace mirolen::qt_test {

/// What a program writes. @throws std::runtime_error if it fails.
QByteArray output_of(const QString& program, const QStringList& arguments);

/// A word of a page; its box in points from the top left corner of the sheet.
struct Word {
  QString text;
  QRectF box;
  int page = 0;
};
std::vector<Word> words_in(const QString& pdf);
/// @throws std::runtime_error without such a word.
Word word_in(const QString& pdf, const QString& text);
int pages_of(const QString& pdf);
QString text_of_page(const QString& pdf, int page);

/// A sheet at a resolution, each pixel in one colour of the page.
QImage hard_image(const QString& pdf, int dpi, int page = 1);
/// A sheet as a viewer shows it that smooths edges.
QImage smooth_image(const QString& pdf, int dpi);

/// Pixels of an image of a sheet with margins of 10 mm, for lengths in twips.
struct SheetScale {
  static constexpr double margin = 233. / 600;  // in inches: as whole points and then as whole dots
  int dpi;
  double operator()(double twips) const { return (margin + twips / 1440) * dpi; }
};

}  // namespace mirolen::qt_test
