#pragma once

#include <gtest/gtest.h>

#include <vector>

#include "mirolen/widgets/widgets.h"

// What is true of the layout of every form.
namespace mirolen {

/// All widgets below one, in the order of the Tab key.
inline std::vector<Widget*> below(const Widget& root) {
  std::vector<Widget*> widgets;
  for (Widget* child : root.children()) {
    widgets.push_back(child);
    const std::vector<Widget*> inner = below(*child);
    widgets.insert(widgets.end(), inner.begin(), inner.end());
  }
  return widgets;
}

/// What has a place of its own below a widget: not the lines and marks on pictures.
inline std::vector<Widget*> placed_below(const Widget& root) {
  std::vector<Widget*> widgets = below(root);
  std::erase_if(widgets, [](const Widget* widget) {
    return widget->kind() == WidgetKind::line || widget->kind() == WidgetKind::shape;
  });
  return widgets;
}

inline bool are_apart(const Widget& a, const Widget& b) {
  return a.Left + a.Width <= b.Left || b.Left + b.Width <= a.Left || a.Top + a.Height <= b.Top ||
         b.Top + b.Height <= a.Top;
}

/// Everything lies in its container, and nothing on anything else there.
inline void expect_inside_and_apart(const Widget& root) {
  const std::vector<Widget*> widgets = placed_below(root);
  for (const Widget* one : widgets) {
    EXPECT_GE(one->Left.get(), 0);
    EXPECT_GE(one->Top.get(), 0);
    EXPECT_LE(one->Left + one->Width, one->container()->Width.get());
    EXPECT_LE(one->Top + one->Height, one->container()->Height.get());
    for (const Widget* other : widgets) {
      if (one == other || one->container() != other->container()) continue;
      EXPECT_TRUE(are_apart(*one, *other))
          << static_cast<int>(one->kind()) << ' ' << static_cast<int>(other->kind());
    }
  }
}

/// The room that a widget leaves for its caption.
inline double room_of_caption(const Captioned& widget) {
  constexpr double mark = 255, edge = 120;
  switch (widget.kind()) {
    case WidgetKind::option_button:
    case WidgetKind::check_box:
      return widget.Width - mark;
    case WidgetKind::button:
    case WidgetKind::frame:
      return widget.Width - 2 * edge;
    default:
      return widget.Width;
  }
}

inline void expect_whole_captions(const Widget& root) {
  for (const Widget* widget : below(root))
    if (const auto* captioned = dynamic_cast<const Captioned*>(widget)) {
      EXPECT_NE(captioned->Caption.get(), "");
      EXPECT_LE(widget->toolkit().measure({}, captioned->Caption.get()).width * 15,
                room_of_caption(*captioned))
          << captioned->Caption.get();
    }
}

}  // namespace mirolen
