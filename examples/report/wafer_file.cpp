#include "wafer_file.h"

#include <QFile>
#include <QFileInfo>
#include <QStringList>
#include <algorithm>
#include <cmath>

#include "mirolen/core/GlobalFunctions.h"
#include "texts.h"

namespace {

constexpr qint64 bytes_of_site = 3 * sizeof(double);

const QStringList& columns() {
  static const QStringList names{"x_mm", "y_mm", "z"};
  return names;
}

[[noreturn]] void fail(int line, const QString& reason) {
  throw WaferFileError(text("Line %1: %2").arg(line).arg(reason));
}

/// Opens a file to read it. A pipe may never end, so only a regular file is taken.
void open(QFile& file) {
  const QFileInfo found(file);
  if (found.exists() && !found.isFile()) throw WaferFileError(text("This is not a regular file."));
  if (!file.open(QIODevice::ReadOnly)) throw WaferFileError(file.errorString());
}

/// One line in UTF-8, without its end and without the mark that some programs put before the first.
QString next_line(QFile& file) {
  QString line = QString::fromUtf8(file.readLine());
  if (line.startsWith(QChar::ByteOrderMark)) line.remove(0, 1);
  return line.trimmed();
}

QStringList fields_of(const QString& line, QChar separator) {
  QStringList fields = line.split(separator);
  for (QString& field : fields) field = field.trimmed();
  return fields;
}

QChar separator_of(const QString& header) {
  const QChar separator = header.contains(';') ? ';' : ',';
  if (fields_of(header.toLower(), separator) != columns())
    fail(1, text("the header must be \"x_mm,y_mm,z\", but is \"%1\".").arg(header.left(60)));
  return separator;
}

double number_in(int line, const QString& column, QString field, QChar separator) {
  if (field.isEmpty()) fail(line, text("the field %1 is empty.").arg(column));
  const QString shown = field.left(60);
  if (separator == ';') field.replace(',', '.');
  bool is_number = false;
  const double number = field.toDouble(&is_number);
  if (!is_number || !std::isfinite(number))
    fail(line, text("the field %1 is no number: \"%2\".").arg(column, shown));
  return number;
}

void add_site(SiteList& sites, int line, const QString& content, QChar separator) {
  const QStringList fields = fields_of(content, separator);
  if (fields.size() < columns().size())
    fail(line, text("the field %1 is missing.").arg(columns()[fields.size()]));
  if (fields.size() > columns().size())
    fail(line, text("there are %1 fields where 3 belong.").arg(fields.size()));
  std::vector<double>* const into[] = {&sites.x, &sites.y, &sites.z};
  for (int i = 0; i < 3; ++i) into[i]->push_back(number_in(line, columns()[i], fields[i], separator));
  if (sites.x.size() > most_sites) fail(line, text("a plot takes %1 sites at most.").arg(most_sites));
}

/// The reason in the user's terms; the library's own where it is not about a place.
QString refusal(const SiteList& sites, double wafer_diameter, const char* reason) {
  for (std::size_t i = 0; i < sites.x.size(); ++i) {
    const double distance = std::hypot(sites.x[i], sites.y[i]);
    if (distance > wafer_diameter / 2)
      return text("Site %1 lies %2 mm from the centre, outside a wafer of %3 mm diameter.")
          .arg(i + 1)
          .arg(distance, 0, 'g', 6)
          .arg(wafer_diameter);
  }
  return text("These sites cannot be plotted: %1.").arg(QString::fromUtf8(reason));
}

/// A wafer that nobody sees, to try a load on.
mirolen::wafer scratch_wafer(double diameter) {
  mirolen::wafer scratch;
  scratch.WafDiam = diameter;
  scratch.WaferOrigRad = diameter / 2;
  scratch.test_diam = diameter;
  return scratch;
}

}  // namespace

SiteList read_csv(const QString& path) {
  QFile file(path);
  open(file);
  if (file.atEnd()) throw WaferFileError(text("The file is empty."));
  const QChar separator = separator_of(next_line(file));
  SiteList sites;
  for (int line = 2; !file.atEnd(); ++line) {
    const QString content = next_line(file);
    if (!content.isEmpty()) add_site(sites, line, content, separator);
  }
  if (sites.x.empty()) throw WaferFileError(text("The file has a header, but no sites."));
  return sites;
}

int sites_in_binary(const QString& path) {
  QFile file(path);
  open(file);
  const qint64 sites = file.size() / bytes_of_site;
  if (sites == 0) throw WaferFileError(text("The file is too short to hold a site."));
  return static_cast<int>(std::min<qint64>(sites, most_sites));
}

void check_sites(const SiteList& sites, double wafer_diameter) {
  mirolen::wafer scratch = scratch_wafer(wafer_diameter);
  try {
    if (mirolen::GlobalFunctions::LoadSiteArrays(false, scratch, sites.x, sites.y, sites.z) != 0)
      throw WaferFileError(text("The three columns differ in length."));
  } catch (const mirolen::RunTimeError& error) {
    throw WaferFileError(refusal(sites, wafer_diameter, error.what()));
  }
}

void check_binary(const QString& path, int sites, double wafer_diameter) {
  if (sites > sites_in_binary(path))
    throw WaferFileError(text("The file is too short for %1 sites of 24 bytes.").arg(sites));
  mirolen::wafer scratch = scratch_wafer(wafer_diameter);
  if (mirolen::GlobalFunctions::LoadSiteFile(false, scratch, path.toStdString(), sites) != 0)
    throw WaferFileError(text("%1 sites of this file cannot be plotted on a wafer of %2 mm diameter. "
                              "Is the number of sites right?")
                             .arg(sites)
                             .arg(wafer_diameter));
}
