#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QMessageBox>
#include <QTimer>

#include "qt/form_user.h"
#include "qt/qt_support.h"
#include "support/RecordingCanvas.h"

namespace mirolen {
namespace {

using namespace qt_test;
using qt::Plot2D;

/// A face that its host deletes while the control waits for something.
class DeletedWhileItWaits : public testing::Test {
 protected:
  DeletedWhileItWaits() {
    face->resize(600, 450);
    face->show();
    QTest::qWait(0);
    load_slope(*face);
    face->Plot();
    auto canvas = std::make_shared<RecordingCanvas>();
    alive = canvas;
    face->setPrinterObj(std::move(canvas));
  }
  void delete_soon() {
    QTimer::singleShot(0, face, [this] { delete face.data(); });
  }
  /// Lets the event loop go on, as it does when the call of the control has returned.
  static void go_on() {
    QTimer::singleShot(0, [] { QCoreApplication::exit(); });
    QCoreApplication::exec();
  }

  QPointer<Plot2D> face{new Plot2D};
  std::weak_ptr<PlotCanvas> alive;  ///< As long as the control.
};

TEST_F(DeletedWhileItWaits, ForAMessageItsCallComesToItsEnd) {
  face->setResolution(40);
  face->setTestDiameter(80);
  delete_soon();
  face->Plot();
  EXPECT_EQ(face, nullptr);
  EXPECT_FALSE(alive.expired()) << "the control is not taken away within its call";
  go_on();
  EXPECT_TRUE(alive.expired());
}

TEST_F(DeletedWhileItWaits, ForAFormTheFormEnds) {
  Form form(face->toolkit());
  TextField field(&form);
  form.Width = form.Height = 1500;
  field.Move(0, 0, 600, 300);
  show_to(form, [this] { delete face.data(); });
  EXPECT_FALSE(form.Visible);
  EXPECT_FALSE(alive.expired());
  go_on();
  EXPECT_TRUE(alive.expired());
}

TEST_F(DeletedWhileItWaits, ForItsOptionsAfterAClickTheyClose) {
  bool shown = false;
  QTimer::singleShot(0, face, [&] {
    shown = QApplication::activeModalWidget() != nullptr;
    delete face.data();
  });
  QTest::mouseClick(qt::view_of(face->control().Command1), Qt::LeftButton);
  EXPECT_TRUE(shown);
  EXPECT_EQ(face, nullptr);
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
  EXPECT_FALSE(alive.expired());
  go_on();
  EXPECT_TRUE(alive.expired());
}

TEST_F(DeletedWhileItWaits, AtOtherTimesItsControlGoesWithIt) {
  delete face.data();
  EXPECT_TRUE(alive.expired());
}

}  // namespace
}  // namespace mirolen
