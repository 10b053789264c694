#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QPointer>
#include <QTest>
#include <QTimer>

#include "mirolen/qt/Plot2DS.h"
#include "qt/form_user.h"
#include "qt/nine_faces.h"
#include "qt/qt_support.h"

namespace mirolen {
namespace {

using namespace qt_test;

/// Lets a user answer the form that a face opens. What is left open is closed.
template <class User>
bool answered(qt::PlotWidget& face, User user) {
  bool seen = false;
  QTimer::singleShot(0, &face, [&] {
    const QPointer<QWidget> dialog(QApplication::activeModalWidget());
    if (!dialog || !QTest::qWaitForWindowActive(dialog)) return;
    seen = QTest::qWaitFor([&] { return dialog->isAncestorOf(QApplication::focusWidget()); });
    user(*dialog);
    if (dialog) dialog->close();
  });
  face.ShowPlotOption();
  return seen;
}

QLineEdit& field(QWidget& dialog, qsizetype number) { return *dialog.findChildren<QLineEdit*>().at(number); }

void enter(QLineEdit& field, const QString& text) {
  field.setFocus();
  field.selectAll();
  if (text.isEmpty()) QTest::keyClick(&field, Qt::Key_Delete);
  QTest::keyClicks(&field, text);
}

class OptionsOnTheScreen : public testing::Test {
 protected:
  OptionsOnTheScreen() {
    face.resize(600, 450);
    face.show();
    QTest::qWait(0);
    load_slope(face);
    face.setResolution(5);
    face.Plot();
  }
  QImage picture() { return face.grab().toImage(); }

  qt::Plot2DS face;
  MessageReader reader;
};

TEST_F(OptionsOnTheScreen, TakeNoTextThatIsNoNumber) {
  EXPECT_TRUE(answered(face, [&](QWidget& dialog) {
    enter(field(dialog, 0), "x");
    EXPECT_EQ(field(dialog, 0).text(), "5");
    enter(field(dialog, 0), "7");
    QTest::keyClicks(&field(dialog, 0), "e");
    EXPECT_EQ(field(dialog, 0).text(), "5") << "the number shown first";
  }));
  EXPECT_EQ(face.Resolution(), 5);
}

TEST_F(OptionsOnTheScreen, TellTwoBadFieldsInOneBoxAndStayOpen) {
  const QImage before = picture();
  EXPECT_TRUE(answered(face, [&](QWidget& dialog) {
    enter(field(dialog, 0), "");
    enter(field(dialog, 1), "1000");
    QTest::keyClick(&field(dialog, 1), Qt::Key_Return);
    EXPECT_EQ(reader.texts, QStringList{"Resolution can not be empty\nSigma Range not valid\n"});
    EXPECT_TRUE(dialog.isVisible());
    QTest::keyClick(&dialog, Qt::Key_Escape);
    EXPECT_FALSE(dialog.isVisible());
  }));
  EXPECT_EQ(face.Resolution(), 5);
  EXPECT_EQ(face.SigmaRange(), 0.5);
  EXPECT_EQ(picture(), before);
}

TEST_F(OptionsOnTheScreen, AreTakenAndDrawnByReturn) {
  const QImage before = picture();
  EXPECT_TRUE(answered(face, [&](QWidget& dialog) {
    enter(field(dialog, 0), "10");
    enter(field(dialog, 1), "1.5");
    QTest::keyClick(&field(dialog, 1), Qt::Key_Return);
  }));
  EXPECT_EQ(face.Resolution(), 10);
  EXPECT_EQ(face.SigmaRange(), 1.5);
  EXPECT_NE(picture(), before);
  EXPECT_EQ(reader.texts, QStringList());
}

/// All stored properties of a face.
std::vector<automation::Variant> settings_of(const qt::PlotWidget& face) {
  std::vector<automation::Variant> values;
  for (const automation::StoredKey& stored : face.by_name().info->stored)
    values.push_back(automation::get(face.by_name(), stored.property));
  return values;
}

class OptionsOfAFace : public testing::TestWithParam<const char*> {};
INSTANTIATE_TEST_SUITE_P(All, OptionsOfAFace,
                         testing::Values("Plot2D", "Plot2DS", "Plot2DC", "Plot2DB", "Plot3D", "Plot3DS",
                                         "Histogram", "LineScan"));

TEST_P(OptionsOfAFace, ChangeNothingWhenTheyAreCancelledOrTakenAsTheyAre) {
  const std::unique_ptr<qt::PlotWidget> face = make_face(GetParam());
  MessageReader reader;
  face->resize(600, 450);
  face->show();
  QTest::qWait(0);
  load_slope(*face);
  face->Plot();
  const std::vector<automation::Variant> before = settings_of(*face);
  for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return}) {
    EXPECT_TRUE(answered(*face, [&](QWidget& dialog) {
      QTest::keyClick(QApplication::focusWidget(), key);
      EXPECT_FALSE(dialog.isVisible()) << key;
    }));
    EXPECT_TRUE(settings_of(*face) == before) << key;
  }
  EXPECT_EQ(reader.texts, QStringList());
}

}  // namespace
}  // namespace mirolen
