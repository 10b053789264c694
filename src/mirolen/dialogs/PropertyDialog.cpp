#include "mirolen/dialogs/PropertyDialog.h"

#include <algorithm>

#include "mirolen/core/translation.h"
#include "mirolen/dialogs/WaferInfoProp.h"
#include "mirolen/dialogs/plan_pages.h"
#include "mirolen/dialogs/view_pages.h"

namespace mirolen {
namespace {

template <class Page>
std::unique_ptr<PropertyPage> make(Widget* container) {
  return std::make_unique<Page>(container);
}

bool serves(const PageKind& kind, const automation::Object& control) {
  return std::find(kind.classes.begin(), kind.classes.end(), control.info->name) != kind.classes.end();
}

constexpr double tab_width = 1320, button_width = 960, button_height = 375;

}  // namespace

const std::vector<PageKind>& page_kinds() {
  static const std::vector<PageKind> kinds{
      {"WaferInfoProp",
       translatable("Wafer"),
       {"LineScan", "Plot2D", "Plot2DS", "Plot2DC", "Plot2DN", "Plot2DB", "Plot3D", "Plot3DS", "Histogram"},
       make<WaferInfoProp>},
      {"LineScanAngleProp", translatable("Angle"), {"LineScan"}, make<LineScanAngleProp>},
      {"Plot2DProp", translatable("Plot"), {"Plot2D"}, make<Plot2DProp>},
      {"Plot2DSProp", translatable("Plot"), {"Plot2DS"}, make<Plot2DSProp>},
      {"Plot2DCProp", translatable("Plot"), {"Plot2DC"}, make<Plot2DCProp>},
      {"Plot3DProp", translatable("Plot"), {"Plot3D"}, make<Plot3DProp>},
      {"Plot3DSProp", translatable("Plot"), {"Plot3DS"}, make<Plot3DSProp>},
      {"HistogrammProp", translatable("Plot"), {"Histogram"}, make<HistogrammProp>}};
  return kinds;
}

std::vector<const PageKind*> pages_for(const PropertyPage::Selection& selected) {
  std::vector<const PageKind*> pages;
  if (selected.empty()) return pages;
  for (const PageKind& kind : page_kinds())
    if (std::all_of(selected.begin(), selected.end(),
                    [&](const automation::Object& control) { return serves(kind, control); }))
      pages.push_back(&kind);
  return pages;
}

PropertyDialog::PropertyDialog(Toolkit& toolkit, const PropertyPage::Selection& selected)
    : Form(toolkit, "Property Pages"), selected_(selected), shown_(make_pages()) {
  apply.AccessKey = 'y';
  OKbtn.OnClick = [this] {
    if (apply_all()) Hide();
  };
  cancel.OnClick = [this] { Hide(); };
  apply.OnClick = [this] { apply_all(); };
  DefaultButton = &OKbtn;
  CancelButton = &cancel;
  place();
  for (const Shown& shown : shown_) {
    shown.tab->OnClick = [this, &shown] { show_page(*shown.page); };
    shown.page->OnChanged = [this] { offer_apply(); };
    shown.page->SelectionChanged(selected_);
  }
  offer_apply();
  if (!shown_.empty()) shown_.front().tab->Value(true);
  FirstFocus = shown_.empty() ? static_cast<Widget*>(&OKbtn) : shown_.front().tab.get();
}

std::vector<PropertyDialog::Shown> PropertyDialog::make_pages() {
  std::vector<Shown> shown;
  for (const PageKind* kind : pages_for(selected_)) {
    shown.push_back({std::make_unique<OptionButton>(&tabs_, kind->tab), kind->make(this)});
    shown.back().tab->AccessKey = *kind->tab;
  }
  return shown;
}

void PropertyDialog::place() {
  constexpr double gap = Rows::gap;
  double left = gap, width = 3 * button_width + 2 * gap, height = 0;
  for (const Shown& shown : shown_) {
    shown.tab->Move(left, 0, tab_width, Rows::option_height);
    left += tab_width;
    shown.page->Move(gap, 2 * gap + Rows::option_height);
    width = std::max(width, shown.page->Width.get());
    height = std::max(height, shown.page->Height.get());
  }
  for (const Shown& shown : shown_) shown.page->Move(gap, {}, width, height);
  tabs_.Border = false;
  tabs_.Move(0, gap, std::max(left, width), Rows::option_height);
  double right = gap + width, top = 3 * gap + Rows::option_height + height;
  for (Button* button : {&apply, &cancel, &OKbtn}) {
    right -= button_width;
    button->Move(right, top, button_width, button_height);
    right -= gap;
  }
  Width = width + 2 * gap;
  Height = top + button_height + gap;
}

const PropertyDialog::Shown& PropertyDialog::at(int index) const {
  if (index < 0 || index >= pages()) throw SubscriptOutOfRange();
  return shown_[static_cast<std::size_t>(index)];
}

PropertyPage& PropertyDialog::page(int index) const { return *at(index).page; }

OptionButton& PropertyDialog::tab(int index) const { return *at(index).tab; }

void PropertyDialog::show_page(const PropertyPage& chosen) {
  for (const Shown& shown : shown_) shown.page->Visible = shown.page.get() == &chosen;
}

void PropertyDialog::offer_apply() {
  apply.Enabled =
      std::any_of(shown_.begin(), shown_.end(), [](const Shown& shown) { return shown.page->Changed(); });
}

bool PropertyDialog::apply_all() {
  bool all_fit = true;
  for (const Shown& shown : shown_) {
    if (!shown.page->Changed() || shown.page->ApplyToAll()) continue;
    shown.tab->Value(true);
    all_fit = false;
  }
  // The controls may have made other values of what they were given.
  for (const Shown& shown : shown_)
    if (!shown.page->Changed()) shown.page->SelectionChanged(selected_);
  return all_fit;
}

}  // namespace mirolen
