#pragma once

#include <memory>
#include <string>
#include <vector>

#include "mirolen/dialogs/PropertyPage.h"
#include "mirolen/widgets/Form.h"

namespace mirolen {

/// A kind of page and the classes of controls that it serves.
struct PageKind {
  const char* name;
  const char* tab;
  std::vector<std::string> classes;
  std::unique_ptr<PropertyPage> (*make)(Widget* container);
};

/// All kinds of pages, in the order of their tabs.
const std::vector<PageKind>& page_kinds();
/// Those that serve every one of the selected controls.
std::vector<const PageKind*> pages_for(const PropertyPage::Selection& selected);

/// Shows the pages for the selected controls, one at a time. OK and Apply write the pages that have been
/// edited to every control; Cancel writes nothing.
class PropertyDialog : public Form {
 public:
  /// The controls outlive the dialog.
  PropertyDialog(Toolkit& toolkit, const PropertyPage::Selection& selected);

  int pages() const { return static_cast<int>(shown_.size()); }
  /// From 0. @throws SubscriptOutOfRange.
  PropertyPage& page(int index) const;
  OptionButton& tab(int index) const;

 private:
  struct Shown {
    std::unique_ptr<OptionButton> tab;
    std::unique_ptr<PropertyPage> page;
  };

  const Shown& at(int index) const;
  std::vector<Shown> make_pages();
  void place();
  void show_page(const PropertyPage& chosen);
  void offer_apply();
  bool apply_all();

  PropertyPage::Selection selected_;
  Frame tabs_{this};
  const std::vector<Shown> shown_;

 public:
  Button OKbtn{this, "OK"};
  Button cancel{this, "Cancel"};
  Button apply{this, "Apply"};
};

}  // namespace mirolen
