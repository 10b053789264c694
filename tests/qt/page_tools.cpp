#include "qt/page_tools.h"

#include <QProcess>
#include <QXmlStreamReader>
#include <stdexcept>

namespace mirolen::qt_test {
namespace {

QImage image_from(const QString& program, const QString& pdf, int dpi, int page, QStringList options) {
  const QString number = QString::number(page);
  options << "-png"
          << "-r" << QString::number(dpi) << "-f" << number << "-l" << number << "-singlefile" << pdf << "-";
  // pdftoppm takes the name "-" for a prefix; without one it writes to the standard output.
  if (program == "pdftoppm") options.removeLast();
  return QImage::fromData(output_of(program, options), "PNG").convertToFormat(QImage::Format_RGB32);
}

}  // namespace

QByteArray output_of(const QString& program, const QStringList& arguments) {
  QProcess process;
  process.start(program, arguments);
  if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
    throw std::runtime_error((program + ": " + process.readAllStandardError()).toStdString());
  return process.readAllStandardOutput();
}

std::vector<Word> words_in(const QString& pdf) {
  QXmlStreamReader xml(output_of("pdftotext", {"-bbox", pdf, "-"}));
  std::vector<Word> words;
  int page = 0;
  while (!xml.atEnd()) {
    if (xml.readNext() != QXmlStreamReader::StartElement) continue;
    if (xml.name() == u"page") ++page;
    if (xml.name() != u"word") continue;
    const auto edge = [&](const char* name) {
      return xml.attributes().value(QLatin1String(name)).toDouble();
    };
    const QRectF box(QPointF(edge("xMin"), edge("yMin")), QPointF(edge("xMax"), edge("yMax")));
    words.push_back({xml.readElementText(), box, page});
  }
  if (xml.hasError()) throw std::runtime_error(xml.errorString().toStdString());
  return words;
}

Word word_in(const QString& pdf, const QString& text) {
  for (const Word& word : words_in(pdf))
    if (word.text == text) return word;
  throw std::runtime_error("no word " + text.toStdString());
}

int pages_of(const QString& pdf) {
  const QString info = QString::fromUtf8(output_of("pdfinfo", {pdf}));
  return info.section("Pages:", 1).section('\n', 0, 0).trimmed().toInt();
}

QString text_of_page(const QString& pdf, int page) {
  const QString number = QString::number(page);
  return QString::fromUtf8(output_of("pdftotext", {"-layout", "-f", number, "-l", number, pdf, "-"}));
}

QImage hard_image(const QString& pdf, int dpi, int page) {
  return image_from("pdftoppm", pdf, dpi, page, {"-aa", "no", "-aaVector", "no"});
}

QImage smooth_image(const QString& pdf, int dpi) { return image_from("pdftocairo", pdf, dpi, 1, {}); }

}  // namespace mirolen::qt_test
