#include "examples/page_tools.h"

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <QDir>
#include <QFile>
#include <QLocale>
#include <QProcess>
#include <csignal>

namespace mirolen::examples_test {
namespace {

QString output_of(const QString& program, const QStringList& arguments) {
  QProcess process;
  process.start(program, arguments);
  EXPECT_TRUE(process.waitForFinished()) << program.toStdString();
  EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
  return QString::fromUtf8(process.readAllStandardOutput());
}

unsigned long change_largest_file(unsigned long bytes) {
  rlimit limit{};
  EXPECT_EQ(getrlimit(RLIMIT_FSIZE, &limit), 0);
  const unsigned long before = limit.rlim_cur;
  limit.rlim_cur = bytes;
  EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &limit), 0);
  return before;
}

}  // namespace

QString shown(const char* number) { return QString(number).replace('.', QLocale::system().decimalPoint()); }

QStringList texts_of_pages(const QString& pdf) {
  QStringList pages = output_of("pdftotext", {"-layout", pdf, "-"}).split('\f');
  pages.removeLast();  // each page ends with a form feed
  const QString told = output_of("pdfinfo", {pdf}).section("Pages:", 1).section('\n', 0, 0).trimmed();
  EXPECT_EQ(told.toInt(), pages.size());
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

FullDisk::FullDisk(unsigned long bytes)
    : before_(change_largest_file(bytes)), handler_(std::signal(SIGXFSZ, SIG_IGN)) {}

FullDisk::~FullDisk() {
  change_largest_file(before_);
  std::signal(SIGXFSZ, handler_);
}

}  // namespace mirolen::examples_test
