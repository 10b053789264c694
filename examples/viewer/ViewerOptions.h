#pragma once

#include <QStringList>
#include <optional>

/// What the viewer is started with.
struct ViewerOptions {
  std::optional<double> wafer_diameter, test_diameter;  ///< mm; those that were given.
  QString unit;                                         ///< Of the values.
  QString settings;                                     ///< The folder of the settings; empty for none.
  QStringList files;
};

/// Reads a command line. One with --help or with an unknown option ends the program.
/// @throws mirolen::InvalidArgument for a diameter that is none.
ViewerOptions options_in(const QStringList& command_line);
