#include <gtest/gtest.h>

#include <QMetaProperty>
#include <QSignalSpy>
#include <cmath>
#include <limits>

#include "qt/nine_faces.h"
#include "qt/qt_support.h"

// Numbers that a member cannot take, through the faces: by QObject::setProperty and as slots.

namespace mirolen {
namespace {

using namespace qt_test;
using qt::PlotWidget;

constexpr double infinity = std::numeric_limits<double>::infinity();
const double not_a_number = std::numeric_limits<double>::quiet_NaN();

class RefusedByFace : public testing::TestWithParam<const char*> {
 protected:
  void SetUp() override {
    face->resize(500, 400);
    load_slope(*face);
    face->Plot();
  }

  /// All properties of the face's own, as far as they have a text.
  QStringList state() const {
    QStringList all;
    const QMetaObject& meta = *face->metaObject();
    for (int i = QWidget::staticMetaObject.propertyCount(); i < meta.propertyCount(); ++i) {
      const QVariant value = meta.property(i).read(face.get());
      EXPECT_TRUE(value.isValid()) << meta.property(i).name();
      all << QString::fromLatin1(meta.property(i).name()) + "=" +
                 (meta.property(i).isEnumType() ? QString::number(value.toInt()) : value.toString());
    }
    return all;
  }

  /// The numbers that a property cannot take.
  static QVariantList odd_values_of(const QMetaProperty& property) {
    const QByteArray name = property.name();
    if (property.typeId() == QMetaType::Double) return {not_a_number, infinity, -infinity};
    if (property.typeId() == QMetaType::Int)
      return {40000, -40000, 65537, 32768, -32769, 2147483647, -2147483647};
    // Of the enumerations these have told what becomes of a number without a name.
    const bool takes_any = name == "WaferStyle" || name == "ShowSites" ||
                           QByteArray(property.enclosingMetaObject()->className()).endsWith("Histogram");
    if (property.isEnumType() && !takes_any) return {65537, -65535, 40000, 2147483647};
    return {};
  }

  const std::unique_ptr<PlotWidget> face = make_face(GetParam());
};

TEST_P(RefusedByFace, NumbersChangeNothingAsProperties) {
  const QMetaObject& meta = *face->metaObject();
  int refused = 0;
  for (int i = QWidget::staticMetaObject.propertyCount(); i < meta.propertyCount(); ++i) {
    const QMetaProperty property = meta.property(i);
    if (!property.isWritable()) continue;
    for (const QVariant& odd : odd_values_of(property)) {
      const QStringList before = state();
      QSignalSpy told(face.get(), property.notifySignal());
      face->setProperty(property.name(), odd);
      EXPECT_EQ(state(), before) << property.name() << " " << odd.toString().toStdString();
      EXPECT_EQ(told.size(), 0) << property.name() << " " << odd.toString().toStdString();
      ++refused;
    }
  }
  EXPECT_GE(refused, 13);
}

TEST_P(RefusedByFace, NumbersChangeNothingAsArguments) {
  const QStringList before = state();
  for (const double odd : {not_a_number, infinity, -infinity}) {
    bool taken = true;
    EXPECT_TRUE(QMetaObject::invokeMethod(face.get(), "SetPlotLimit", Qt::DirectConnection,
                                          Q_RETURN_ARG(bool, taken), Q_ARG(double, 0.0), Q_ARG(double, odd)));
    EXPECT_FALSE(taken);
    EXPECT_EQ(face->SetDataFile("nowhere", odd), 4);
    EXPECT_TRUE(std::isfinite(face->Interpolation(odd, odd)));
  }
  EXPECT_EQ(state(), before);
}

TEST_P(RefusedByFace, ANumberWithoutANameInItsEnumerationIsKeptOrReplaced) {
  const QMetaObject& meta = *face->metaObject();
  for (int i = QWidget::staticMetaObject.propertyCount(); i < meta.propertyCount(); ++i) {
    const QMetaProperty property = meta.property(i);
    if (!property.isEnumType()) continue;
    for (const int odd : {-1, 0, 7, 32767, -32768}) {
      face->setProperty(property.name(), odd);
      const bool kept = property.read(face.get()).toInt() == odd;
      EXPECT_TRUE(kept || odd_values_of(property).isEmpty()) << property.name() << " " << odd;
      EXPECT_EQ(face->Plot(), 0);
    }
  }
}

INSTANTIATE_TEST_SUITE_P(All, RefusedByFace, testing::ValuesIn(nine_faces),
                         [](const auto& param) { return std::string(param.param); });

TEST(RefusedByLineScanFace, OneNumberRefusesTheWholeLine) {
  const auto owner = make_face("LineScan");
  auto& face = dynamic_cast<qt::LineScan&>(*owner);
  face.SetLineOrAngle(qt::LineScan::vbline, 0, 0, 0, 1.5, 2, 3, 4);
  face.SetLineOrAngle(qt::LineScan::vbAngle, 40000, 1, 1, 1, 1, 1, 1);
  face.SetLineOrAngle(qt::LineScan::vbline, 0, 0, 0, 1e6, 1, 1, 1);
  int angle = 70000;
  double x1 = 0, y1 = 0, x2 = 0, y2 = 0;
  EXPECT_EQ(face.GetLineOrAngle(angle, x1, y1, x2, y2), 0);
  EXPECT_EQ((std::vector<double>{x1, y1, x2, y2}), (std::vector<double>{1.5, 2, 3, 4}));
  EXPECT_EQ(angle, 70000) << "left alone in line mode";
  for (const char* name : {"RotationPointX", "RotationPointY", "LineStartPointX", "LineStartPointY",
                           "LineEndPointX", "LineEndPointY"})
    EXPECT_NO_THROW(face.property(name)) << name;
}

TEST(RefusedByHistogramFace, NeitherAPlaceNorABorderThatIsNoneIsTaken) {
  const auto owner = make_face("Histogram");
  auto& face = dynamic_cast<qt::Histogram&>(*owner);
  face.resize(500, 400);
  face.SetChartDim(600, 1500);
  face.SetChartDim(not_a_number, not_a_number);
  face.SetChartDim(infinity, 900);
  face.resize(520, 420);
  EXPECT_EQ(face.control().PLOTA.Height, 1500);
  face.Borderstyle(65536);
  EXPECT_TRUE(face.control().frmhist.Border) << "not the 0 of its lower bits";
  face.control().wafobj.ColS1 = face.control().wafobj.ColS2 = not_a_number;
  EXPECT_NO_THROW(face.property("BeamColor"));
  EXPECT_NO_THROW(face.property("GaussCurveColor"));
}

}  // namespace
}  // namespace mirolen
