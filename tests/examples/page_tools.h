#pragma once

#include <QString>
#include <QStringList>
#include <QTemporaryDir>

namespace mirolen::examples_test {

/// A number as pages show it here: with the decimal mark of this machine.
QString shown(const char* number);

/// What a reader of PDF files finds in one, page by page.
QStringList texts_of_pages(const QString& pdf);

/// A directory whose files are looked at.
struct Folder {
  QString path(const QString& name) const { return directory.filePath(name); }
  QStringList files() const;
  QByteArray content(const QString& name) const;
  void write(const QString& name, const QByteArray& content) const;

  QTemporaryDir directory;
};

}  // namespace mirolen::examples_test
