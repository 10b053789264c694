#include "wafer_file.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "qt/qt_support.h"

namespace {

using mirolen::qt_test::TemporaryFile;

SiteList read(const QByteArray& content) { return read_csv(TemporaryFile(content).path); }

/// The complaint about a file; empty if there is none.
std::string complaint(const QByteArray& content) {
  try {
    read(content);
  } catch (const WaferFileError& error) {
    return error.what();
  }
  return {};
}

using Numbers = std::vector<double>;

TEST(WaferFile, ReadsSitesInTheirOrder) {
  const SiteList sites = read("x_mm,y_mm,z\n0,0,17.25\n-34.6483,34.648,-2\n");
  EXPECT_EQ(sites.x, (Numbers{0, -34.6483}));
  EXPECT_EQ(sites.y, (Numbers{0, 34.648}));
  EXPECT_EQ(sites.z, (Numbers{17.25, -2}));
}

TEST(WaferFile, ReadsEveryDecimalForm) {
  EXPECT_EQ(read("x_mm,y_mm,z\n.5, +2 ,1e3\n-1.5E-2,7.,0\n").x, (Numbers{0.5, -0.015}));
  EXPECT_EQ(read("x_mm,y_mm,z\n.5, +2 ,1e3\n-1.5E-2,7.,0\n").y, (Numbers{2, 7}));
  EXPECT_EQ(read("x_mm;y_mm;z\n1,5;2.5;3\n").x, Numbers{1.5}) << "decimal commas between semicolons";
}

TEST(WaferFile, TakesTheLineEndsAndMarksOfOtherPrograms) {
  const SiteList sites = read("\xEF\xBB\xBFX_MM, Y_mm, Z\r\n1,2,3\r\n\r\n4,5,6");
  EXPECT_EQ(sites.x, (Numbers{1, 4}));
  EXPECT_EQ(sites.z, (Numbers{3, 6}));
}

TEST(WaferFile, TellsWhatIsWrongAndWhere) {
  const std::pair<const char*, const char*> cases[] = {
      {"", "The file is empty."},
      {"x_mm,y_mm,z\n\n", "The file has a header, but no sites."},
      {"x,y,z\n1,2,3\n", "Line 1: the header must be \"x_mm,y_mm,z\", but is \"x,y,z\"."},
      {"1,2,3\n", "Line 1: the header must be \"x_mm,y_mm,z\", but is \"1,2,3\"."},
      {"x_mm,y_mm,z\n1,2,3\n1,2\n", "Line 3: the field z is missing."},
      {"x_mm,y_mm,z\n1,,3\n", "Line 2: the field y_mm is empty."},
      {"x_mm,y_mm,z\n1,2,3,4\n", "Line 2: there are 4 fields where 3 belong."},
      {"x_mm,y_mm,z\n1,2,3 nm\n", "Line 2: the field z is no number: \"3 nm\"."},
      {"x_mm,y_mm,z\n\n1.2.3,2,3\n", "Line 3: the field x_mm is no number: \"1.2.3\"."},
      {"x_mm,y_mm,z\nnan,2,3\n", "Line 2: the field x_mm is no number: \"nan\"."},
      {"x_mm,y_mm,z\n1,2,1e999\n", "Line 2: the field z is no number: \"1e999\"."},
  };
  for (const auto& [content, expected] : cases) EXPECT_EQ(complaint(content), expected);
  EXPECT_THROW(read_csv("/no/such/file.csv"), WaferFileError);
}

TEST(WaferFile, IsNoPipe) {
  const QTemporaryDir directory;
  const QString pipe = directory.filePath("pipe");
  ASSERT_EQ(mkfifo(QFile::encodeName(pipe).data(), 0600), 0);
  EXPECT_THROW(read_csv(pipe), WaferFileError);
  EXPECT_THROW(sites_in_binary(pipe), WaferFileError);
}

TEST(WaferFile, TakesAsManySitesAsAPlotAndNoMore) {
  QByteArray content = "x_mm,y_mm,z\n";
  for (int i = 0; i < most_sites; ++i) content += "1,2,3\n";
  EXPECT_EQ(read(content).x.size(), 32767u);
  EXPECT_EQ(complaint(content + "1,2,3\n"), "Line 32769: a plot takes 32767 sites at most.");
}

TEST(WaferFile, RefusesSitesThatTheWaferCannotTake) {
  SiteList sites;
  for (int i = 0; i < 12; ++i) {
    sites.x.push_back(i * 12);
    sites.y.push_back(0);
    sites.z.push_back(i);
  }
  EXPECT_NO_THROW(check_sites(sites, 300));
  try {
    check_sites(sites, 100);
    ADD_FAILURE() << "a site 132 mm from the centre of a wafer of 100 mm";
  } catch (const WaferFileError& error) {
    EXPECT_EQ(error.text(), "Site 6 lies 60 mm from the centre, outside a wafer of 100 mm diameter.");
  }
}

TEST(WaferFile, ChecksABinaryFileBeforeItIsLoaded) {
  const std::vector<double> numbers{0, 10, 20, 30, 0, 0, 10, 10, 1, 2, 3, 6};
  const TemporaryFile file(QByteArray(reinterpret_cast<const char*>(numbers.data()), 96), "sites.bin");
  EXPECT_EQ(sites_in_binary(file.path), 4);
  EXPECT_NO_THROW(check_binary(file.path, 4, 200));
  EXPECT_THROW(check_binary(file.path, 5, 200), WaferFileError);
  EXPECT_THROW(sites_in_binary(TemporaryFile("short").path), WaferFileError);
  EXPECT_THROW(sites_in_binary("/no/such/file"), WaferFileError);
  const double endless[] = {0, 0, std::numeric_limits<double>::infinity()};
  const TemporaryFile bad(QByteArray(reinterpret_cast<const char*>(endless), 24), "bad.bin");
  EXPECT_THROW(check_binary(bad.path, 1, 200), WaferFileError);
}

}  // namespace
