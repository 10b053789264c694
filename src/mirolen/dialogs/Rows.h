#pragma once

#include "mirolen/widgets/widgets.h"

namespace mirolen {

/// Lays the children of a group out in rows from the top down, labels at the left and their fields in one
/// column, and makes the group as wide and high as they need. A group may have several such blocks of rows
/// side by side.
class Rows {
 public:
  static constexpr double gap = 120, label_width = 1560, field_width = 960;
  static constexpr double button_width = 1320, button_height = 375;
  static constexpr double group_width = gap + label_width + field_width + gap;

  explicit Rows(Frame& group, double width = group_width, double left = 0);

  void add(Label& label, TextField& field);
  /// A widget over the whole width.
  void add(Widget& widget, double height);
  /// A picture in the middle.
  void add_picture(Widget& picture, double side);
  /// A numbered set of option buttons or check boxes.
  template <class Options>
  void add_options(const Options& options) {
    for (int i = Options::LBound(); i <= Options::UBound(); ++i) add(options(i), option_height);
  }

  /// A group of them within this one.
  template <class Options>
  void add_group(Frame& group, const Options& options) {
    Rows(group, width_ - 2 * gap).add_options(options);
    add(group, group.Height);
  }

  static constexpr double option_height = 270;

 private:
  void grow(double height);

  Frame& group_;
  double width_, left_, top_;
};

}  // namespace mirolen
