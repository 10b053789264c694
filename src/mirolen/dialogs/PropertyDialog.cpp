#include "mirolen/dialogs/PropertyDialog.h"

#include <algorithm>

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

}  // namespace

const std::vector<PageKind>& page_kinds() {
  static const std::vector<PageKind> kinds{
      {"WaferInfoProp",
       {"LineScan", "Plot2D", "Plot2DS", "Plot2DC", "Plot2DN", "Plot2DB", "Plot3D", "Plot3DS", "Histogram"},
       make<WaferInfoProp>},
      {"LineScanAngleProp", {"LineScan"}, make<LineScanAngleProp>},
      {"Plot2DProp", {"Plot2D"}, make<Plot2DProp>},
      {"Plot2DSProp", {"Plot2DS"}, make<Plot2DSProp>},
      {"Plot2DCProp", {"Plot2DC"}, make<Plot2DCProp>},
      {"Plot3DProp", {"Plot3D"}, make<Plot3DProp>},
      {"Plot3DSProp", {"Plot3DS"}, make<Plot3DSProp>},
      {"HistogrammProp", {"Histogram"}, make<HistogrammProp>}};  // contract 11
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
    : Form(toolkit, "Property Pages"), selected_(selected), pages_(make_pages()) {
  OKbtn.OnClick = [this] {
    if (apply_all()) Hide();
  };
  cancel.OnClick = [this] { Hide(); };
  apply.OnClick = [this] { apply_all(); };
  DefaultButton = &OKbtn;
  CancelButton = &cancel;
  place();
  for (const auto& page : pages_) {
    page->OnChanged = [this] { offer_apply(); };
    page->SelectionChanged(selected_);
  }
  offer_apply();
}

PropertyDialog::Pages PropertyDialog::make_pages() {
  Pages pages;
  for (const PageKind* kind : pages_for(selected_)) pages.push_back(kind->make(this));
  return pages;
}

void PropertyDialog::place() {
  constexpr double gap = Rows::gap, button_width = Rows::button_width, button_height = Rows::button_height;
  double right = gap, height = 0;
  for (const auto& page : pages_) {
    page->Move(right, gap);
    right += page->Width + gap;
    height = std::max(height, page->Height.get());
  }
  Width = std::max(right, 3 * button_width + 4 * gap);
  if (!pages_.empty()) pages_.back()->Width = Width - gap - pages_.back()->Left;
  Height = gap + height + gap + button_height + gap;
  double left = Width;
  for (Button* button : {&apply, &cancel, &OKbtn}) {
    left -= gap + button_width;
    button->Move(left, gap + height + gap, button_width, button_height);
  }
}

PropertyPage& PropertyDialog::page(int index) const {
  if (index < 0 || index >= pages()) throw SubscriptOutOfRange();
  return *pages_[static_cast<std::size_t>(index)];
}

void PropertyDialog::offer_apply() {
  apply.Enabled = std::any_of(pages_.begin(), pages_.end(), [](const auto& page) { return page->Changed(); });
}

bool PropertyDialog::apply_all() {
  bool all_fit = true;
  for (const auto& page : pages_)
    if (page->Changed() && !page->ApplyToAll()) all_fit = false;
  // The controls may have made other values of what they were given.
  for (const auto& page : pages_)
    if (!page->Changed()) page->SelectionChanged(selected_);
  return all_fit;
}

}  // namespace mirolen
