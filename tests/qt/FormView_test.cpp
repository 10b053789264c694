#include "mirolen/qt/FormView.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>

#include "mirolen/qt/StateView.h"
#include "mirolen/qt/translate.h"
#include "mirolen/widgets/PictureBox.h"
#include "qt/form_user.h"
#include "qt/qt_support.h"

namespace mirolen {
namespace {

using namespace qt_test;
using qt::view_of;

/// One widget of each kind that a form may have, in the order of the Tab key.
struct EachKindForm : Form {
  explicit EachKindForm(Toolkit& toolkit) : Form(toolkit, "Looks & Sizes") {
    Width = 4200;
    Height = 3300;
    group.Move(120, 90, 2640, 2700);
    size_label.Move(120, 270, 1440, 300);
    size_label.AccessKey = 'z';
    size.Move(1560, 270, 960, 300);
    size.Text("5");
    other.Move(1560, 630, 660, 300);
    spinner.Move(2220, 630, 300, 300);
    marks.Move(120, 990, 2400, 900);
    hide.Move(120, 240, 2100, 270);
    hide.AccessKey = 'H';
    show.Move(120, 540, 2100, 270);
    show.AccessKey = 'S';
    white.Move(120, 1950, 2400, 270);
    white.AccessKey = 'w';
    preview.Move(1200, 2250, 375, 375);
    preview.BackColor = 0xC0FFC0;
    ok.Move(2880, 180, 1200, 375);
    ok.AccessKey = 'O';
    cancel.Move(2880, 675, 1200, 375);
    cancel.AccessKey = 'C';
    DefaultButton = &ok;
    CancelButton = &cancel;
    FirstFocus = &size;
    ok.OnClick = [this] { answered("OK"); };
    cancel.OnClick = [this] { answered("Cancel"); };
    hide.Value(true);
  }
  void answered(const char* name) {
    answers << name;
    Hide();
  }

  QStringList answers;
  Frame group{this, "2D Plot"};
  Label size_label{&group, "Size & shape:"};
  TextField size{&group}, other{&group};
  UpDown spinner{&group};
  Frame marks{&group, "Marked Sites:"};
  OptionButton hide{&marks, "Hide"}, show{&marks, "Show"};
  CheckBox white{&group, "R&D: white background"};
  PictureBox preview{&group};
  Button ok{this, "OK"}, cancel{this, "Cancel"};
};

class FormViewTest : public testing::Test {
 protected:
  FormViewTest() {
    face.resize(400, 300);
    face.show();
    QTest::qWait(0);
  }
  template <class View = QWidget>
  static View& view(const Widget& widget) {
    return dynamic_cast<View&>(*view_of(widget));
  }
  /// The text in which the '&' that is not doubled marks the access key.
  static QString marked(const Widget& widget) { return view<QAbstractButton>(widget).text(); }
  void show(const std::function<void()>& user) { show_to(form, user); }
  /// Presses a key where the focus is.
  static void key(Qt::Key key, Qt::KeyboardModifiers with = {}) {
    QTest::keyClick(QApplication::focusWidget(), key, with);
  }
  bool has_focus(const Widget& widget) { return QApplication::focusWidget() == view_of(widget); }

  QWidget face;
  qt::QtToolkit toolkit{face};
  EachKindForm form{toolkit};
};

// ---- The window ----

TEST_F(FormViewTest, IsAModalWindowOfFixedSizeInTheMiddleOfItsHost) {
  show([&] {
    const auto& dialog = view<qt::FormView>(form);
    EXPECT_EQ(dialog.windowTitle(), "Looks & Sizes");
    EXPECT_EQ(dialog.windowModality(), Qt::WindowModal);
    EXPECT_EQ(QApplication::activeModalWidget(), &dialog);
    EXPECT_EQ(dialog.minimumSize(), dialog.maximumSize());
    // Qt leaves room for a window's frame, also where no window manager draws one.
    constexpr int room_for_frame = 50;
    EXPECT_LE((dialog.frameGeometry().center() - face.frameGeometry().center()).manhattanLength(),
              room_for_frame);
  });
}

TEST_F(FormViewTest, LeavesNothingBehind) {
  const auto windows = QApplication::topLevelWidgets().size();
  const auto children = face.findChildren<QObject*>().size();
  for (int time = 0; time < 2; ++time) {
    show([&] { EXPECT_GT(QApplication::topLevelWidgets().size(), windows); });
    EXPECT_EQ(QApplication::topLevelWidgets().size(), windows);
    EXPECT_EQ(face.findChildren<QObject*>().size(), children);
    EXPECT_EQ(view_of(form), nullptr);
    EXPECT_EQ(view_of(form.size), nullptr);
  }
}

TEST_F(FormViewTest, ReturnPressesTheDefaultButtonFromAnyField) {
  for (Widget* from : {static_cast<Widget*>(&form.size), static_cast<Widget*>(&form.white)}) {
    form.FirstFocus = from;
    show([&] { key(Qt::Key_Return); });
  }
  EXPECT_EQ(form.answers, (QStringList{"OK", "OK"}));
}

TEST_F(FormViewTest, ReturnPressesTheButtonWithTheFocus) {
  form.FirstFocus = &form.cancel;
  show([&] { key(Qt::Key_Return); });
  EXPECT_EQ(form.answers, QStringList("Cancel"));
}

TEST_F(FormViewTest, WithoutADefaultButtonReturnPressesNone) {
  form.DefaultButton = nullptr;
  show([&] {
    key(Qt::Key_Return);
    EXPECT_TRUE(form.Visible);
  });
  EXPECT_EQ(form.answers, QStringList());
}

TEST_F(FormViewTest, EscapeAndClosingTheWindowCancel) {
  show([&] { key(Qt::Key_Escape); });
  show([&] { view(form).close(); });
  EXPECT_EQ(form.answers, (QStringList{"Cancel", "Cancel"}));
  form.CancelButton = nullptr;
  show([&] {
    key(Qt::Key_Escape);
    EXPECT_FALSE(form.Visible);
  });
}

TEST_F(FormViewTest, TheCancelButtonIsPressedWhileTheFormIsStillThere) {
  form.cancel.OnClick = [&] {
    EXPECT_TRUE(view(form).isVisible());
    form.Hide();
  };
  show([&] { key(Qt::Key_Escape); });
}

// ---- Fields and keys ----

TEST_F(FormViewTest, TheFirstFieldHasTheFocusAndItsTextIsReplacedByTyping) {
  show([&] {
    EXPECT_TRUE(has_focus(form.size));
    EXPECT_EQ(view<QLineEdit>(form.size).selectedText(), "5");
    QTest::keyClicks(&view(form.size), "7");
    EXPECT_EQ(form.size.Text(), "7");
  });
  form.FirstFocus = nullptr;
  show([&] { EXPECT_TRUE(has_focus(form.size)) << "the first that can have it"; });
}

TEST_F(FormViewTest, TabGoesInTheOrderOfCreation) {
  show([&] {
    for (const Widget* next : std::initializer_list<const Widget*>{
             &form.size, &form.other, &form.spinner, &form.hide, &form.white, &form.ok, &form.cancel}) {
      EXPECT_TRUE(has_focus(*next)) << QApplication::focusWidget()->metaObject()->className();
      key(Qt::Key_Tab);
    }
    EXPECT_TRUE(has_focus(form.size)) << "round";
    key(Qt::Key_Backtab);
    EXPECT_TRUE(has_focus(form.cancel)) << "and back";
  });
}

TEST_F(FormViewTest, AccessKeysWorkAndOtherAmpersandsAreText) {
  show([&] {
    EXPECT_EQ(marked(form.ok), "&OK");
    EXPECT_EQ(marked(form.white), "R&&D: &white background");
    key(Qt::Key_S, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return form.show.Value(); }));
    key(Qt::Key_W, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return form.white.Value(); }));
    key(Qt::Key_D, Qt::AltModifier);
    QTest::qWait(150);
    EXPECT_TRUE(form.white.Value());
    key(Qt::Key_Z, Qt::AltModifier);
    EXPECT_TRUE(has_focus(form.size)) << "the field behind its label";
    key(Qt::Key_O, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return form.answers == QStringList("OK"); }));
  });
}

TEST_F(FormViewTest, AButtonsAmpersandWithoutAnAccessKeyIsText) {
  form.ok.Caption = "R&D";
  form.ok.AccessKey = 0;
  show([&] {
    EXPECT_EQ(marked(form.ok), "R&&D");
    key(Qt::Key_D, Qt::AltModifier);
    QTest::qWait(150);
    EXPECT_EQ(form.answers, QStringList());
  });
}

TEST_F(FormViewTest, WhatIsNotEnabledTakesNoInput) {
  form.other.Enabled = false;
  form.white.Enabled = false;
  form.marks.Enabled = false;
  show([&] {
    EXPECT_FALSE(view(form.other).isEnabled());
    key(Qt::Key_Tab);
    EXPECT_TRUE(has_focus(form.spinner));
    QTest::mouseClick(&view(form.white), Qt::LeftButton);
    EXPECT_FALSE(form.white.Value());
    QTest::mouseClick(&view(form.show), Qt::LeftButton, {}, QPoint(8, 8));
    EXPECT_FALSE(form.show.Value()) << "in a group that is not enabled";
    form.white.Enabled = true;
    QTest::mouseClick(&view(form.white), Qt::LeftButton, {}, QPoint(8, 8));
    EXPECT_TRUE(form.white.Value());
  });
}

// ---- Choices ----

TEST_F(FormViewTest, OneOptionOfAGroupIsChosenByMouseAndKeys) {
  QStringList told;
  form.hide.OnClick = [&] { told << "hide"; };
  form.show.OnClick = [&] { told << "show"; };
  const auto chosen = [&] {
    EXPECT_EQ(view<QRadioButton>(form.hide).isChecked(), form.hide.Value());
    EXPECT_EQ(view<QRadioButton>(form.show).isChecked(), form.show.Value());
    return form.show.Value() && !form.hide.Value();
  };
  show([&] {
    EXPECT_FALSE(chosen());
    QTest::mouseClick(&view(form.show), Qt::LeftButton, {}, QPoint(8, 8));
    EXPECT_TRUE(chosen());
    QTest::mouseClick(&view(form.show), Qt::LeftButton, {}, QPoint(8, 8));
    EXPECT_TRUE(chosen());
    key(Qt::Key_Up);
    EXPECT_FALSE(chosen());
    EXPECT_TRUE(has_focus(form.hide));
    key(Qt::Key_Down);
    EXPECT_TRUE(chosen());
  });
  EXPECT_EQ(told, (QStringList{"show", "hide", "show"}));
}

TEST_F(FormViewTest, OptionsFollowTheProgramAlsoToNone) {
  show([&] {
    form.show.Value(true);
    EXPECT_TRUE(view<QRadioButton>(form.show).isChecked());
    EXPECT_FALSE(view<QRadioButton>(form.hide).isChecked());
    form.show.Value(false);
    EXPECT_FALSE(view<QRadioButton>(form.show).isChecked());
    EXPECT_FALSE(view<QRadioButton>(form.hide).isChecked());
    QTest::mouseClick(&view(form.hide), Qt::LeftButton, {}, QPoint(8, 8));
    EXPECT_TRUE(form.hide.Value());
  });
}

TEST_F(FormViewTest, AHandlerMayTakeAChoiceBack) {
  form.show.OnClick = [&] { form.hide.Value(true); };
  show([&] {
    QTest::mouseClick(&view(form.show), Qt::LeftButton, {}, QPoint(8, 8));
    EXPECT_TRUE(form.hide.Value());
    EXPECT_FALSE(form.show.Value());
    EXPECT_TRUE(view<QRadioButton>(form.hide).isChecked());
    EXPECT_FALSE(view<QRadioButton>(form.show).isChecked());
  });
}

TEST_F(FormViewTest, ACheckBoxIsTickedByMouseKeyAndProgram) {
  int told = 0;
  form.white.OnClick = [&] { ++told; };
  show([&] {
    auto& box = view<QAbstractButton>(form.white);
    QTest::mouseClick(&box, Qt::LeftButton, {}, QPoint(8, 8));
    EXPECT_TRUE(form.white.Value());
    QTest::keyClick(&box, Qt::Key_Space);
    EXPECT_FALSE(form.white.Value());
    form.white.Value(true);
    EXPECT_TRUE(box.isChecked());
    EXPECT_EQ(told, 3);
  });
}

// ---- Sizes and looks ----

/// The platform's font for a time.
class ApplicationFont {
 public:
  explicit ApplicationFont(double points) {
    QFont font = before_;
    font.setPointSizeF(points);
    QApplication::setFont(font);
  }
  ~ApplicationFont() { QApplication::setFont(before_); }

 private:
  QFont before_ = QApplication::font();
};

TEST_F(FormViewTest, GrowsSoFarThatNoTextIsCut) {
  double width = 0;
  for (const double points : {7.0, 9.0, 12.0}) {
    const ApplicationFont font(points);
    show([&] {
      EXPECT_GT(view(form).width(), width) << points;
      width = view(form).width();
      for (const Widget* widget : std::initializer_list<const Widget*>{
               &form.group, &form.size_label, &form.size, &form.hide, &form.white, &form.ok}) {
        const QSize needed = view<qt::TextView>(*widget).needed_size();
        EXPECT_EQ(needed, needed.boundedTo(view(*widget).size())) << points;
        EXPECT_TRUE(view(*widget).toolTip().isEmpty()) << points;
      }
      EXPECT_GE(view(form.size).y(), QFontMetrics(view(form.group).font()).height()) << "below the caption";
      EXPECT_TRUE(view(form).rect().contains(view(form.cancel).geometry()));
    });
  }
}

TEST_F(FormViewTest, KeepsItsToldSizeWhereTheTextsHaveRoom) {
  const ApplicationFont font(5);
  show([&] { EXPECT_EQ(view(form).size(), QSize(280, 220)); });
}

TEST_F(FormViewTest, IsNotLargerThanTheScreenAndDotsWhatIsTooWide) {
  const std::string text(400, 'm');
  form.white.Caption = text;
  form.size_label.Caption = text;
  show([&] {
    EXPECT_LE(view(form).width(), view(form).screen()->availableSize().width() + 1);
    EXPECT_TRUE(marked(form.white).endsWith(QChar(0x2026)));
    for (const Widget* widget :
         {static_cast<const Widget*>(&form.white), static_cast<const Widget*>(&form.size_label)})
      EXPECT_EQ(view(*widget).toolTip().toStdString(), text);
  });
}

TEST_F(FormViewTest, FollowsTheFontOfThePlatformWhileItIsOpen) {
  show([&] {
    const int before = view(form).height();
    const ApplicationFont font(13);
    EXPECT_TRUE(QTest::qWaitFor([&] { return view(form).height() > before; }));
  });
}

TEST_F(FormViewTest, PicturesKeepTheirSizeAndTheirMarks) {
  Shape mark(&form.group);
  mark.Look = Shape::Form::cross;
  mark.Move(form.preview.Left + 75, form.preview.Top + 150, 225, 225);
  const ApplicationFont font(12);
  show([&] {
    EXPECT_GT(view(form.group).width(), 176);
    EXPECT_EQ(view(form.preview).size(), QSize(25, 25));
    EXPECT_EQ(view(mark).geometry().topLeft() - view(form.preview).geometry().topLeft(), QPoint(5, 10));
    EXPECT_EQ(view(mark).size(), QSize(15, 15));
  });
}

TEST_F(FormViewTest, APreviewIsSharpOnItsScreen) {
  form.preview.Line(filled_box_flags, 0, 0, 12, 24, blue);
  show([&] {
    for (int x = 0; x < 25; x += 3) form.preview.Line(line_flags, x, 0, x, 24, red);
    const QImage shown = view(form.preview).grab().toImage().convertToFormat(QImage::Format_RGB32);
    EXPECT_EQ(shown, dynamic_cast<const qt::ImageSurface&>(*form.preview.device()).image());
    EXPECT_EQ(shown.devicePixelRatio(), view(form).devicePixelRatioF());
  });
}

TEST_F(FormViewTest, TextsCanBeReadInADarkWindow) {
  face.setPalette(QPalette(QColor(50, 50, 50)));
  form.size_label.Enabled = false;
  show([&] {
    EXPECT_EQ(view(form).palette().color(QPalette::Window), face.palette().color(QPalette::Window));
    const auto brightest = [&](const Widget& widget) {
      int most = 0;
      for (const Color color : colors_in(view(widget).grab().toImage()))
        most = std::max(most, qt::qcolor_of(color).lightness());
      return most;
    };
    EXPECT_GT(brightest(form.white), 200);
    EXPECT_GT(brightest(form.size_label), 120);
    EXPECT_LT(brightest(form.size_label), 200) << "grey";
  });
}

// ---- Leaving a field ----

class LeavingAField : public FormViewTest {
 protected:
  LeavingAField() {
    form.size.OnLeave = [&] {
      ++asked;
      if (form.size.Text() == "5") return true;
      toolkit.message_box("Enter a number", "Input Error", MessageIcon::none);
      return false;
    };
    form.size.Text("x");
  }
  void expect_kept() {
    EXPECT_TRUE(QTest::qWaitFor([&] { return has_focus(form.size); }));
    EXPECT_EQ(reader.texts, QStringList("Enter a number"));
    EXPECT_EQ(reader.owner, view_of(form)) << "a message belongs to the form";
    EXPECT_EQ(form.answers, QStringList());
    reader.texts.clear();
  }
  MessageReader reader;
  int asked = 0;
};

TEST_F(LeavingAField, BadTextKeepsTheFocusWithOneMessage) {
  show([&] {
    key(Qt::Key_Tab);
    expect_kept();
    key(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_TRUE(reader.texts.isEmpty()) << "nobody is asked on the way to Cancel";
    EXPECT_TRUE(has_focus(form.cancel));
  });
}

TEST_F(LeavingAField, BadTextKeepsAClickFromItsTarget) {
  show([&] {
    QTest::mouseClick(&view(form.other), Qt::LeftButton);
    expect_kept();
    QTest::mouseClick(&view(form.ok), Qt::LeftButton);
    expect_kept();
    QTest::mouseClick(&view(form.show), Qt::LeftButton, {}, QPoint(8, 8));
    expect_kept();
    EXPECT_FALSE(form.show.Value());
    form.size.Text("5");
    QTest::mouseClick(&view(form.ok), Qt::LeftButton);
    EXPECT_EQ(form.answers, QStringList("OK"));
  });
}

TEST_F(LeavingAField, BadTextKeepsAnAccessKeyFromItsTarget) {
  show([&] {
    key(Qt::Key_S, Qt::AltModifier);
    QTest::qWait(150);
    expect_kept();
    EXPECT_FALSE(form.show.Value());
    key(Qt::Key_C, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return form.answers == QStringList("Cancel"); }));
  });
  EXPECT_TRUE(reader.texts.isEmpty());
}

TEST_F(LeavingAField, NobodyIsAskedWhenTheFormIsCancelled) {
  show([&] { QTest::mouseClick(&view(form.cancel), Qt::LeftButton); });
  show([&] { key(Qt::Key_Escape); });
  show([&] { view(form).close(); });
  EXPECT_EQ(form.answers, (QStringList{"Cancel", "Cancel", "Cancel"}));
  EXPECT_EQ(asked, 0);
}

TEST_F(LeavingAField, GoodTextLetsTheFocusGo) {
  form.size.Text("5");
  show([&] {
    key(Qt::Key_Tab);
    EXPECT_TRUE(has_focus(form.other));
    EXPECT_EQ(asked, 1);
  });
  EXPECT_TRUE(reader.texts.isEmpty());
}

// ---- Within and without ----

TEST_F(FormViewTest, AFormMayOpenAnother) {
  EachKindForm inner(toolkit);
  QWidget* owner = nullptr;
  form.ok.OnClick = [&] {
    show_to(inner, [&] {
      owner = view(inner).parentWidget();
      EXPECT_EQ(QApplication::activeModalWidget(), view_of(inner));
      QTest::mouseClick(&view(inner.ok), Qt::LeftButton);
    });
    EXPECT_TRUE(form.Visible);
    EXPECT_EQ(QApplication::activeModalWidget(), view_of(form));
  };
  show([&] {
    QTest::mouseClick(&view(form.ok), Qt::LeftButton);
    EXPECT_EQ(owner, view_of(form));
  });
  EXPECT_EQ(inner.answers, QStringList("OK"));
}

TEST_F(FormViewTest, MayBeHiddenByProgram) {
  QTimer::singleShot(5, [&] { form.Hide(); });
  form.Show();
  EXPECT_EQ(form.answers, QStringList());
}

TEST(FormViewAlone, EndsWhenItsFaceIsDeletedWhileItRuns) {
  auto* face = new QWidget;
  face->show();
  qt::QtToolkit toolkit(*face);
  EachKindForm form(toolkit);
  form.size.Text("x");
  form.size.OnLeave = [] { return false; };
  show_to(form, [&] { delete face; });
  EXPECT_FALSE(form.Visible);
  EXPECT_EQ(view_of(form), nullptr);
  form.Show();
  EXPECT_FALSE(form.Visible) << "without a face nothing is shown";
}

TEST(FormViewAlone, EndsWithTheMessageOverItWhenItsFaceIsDeleted) {
  auto* face = new QWidget;
  face->show();
  qt::QtToolkit toolkit(*face);
  EachKindForm form(toolkit);
  bool passed = false;
  form.ok.OnClick = [&] {
    QTimer::singleShot(5, [&] { delete face; });
    toolkit.message_box("Really?", "", MessageIcon::none);
    passed = true;
  };
  show_to(form, [&] { QTest::mouseClick(view_of(form.ok), Qt::LeftButton); });
  EXPECT_TRUE(passed);
}

// ---- Without a user ----

TEST_F(FormViewTest, AHookStandsInForTheUser) {
  toolkit.on_form = [&](Form& shown) {
    EXPECT_EQ(&shown, &form);
    EXPECT_TRUE(shown.Visible);
    form.ok.OnClick();
  };
  form.Show();
  EXPECT_EQ(form.answers, QStringList("OK"));
  toolkit.on_form = [](Form&) {};
  form.Show();
  EXPECT_EQ(form.answers, (QStringList{"OK", "Cancel"})) << "left open, it is cancelled";
  EXPECT_EQ(view_of(form), nullptr);
}

}  // namespace
}  // namespace mirolen
