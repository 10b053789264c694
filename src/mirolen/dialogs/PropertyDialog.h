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
  std::vector<std::string> classes;
  std::unique_ptr<PropertyPage> (*make)(Widget* container);
};

/// All kinds of pages, in the order of their places.
const std::vector<PageKind>& page_kinds();
/// Those that serve every one of the selected controls.
std::vector<const PageKind*> pages_for(const PropertyPage::Selection& selected);

/// Shows the pages for the selected controls, side by side. OK and Apply write the pages that have been
/// edited to every control; Cancel writes nothing.
class PropertyDialog : public Form {
 public:
  /// The controls outlive the dialog.
  PropertyDialog(Toolkit& toolkit, const PropertyPage::Selection& selected);

  int pages() const { return static_cast<int>(pages_.size()); }
  /// From 0. @throws SubscriptOutOfRange.
  PropertyPage& page(int index) const;

 private:
  using Pages = std::vector<std::unique_ptr<PropertyPage>>;

  Pages make_pages();
  void place();
  void offer_apply();
  bool apply_all();

  PropertyPage::Selection selected_;
  const Pages pages_;

 public:
  Button OKbtn{this, "OK"};
  Button cancel{this, "Cancel"};
  Button apply{this, "Apply"};
};

}  // namespace mirolen
