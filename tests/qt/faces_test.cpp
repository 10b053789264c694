#include <gtest/gtest.h>

#include <QMetaProperty>
#include <QSignalSpy>

#include "mirolen/qt/peers.h"
#include "qt/nine_faces.h"
#include "qt/qt_support.h"

namespace mirolen {
namespace {

using namespace qt_test;
using qt::PlotWidget;

struct Change {
  QByteArray property;
  QVariant value;
};
using Changes = std::vector<Change>;

Changes operator+(Changes changes, const Changes& more) {
  changes.insert(changes.end(), more.begin(), more.end());
  return changes;
}

Changes colors(int count) {
  Changes changes;
  for (int i = 0; i < count; ++i)
    changes.push_back({"IntervalColor" + QByteArray::number(i), QColor(i + 1, 2, 3)});
  return changes;
}

const Changes of_all{{"WaferDiameter", 300.0}, {"TestDiameter", 150.5}, {"WaferStyle", 2},
                     {"HideLegend", true},     {"MousePointer", 2},     {"BackColor", QColor(10, 20, 30)}};
const Changes caption{{"PlotCaption", "Oxide µm"}};
const Changes cells = caption + Changes{{"Resolution", 2.5}, {"ShowSites", -1}};
const Changes range{{"SigmaRange", 1.5}};
const Changes view =
    caption +
    Changes{{"EnableRotation", false}, {"WaferRotation", 300}, {"GridRotation", 20}, {"GridInclination", 70}};
const Changes surface = view + Changes{{"XResolution", 2.5}, {"YResolution", 3.5}, {"PlotScale", 60}};
const Changes bars{{"BeamWidth", 3.0}, {"BeamHeight", 4.0}, {"BeamScale", 2.5}};
const Changes contour{{"Interval", 2.5},
                      {"IntervalInPercent", 0},
                      {"MeasurementUnit", "µm"},
                      {"marksites", 3},
                      {"Resolution", 2},
                      {"PlotColored", 2},
                      {"ScaleType", 7},
                      {"MeanCurveColor", QColor(1, 0, 0)},
                      {"UpperCurveColor", QColor(2, 0, 0)},
                      {"LowerCurveColor", QColor(3, 0, 0)}};
const Changes chart{{"PlotType", 3},
                    {"Resolution", 12.0},
                    {"BeamColor", QColor(1, 2, 3)},
                    {"GaussCurveColor", QColor(4, 5, 6)}};
const Changes scan =
    caption + Changes{{"PlotType", 2},         {"angle", 45},          {"ShowSites", true},
                      {"RotationPointX", -10}, {"RotationPointY", 11}, {"LineStartPointX", 12},
                      {"LineStartPointY", 13}, {"LineEndPointX", 14},  {"LineEndPointY", 15}};

struct FaceProperties {
  const char* face;
  Changes own;
};

void PrintTo(const FaceProperties& table, std::ostream* out) { *out << table.face; }

class Face : public testing::TestWithParam<FaceProperties> {};

TEST_P(Face, HasItsPropertiesByNameAndTellsEachChange) {
  for (const auto& [name, value] : of_all + GetParam().own) {
    const auto face = make_face(GetParam().face);
    const QMetaProperty property = face->metaObject()->property(face->metaObject()->indexOfProperty(name));
    ASSERT_TRUE(property.isValid() && property.hasNotifySignal()) << name.data();
    QSignalSpy changed(face.get(), property.notifySignal());
    EXPECT_TRUE(face->setProperty(name, value)) << name.data();
    EXPECT_EQ(changed.size(), 1) << name.data();
    const QVariant now =
        property.isEnumType() ? QVariant(property.read(face.get()).toInt()) : property.read(face.get());
    EXPECT_EQ(now, value) << name.data() << " is " << now.toString().toStdString();
  }
}

TEST_P(Face, HasNoOtherPropertyThatCanBeSet) {
  std::set<QByteArray> expected{"DesignMode", "MouseIcon", "PrinterObj"};
  for (const Change& change : of_all + GetParam().own) expected.insert(change.property);
  const QMetaObject& meta = *make_face(GetParam().face)->metaObject();
  for (int i = QWidget::staticMetaObject.propertyCount(); i < meta.propertyCount(); ++i) {
    const QMetaProperty property = meta.property(i);
    EXPECT_TRUE(!property.isWritable() || expected.count(property.name())) << property.name();
  }
}

/// What a screen with a ratio of device pixels shows of a face.
QImage shown_at(double ratio, PlotWidget& face) {
  QImage picture(face.size() * ratio, QImage::Format_RGB32);
  picture.setDevicePixelRatio(ratio);
  face.render(&picture);
  return picture;
}

double share_of_changed_pixels(const QImage& before, const QImage& now) {
  int changed = 0;
  for (int y = 0; y < now.height(); ++y)
    for (int x = 0; x < now.width(); ++x) changed += before.pixel(x, y) != now.pixel(x, y);
  return double(changed) / (now.width() * now.height());
}

TEST_P(Face, DrawsItsWaferOnEveryScreen) {
  for (const double ratio : {1.0, 2.0}) {
    const auto face = make_face(GetParam().face);
    face->resize(500, 400);
    EXPECT_EQ(face->Plot(), 1) << "no data";
    const QImage empty = shown_at(ratio, *face);
    load_slope(*face);
    ASSERT_EQ(face->Plot(), 0);
    EXPECT_GT(share_of_changed_pixels(empty, shown_at(ratio, *face)), 0.005) << ratio;
  }
}

TEST_P(Face, KeepsTheSmallestSizeThatItAsksFor) {
  const auto face = make_face(GetParam().face);
  EXPECT_EQ(face->size(), face->sizeHint());
  EXPECT_EQ(face->sizeHint(), QSize(460, 320));
  const QSize smallest = face->minimumSizeHint();
  face->show();
  face->resize(face->minimumSizeHint());
  EXPECT_EQ(face->size(), smallest);
  face->resize(30, 30);
  EXPECT_EQ(face->size(), smallest);
}

INSTANTIATE_TEST_SUITE_P(
    All, Face,
    testing::Values(FaceProperties{"Plot2D", cells + colors(10)},
                    FaceProperties{"Plot2DS", cells + range + colors(3)},
                    FaceProperties{"Plot2DC", caption + contour + colors(10)},
                    FaceProperties{"Plot2DN", caption + colors(10)},
                    FaceProperties{"Plot2DB", view + bars + colors(10)},
                    FaceProperties{"Plot3D", surface + Changes{{"PlotType", 3}} + colors(10)},
                    FaceProperties{"Plot3DS", surface + range + colors(3)},
                    FaceProperties{"Histogram", chart}, FaceProperties{"LineScan", scan}),
    [](const auto& param) { return std::string(param.param.face); });

TEST(Faces, HaveTheirOwnSmallestSizes) {
  EXPECT_EQ(make_face("Histogram")->minimumSizeHint(), QSize(140, 140));
  EXPECT_EQ(make_face("Plot2DC")->minimumSizeHint(), QSize(300, 212));
  const auto scan_face = make_face("LineScan");
  EXPECT_EQ(scan_face->minimumSizeHint(), QSize(267, 190));
  scan_face->setProperty("HideLegend", true);
  EXPECT_EQ(scan_face->minimumSizeHint(), QSize(267, 118));
}

TEST(Faces, HistogramHasItsMethodsAsSlots) {
  const auto owner = make_face("Histogram");
  auto& face = dynamic_cast<qt::Histogram&>(*owner);
  const auto call = [&face](const char* name, std::vector<QGenericArgument> arguments = {}) {
    arguments.resize(2);
    return QMetaObject::invokeMethod(&face, name, arguments[0], arguments[1]);
  };
  face.resize(500, 400);
  EXPECT_TRUE(call("SetChartDim", {Q_ARG(double, 600), Q_ARG(double, 1500)}));
  EXPECT_EQ(face.control().PLOTA.Height, 1500);
  EXPECT_TRUE(call("Borderstyle", {Q_ARG(int, 0)}));
  EXPECT_FALSE(face.control().frmhist.Border);

  load_slope(face);
  const auto chart = [&] {
    face.Plot();
    return qt::view_of(face.control().PLOTA)->grab().toImage();
  };
  const QImage without = chart();
  EXPECT_TRUE(call("ShowControlLimit", {Q_ARG(double, 95), Q_ARG(double, 105)}));
  EXPECT_NE(chart(), without);
  EXPECT_TRUE(call("ResetControlLimit"));
  EXPECT_EQ(chart(), without);
}

}  // namespace
}  // namespace mirolen
