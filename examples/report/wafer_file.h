#pragma once

#include <QString>
#include <stdexcept>
#include <vector>

/// The measured sites of a wafer: places in millimetres from its centre, and values.
struct SiteList {
  std::vector<double> x, y, z;
};

/// What is wrong with a file, in words for the user.
class WaferFileError : public std::runtime_error {
 public:
  explicit WaferFileError(const QString& text) : std::runtime_error(text.toStdString()) {}
  QString text() const { return QString::fromUtf8(what()); }
};

/// More sites than this no plot takes.
inline constexpr int most_sites = 32767;

/// Reads a text file with the header "x_mm,y_mm,z" and one site a line. With semicolons between its fields a
/// file may write decimal commas. Blank lines are skipped.
/// @throws WaferFileError, which tells the line and the field.
SiteList read_csv(const QString& path);

/// How many sites a binary file has room for: three doubles each, without a header.
/// @throws WaferFileError if there is no such file or it is too short for one site.
int sites_in_binary(const QString& path);

/// @throws WaferFileError, which tells why a wafer of a diameter (millimetres) cannot take the sites.
void check_sites(const SiteList& sites, double wafer_diameter);
/// The same for a binary file and a number of sites.
void check_binary(const QString& path, int sites, double wafer_diameter);
