#include "mirolen/qt/Plot2D.h"

#include <gtest/gtest.h>

#include <QSignalSpy>

#include "qt/qt_support.h"

namespace mirolen {
namespace {

using namespace qt_test;
using qt::Plot2D;

TEST(Plot2DFace, StartsWithTheSettingsOfANewControl) {
  const Plot2D face;
  EXPECT_EQ(face.property("TestDiameter"), 194.0);
  EXPECT_EQ(face.property("WaferDiameter"), 200.0);
  EXPECT_EQ(face.property("Resolution"), 5.0);
  EXPECT_EQ(face.property("WaferStyle").toInt(), 1);
  EXPECT_EQ(face.property("PlotCaption"), "Wafer");
  EXPECT_EQ(face.property("IntervalColor0"), QColor(0x80, 0, 0));
}

TEST(Plot2DFace, HasTheStatisticsAsReadOnlyProperties) {
  Plot2D face;
  const std::vector<double> x{0, 10, 20, 30}, y{0, 0, 10, 10}, z{1, 2, 3, 6};
  ASSERT_EQ(face.SetWaferData(x, y, z), 0);
  const std::pair<const char*, double> expected[] = {{"mean", 3},
                                                     {"Maximum", 6},
                                                     {"Minimum", 1},
                                                     {"range", 5},
                                                     {"HiLo", 500.0 / 7},
                                                     {"StdDev", std::sqrt(14.0 / 3)},
                                                     {"StdDevPercent", std::sqrt(14.0 / 3) / 3 * 100}};
  for (const auto& [name, value] : expected) {
    EXPECT_NEAR(face.property(name).toDouble(), value, 1e-12) << name;
    EXPECT_FALSE(face.setProperty(name, 17.0)) << name;
  }
  EXPECT_FALSE(face.setProperty("hdc", 1));
  EXPECT_FALSE(face.setProperty("hwnd", 1));
}

TEST(Plot2DFace, AnIconComesBackWithItsChangeTold) {
  Plot2D face;
  QSignalSpy changed(&face, &Plot2D::MouseIconChanged);
  QPixmap icon(12, 8);
  icon.fill(Qt::red);
  EXPECT_TRUE(face.setProperty("MouseIcon", icon));
  EXPECT_EQ(face.MouseIcon().toImage().convertToFormat(QImage::Format_RGB32),
            icon.toImage().convertToFormat(QImage::Format_RGB32));
  EXPECT_EQ(changed.size(), 1);
  face.setMouseIcon({});
  EXPECT_TRUE(face.MouseIcon().isNull());
}

TEST(Plot2DFace, IgnoresWhatIsNoColourNoIntervalAndNoPointer) {
  Plot2D face;
  const QColor back = face.BackColor(), first = face.IntervalColor(0);
  face.setBackColor({});
  face.setIntervalColor(0, {});
  face.setIntervalColor(10, Qt::red);
  face.setIntervalColor(-1, Qt::red);
  EXPECT_EQ(face.BackColor(), back);
  EXPECT_EQ(face.IntervalColor(0), first);
  EXPECT_FALSE(face.IntervalColor(10).isValid());
  face.setMousePointer(100);
  EXPECT_EQ(face.MousePointer(), 99);
  face.setMousePointer(65546);
  EXPECT_EQ(face.MousePointer(), 99) << "not the 10 of its lower bits";
}

TEST(Plot2DFace, TakesSitesAsVectorsSpansAndArrays) {
  Plot2D face;
  const std::vector<double> x{0, 10, 20, 30}, y{0, 0, 10, 10}, z{1, 2, 3, 6};
  EXPECT_EQ(face.SetWaferData(std::span(x), std::span(y), std::span(z)), 0);
  EXPECT_EQ(face.SetWaferData(Array(x, 5), Array(y, 5), Array(z, 5)), 4) << "bounds are looked at";
  EXPECT_EQ(face.SetWaferData(x, std::vector<double>{1, 2}, z), 1);
  EXPECT_EQ(face.SetWaferData(x, y, z), 0);
  std::vector<double> x2, y2, z2;
  EXPECT_EQ(face.GetWaferData(x2, y2, z2), 4);
  EXPECT_EQ(x2, x);
  EXPECT_EQ(y2, y);
  EXPECT_EQ(z2, z);
  EXPECT_EQ(face.Interpolation(20, 10), 3);
}

TEST(Plot2DFace, ReadsABinaryFile) {
  const std::vector<double> numbers{0, 10, 20, 30, 0, 0, 10, 10, 1, 2, 3, 6};
  const TemporaryFile file(QByteArray(reinterpret_cast<const char*>(numbers.data()), 96), "Größe µ.bin");
  Plot2D face;
  EXPECT_EQ(face.SetDataFile(file.path, 4), 0);
  EXPECT_EQ(face.mean(), 3);
  EXPECT_EQ(face.SetDataFile(file.path + "x", 4), 4);
}

TEST(Plot2DFace, HasItsMethodsAsSlots) {
  Plot2D face;
  int result = -1;
  EXPECT_TRUE(QMetaObject::invokeMethod(&face, "Plot", Q_RETURN_ARG(int, result)));
  EXPECT_EQ(result, 1) << "no data";
  load_slope(face);
  EXPECT_EQ(face.Plot(), 0);
  bool taken = false;
  EXPECT_TRUE(QMetaObject::invokeMethod(&face, "SetPlotLimit", Q_RETURN_ARG(bool, taken), Q_ARG(double, 90),
                                        Q_ARG(double, 110)));
  EXPECT_TRUE(taken);
  EXPECT_EQ(face.control().wafobj.maximal, 110);
  EXPECT_TRUE(QMetaObject::invokeMethod(&face, "ReleasePlotLimit"));
  EXPECT_EQ(face.control().wafobj.maximal, 120);
  EXPECT_TRUE(QMetaObject::invokeMethod(&face, "clear"));
  EXPECT_EQ(face.control().RePlot.Picture.get(), nullptr);
  EXPECT_TRUE(QMetaObject::invokeMethod(&face, "SetPlotNotVaild"));
  face.setResolution(3);
  EXPECT_TRUE(QMetaObject::invokeMethod(&face, "InitProperties"));
  EXPECT_EQ(face.Resolution(), 5);
}

}  // namespace
}  // namespace mirolen
