#pragma once

#include <random>
#include <string>
#include <vector>

#include "mirolen/dialogs/PropertyDialog.h"

namespace mirolen {

/// A user of a property dialog without a plan: types key by key, chooses, ticks and applies.
class PageMonkey {
 public:
  PageMonkey(PropertyDialog& dialog, unsigned long long seed) : dialog_(dialog), random_(seed) {
    collect(dialog);
  }

  void act() {
    Widget* widget = widgets_[below(widgets_.size())];
    if (auto* field = dynamic_cast<TextField*>(widget))
      type(*field);
    else if (auto* option = dynamic_cast<OptionButton*>(widget))
      option->Value(true);
    else if (auto* box = dynamic_cast<CheckBox*>(widget))
      box->Value(!box->Value());
    else if (widget == &dialog_.apply && dialog_.apply.Enabled)
      dialog_.apply.OnClick();
  }

  std::vector<const TextField*> fields() const {
    std::vector<const TextField*> fields;
    for (const Widget* widget : widgets_)
      if (const auto* field = dynamic_cast<const TextField*>(widget)) fields.push_back(field);
    return fields;
  }

 private:
  void collect(const Widget& root) {
    for (Widget* child : root.children()) {
      widgets_.push_back(child);
      collect(*child);
    }
  }
  std::size_t below(std::size_t limit) { return random_() % limit; }

  void type(TextField& field) {
    static const std::string keys = "01234567890123456789.,-+eEdD x";
    if (below(2) == 0) field.Text(std::string(1, keys[below(keys.size())]));  // over what is selected
    for (std::size_t n = below(7); n > 0; --n) field.Text(field.Text() + keys[below(keys.size())]);
    if (below(50) == 0) field.Text("9" + std::string(below(400), '0'));
    if (below(8) == 0) field.Text("");
  }

  PropertyDialog& dialog_;
  std::vector<Widget*> widgets_;
  std::mt19937_64 random_;
};

}  // namespace mirolen
