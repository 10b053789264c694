#include <algorithm>
#include <tuple>

#include "dialogs/form_support.h"
#include "qt/form_user.h"

namespace mirolen {
namespace {

using namespace qt_test;
using qt::view_of;

/// An option form with usual values in the hands of a user at the keyboard.
template <class Kind>
class FormKeys : public testing::Test {
 protected:
  FormKeys() {
    fill(form, data);
    face.resize(400, 300);
    face.show();
    QTest::qWait(0);
  }
  void show(const std::function<void()>& user) { show_to(form, user); }
  QWidget& dialog() { return *view_of(form); }

  /// Where a reader comes to a view: groups in columns, from the top down in each, and the buttons last.
  auto place_of(const QWidget& view) {
    const QWidget* group = &view;
    while (group->parentWidget() != &dialog()) group = group->parentWidget();
    const QPoint place = view.mapTo(&dialog(), QPoint());
    const bool is_button = group == &view;
    return std::tuple(is_button, is_button ? 0 : group->x(), group->y(), place.y(), place.x());
  }
  /// All widgets, those that a reader sees first in front.
  std::vector<Widget*> read() {
    std::vector<Widget*> widgets = below(form);
    std::ranges::stable_sort(widgets, {}, [&](Widget* widget) { return place_of(*view_of(*widget)); });
    return widgets;
  }

  QWidget face;
  qt::QtToolkit toolkit{face};
  wafer data = wafer_of_200_mm();
  Kind form{toolkit};
};
TYPED_TEST_SUITE(FormKeys, AllForms);

TYPED_TEST(FormKeys, TabGoesFromTheFirstFieldThroughAllThatIsEnabledAsOneReads) {
  this->show([&] {
    const QWidget* const first = QApplication::focusWidget();
    std::vector<const QWidget*> passed;
    do {
      passed.push_back(QApplication::focusWidget());
      press(Qt::Key_Tab);
    } while (QApplication::focusWidget() != first && passed.size() < 50);
    EXPECT_TRUE(std::ranges::is_sorted(passed, {}, [&](auto* view) { return this->place_of(*view); }));
    for (const QWidget* view : this->dialog().template findChildren<QWidget*>()) {
      const auto* button = qobject_cast<const QAbstractButton*>(view);
      const bool is_other_choice = button && button->autoExclusive() && !button->isChecked();
      if (view->focusPolicy() == Qt::NoFocus || !view->isEnabled() || is_other_choice) continue;
      EXPECT_EQ(std::ranges::count(passed, view), 1) << view->metaObject()->className();
    }
  });
}

TYPED_TEST(FormKeys, AnAccessKeyTakesTheUserToEachFieldAndOption) {
  this->show([&] { expect_reached_by_access_keys(this->read()); });
}

TYPED_TEST(FormKeys, ReturnConfirmsAndEscapeCancelsWhereverTheUserIs) {
  std::size_t places = 0;
  for (std::size_t place = 0; place == 0 || place < places; ++place)
    for (const bool confirms : {true, false}) {
      fill(this->form, this->data);
      this->show([&] {
        const QList<QLineEdit*> fields = this->dialog().template findChildren<QLineEdit*>();
        places = static_cast<std::size_t>(fields.size());
        fields[static_cast<qsizetype>(place)]->setFocus();
        press(confirms ? Qt::Key_Return : Qt::Key_Escape);
        EXPECT_FALSE(this->form.Visible);
      });
      EXPECT_EQ(this->form.Redraw(), confirms) << place;
    }
}

TYPED_TEST(FormKeys, EachFieldsToolTipIsSeen) {
  this->show([&] {
    for (const Widget* widget : below(this->form))
      if (dynamic_cast<const TextField*>(widget)) {
        EXPECT_FALSE(widget->ToolTipText.get().empty());
        EXPECT_EQ(view_of(*widget)->toolTip().toStdString(), widget->ToolTipText.get());
      }
  });
}

}  // namespace
}  // namespace mirolen
