#pragma once

#include <functional>
#include <span>
#include <string>
#include <vector>

#include "mirolen/automation/ClassInfo.h"
#include "mirolen/dialogs/Rows.h"
#include "mirolen/dialogs/option_sets.h"
#include "mirolen/widgets/ControlArray.h"

namespace mirolen {

/// A page of fields for some properties of the first of the selected controls, which it knows by their names
/// alone. It reads them when the selection changes and writes them when it is applied. Bad text is replaced
/// on the spot, so it never reaches a control.
class PropertyPage : public Frame {
 public:
  /// The selected controls, which outlive the page or its next selection. The first is the one in hand.
  using Selection = std::vector<automation::Object>;
  using Controls = std::span<const automation::Object>;

  /// Fills the fields from the control in hand; the page counts as unchanged then. Without any it is idle.
  void SelectionChanged(const Selection& selected);
  /// Writes every field to the control in hand; a value that its property cannot hold leaves that property as
  /// it is. @return false where fields do not fit together: the user has been told, the page counts as
  /// changed still.
  bool ApplyChanges();
  /// The same to every selected control, with one message at most.
  bool ApplyToAll();

  /// Whether something has been edited since the last selection or apply.
  bool Changed() const { return changed_; }
  /// Called when that may have become another answer.
  std::function<void()> OnChanged;

 protected:
  PropertyPage(Widget* container, const char* text) : Frame(container, text) {}

  // Each of these binds a field to a property: both ways, and to the changed flag.

  /// A decimal number, with its unit and range in the tool tip. Text that is none becomes a number of its
  /// own.
  void number(TextField& field, const char* property, const std::string& tip, double otherwise);
  /// Whole degrees from 0 to 360.
  void angle(TextField& field, const char* property, double otherwise, std::function<void()> then = {});
  /// A box that is ticked for one of two values.
  void tick(CheckBox& box, const char* property, automation::Variant on, automation::Variant off);
  /// The options of an enumeration, under its numbers. A number without an option chooses none and stays.
  template <class Options>
  void choice(const Options& options, const char* property, const std::function<void()>& then = {}) {
    std::vector<OptionButton*> buttons;
    for (int i = Options::LBound(); i <= Options::UBound(); ++i) buttons.push_back(&options(i));
    choice(std::move(buttons), Options::LBound(), property, then);
  }

  // The same in parts, for a page whose fields hang together.

  using Check = bool (*)(const std::string& text);
  static bool is_decimal(const std::string& text);
  static std::string above_zero(const std::string& unit);
  /// Reads a field from a property, and puts a number in the place of text that fails the check.
  void shows(TextField& field, const char* property, Check check, double otherwise,
             std::function<void()> then = {});
  /// Writes the fields that the bindings do not, before all others. @return as ApplyChanges.
  virtual bool write_together(Controls) { return true; }
  /// Runs a step that may fail: a preview, or a value that a property cannot hold.
  static void quietly(const std::function<void()>& step);

 private:
  using Step = std::function<void(const automation::Object&)>;

  void choice(std::vector<OptionButton*> buttons, int first, const char* property,
              const std::function<void()>& then);
  void set_changed(bool changed);
  bool apply_to(Controls controls);

  Selection selected_;
  std::vector<Step> read_, write_;
  bool changed_ = false;
};

}  // namespace mirolen
