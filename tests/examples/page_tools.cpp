#include "examples/page_tools.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QLocale>

#include "qt/page_tools.h"

namespace mirolen::examples_test {
QString shown(const char* number) { return QString(number).replace('.', QLocale::system().decimalPoint()); }

QStringList texts_of_pages(const QString& pdf) {
  QStringList pages;
  for (int page = 1; page <= qt_test::pages_of(pdf); ++page) pages << qt_test::text_of_page(pdf, page);
  return pages;
}

QStringList Folder::files() const {
  return QDir(directory.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
}

QByteArray Folder::content(const QString& name) const {
  QFile file(path(name));
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void Folder::write(const QString& name, const QByteArray& content) const {
  QFile file(path(name));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  ASSERT_EQ(file.write(content), content.size());
}

}  // namespace mirolen::examples_test
