#include "control_support.h"
#include "mirolen/dialogs/frmAbout.h"
#include "support/about_names.h"

namespace mirolen {
namespace {

std::string title_of(const std::string& control) {
  for (const AboutName& name : about_names)
    if (name.control == control) return name.title;
  return {};
}

template <class Control>
class AboutOf : public ControlTest<Control> {};
TYPED_TEST_SUITE(AboutOf, AllControls, ControlNames);

TYPED_TEST(AboutOf, ShowsTheBoxOfTheControl) {
  this->place();
  int shown = 0;
  this->toolkit.on_modal = [&](Form& form) {
    ++shown;
    const auto* box = dynamic_cast<const frmAbout*>(&form);
    ASSERT_TRUE(box);
    EXPECT_EQ(box->lblTitle.Caption.get(), title_of(this->object().info->name));
  };
  automation::call(this->object(), "About");
  EXPECT_EQ(shown, 1);
}

TYPED_TEST(AboutOf, LeavesTheControlAsItIs) {
  this->plot_square();
  const Recording before = recording_of(this->control.PLOTA);
  this->control.About();
  EXPECT_EQ(difference(recording_of(this->control.PLOTA), before), "");
  EXPECT_EQ(this->form.changes, Names{});
  EXPECT_EQ(this->toolkit.redraws, 0);
}

TYPED_TEST(AboutOf, EndsQuietlyWhereItCannotBeShown) {
  this->place();
  this->toolkit.on_modal = [](Form&) { throw OutOfMemory(); };
  EXPECT_NO_THROW(this->control.About());
}

}  // namespace
}  // namespace mirolen
