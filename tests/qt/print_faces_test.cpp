#include <QMetaProperty>

#include "mirolen/controls/Plot2D.h"
#include "mirolen/qt/PrintJob.h"
#include "mirolen/render/RecordingSurface.h"
#include "qt/nine_faces.h"
#include "qt/qt_support.h"

namespace mirolen {
namespace {

using namespace qt_test;
using qt::PlotWidget;
using Canvas = std::shared_ptr<PlotCanvas>;

/// A printer that keeps what is drawn, and fails if told to.
class FakePrinter : public SurfaceCanvas {
 public:
  FakePrinter() : SurfaceCanvas(CanvasKind::printer, nullptr) {}
  Recording taken() {
    const Recording recording = surface_.recording();
    surface_.forget();
    return recording;
  }
  bool fails = false;

 protected:
  Surface* device() const override {
    if (fails) throw CanvasError("the paper feed");
    return &surface_;
  }

 private:
  mutable RecordingSurface surface_{{4700, 6800}, {2.4, 2.4}};
};

/// Calls a slot with numbers and perhaps a flag. @return -100 if there is no such slot.
int call(QObject& object, const char* slot, std::vector<double> numbers, std::optional<bool> flag = {}) {
  std::vector<QGenericArgument> arguments;
  for (const double& number : numbers) arguments.push_back(Q_ARG(double, number));
  if (flag) arguments.push_back(Q_ARG(bool, *flag));
  arguments.resize(5);
  int result = -100;
  QMetaObject::invokeMethod(&object, slot, Qt::DirectConnection, Q_RETURN_ARG(int, result), arguments[0],
                            arguments[1], arguments[2], arguments[3], arguments[4]);
  return result;
}

class PrintingFace : public testing::TestWithParam<const char*> {
 protected:
  PrintingFace() {
    load_slope(*face);
    face->setPrinterObj(printer);
  }
  std::unique_ptr<PlotWidget> face = make_face(GetParam());
  std::shared_ptr<FakePrinter> printer = std::make_shared<FakePrinter>();
};

TEST_P(PrintingFace, HasItsTargetAsAProperty) {
  const Canvas other = std::make_shared<FakePrinter>();
  EXPECT_EQ(face->property("PrinterObj").value<Canvas>(), printer);
  EXPECT_TRUE(face->setProperty("PrinterObj", QVariant::fromValue(other)));
  EXPECT_EQ(face->PrinterObj(), other);
  EXPECT_TRUE(face->setProperty("PrinterObj", QVariant::fromValue(Canvas())));
  EXPECT_EQ(face->PrinterObj(), nullptr);
}

TEST_P(PrintingFace, ANewOnePrintsOnThePrinterOfTheSystem) {
  const Canvas target = make_face(GetParam())->PrinterObj();
  EXPECT_NE(dynamic_cast<qt::PrintJob*>(target.get()), nullptr);
}

TEST_P(PrintingFace, PrintsThroughItsSlots) {
  EXPECT_EQ(call(*face, "PrintPlot", {0, 0, 9000, 9000}), 0);
  const Recording bare = printer->taken();
  EXPECT_GT(bare.size(), 10u);
  EXPECT_EQ(call(*face, "PrintPlot", {0, 0, 9000, 9000}, false), 0);
  EXPECT_EQ(printer->taken(), bare);
  EXPECT_EQ(call(*face, "PrintPlot", {0, 0, 9000, 9000}, true), 0);
  EXPECT_GT(printer->taken().size(), bare.size());

  EXPECT_EQ(call(*face, "PrintWaferSize", {100, 200}), 0);
  EXPECT_GT(printer->taken().size(), 10u);
  int result = -100;
  QMetaObject::invokeMethod(face.get(), "PrintWaferStatistic", Q_RETURN_ARG(int, result), Q_ARG(double, 100),
                            Q_ARG(double, 200), Q_ARG(QString, "µm"));
  EXPECT_EQ(result, 0);
  const auto last = std::get<recorded::Text>(printer->taken().back());
  EXPECT_EQ(last.text, "µm");
}

TEST_P(PrintingFace, AnswersWithTheCodesOfTheControl) {
  const bool chart = std::string_view(GetParam()) == "Histogram";
  face->setPrinterObj(nullptr);
  EXPECT_EQ(call(*face, "PrintPlot", {0, 0, 9000, 9000}), chart ? 1 : 2);
  EXPECT_EQ(call(*face, "PrintWaferSize", {0, 0}), 1);
  face->setPrinterObj(printer);
  face->setWaferDiameter(200);
  EXPECT_EQ(call(*face, "PrintPlot", {0, 0, 9000, 9000}), chart ? 1 : 2);
  EXPECT_EQ(call(*face, "PrintWaferSize", {0, 0}), 1);
  EXPECT_TRUE(printer->taken().empty());
}

TEST_P(PrintingFace, OutlivesATargetThatFails) {
  face->resize(600, 450);
  face->show();
  face->Plot();
  const QImage before = face->grab().toImage();
  call(*face, "PrintPlot", {0, 0, 9000, 9000}, true);
  const Recording page = printer->taken();

  printer->fails = true;
  if (std::string_view(GetParam()) == "Histogram")
    EXPECT_EQ(face->PrintPlot(0, 0, 9000, 9000, true), 0);
  else
    EXPECT_THROW(face->PrintPlot(0, 0, 9000, 9000, true), CanvasError);
  EXPECT_THROW(face->PrintWaferStatistic(0, 0, "nm"), CanvasError);
  EXPECT_THROW(call(*face, "PrintWaferSize", {0, 0}), CanvasError);
  EXPECT_EQ(face->grab().toImage(), before);
  EXPECT_EQ(face->Plot(), 0);
  EXPECT_EQ(face->grab().toImage(), before);

  printer->fails = false;
  EXPECT_EQ(face->PrintPlot(0, 0, 9000, 9000, true), 0);
  EXPECT_EQ(printer->taken(), page);
}

INSTANTIATE_TEST_SUITE_P(All, PrintingFace, testing::ValuesIn(nine_faces),
                         [](const auto& param) { return std::string(param.param); });

struct OwnSlot {
  const char* face;
  const char* slot;
  std::vector<double> numbers;
  bool flag = false;
};

TEST(PrintingFaces, PrintTheirOwnThroughSlots) {
  const std::vector<double> area{0, 0, 9000, 9000}, place{300, 400};
  for (const OwnSlot& own :
       {OwnSlot{"Plot2D", "PrintGridPlot", area}, OwnSlot{"Plot2DN", "PrintGridNumber", area, true},
        OwnSlot{"Plot2DC", "PrintPlot_THN", area, true}, OwnSlot{"Histogram", "PrintPlot_THN", area},
        OwnSlot{"Plot2DS", "PrintLegend_No_Frame", place}, OwnSlot{"Plot3DS", "PrintLegend_No_Frame", place},
        OwnSlot{"Plot2D", "PrintLegend", place, true}, OwnSlot{"Plot2DS", "PrintLegend", place, true},
        OwnSlot{"Plot2DC", "PrintLegend", place, true}, OwnSlot{"Plot2DN", "PrintLegend", place, true},
        OwnSlot{"Plot2DB", "PrintLegend", place, true}, OwnSlot{"Plot3D", "PrintLegend", place, true},
        OwnSlot{"Plot3DS", "PrintLegend", place, true}}) {
    const auto face = make_face(own.face);
    const auto printer = std::make_shared<FakePrinter>();
    load_slope(*face);
    face->setPrinterObj(printer);
    EXPECT_EQ(call(*face, own.slot, own.numbers), 0) << own.face << "." << own.slot;
    const Recording bare = printer->taken();
    EXPECT_GT(bare.size(), 5u) << own.face << "." << own.slot;
    if (!own.flag) continue;
    EXPECT_EQ(call(*face, own.slot, own.numbers, true), 0) << own.face << "." << own.slot;
    EXPECT_GT(printer->taken().size(), bare.size()) << own.face << "." << own.slot;
  }
}

}  // namespace
}  // namespace mirolen
