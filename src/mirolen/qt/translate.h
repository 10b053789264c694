#pragma once

#include <QColor>
#include <QCursor>
#include <QFont>
#include <QPaintDevice>
#include <QPalette>
#include <QString>
#include <string>
#include <string_view>

#include "mirolen/render/Surface.h"

// The values of the heart as those of Qt, and back.
namespace mirolen::qt {

/// Twips of a logical pixel: Qt's logical pixel is 1/96 inch on every screen.
inline constexpr double twips_per_pixel = 15;
inline constexpr double pixels_per_inch = 96;

/// The nearest whole logical pixel to a length in twips.
int pixels_of(double twips);

/// A colour 0x00BBGGRR, not one of the system's.
QColor qcolor_of(Color color);
/// A colour's value 0x00BBGGRR; its opacity is dropped.
Color color_of(const QColor& color);
/// The colour 0x00BBGGRR of a system colour's index, as a palette shows it.
Color system_color(const QPalette& palette, unsigned index);
/// The wanted colour if it can be read on the background, otherwise black or white.
QColor readable_on(const QColor& background, const QColor& wanted);

QString text_of(std::string_view utf8);
std::string utf8_of(const QString& text);
/// Text as a font shows it: letters of the font "Symbol" are Greek.
QString shown_text(const FontSpec& font, std::string_view utf8);

/// A font for a device of which a logical pixel has ratio device pixels. Its size in logical pixels is the
/// same on all devices, whatever resolution they claim to have.
QFont font_of(const FontSpec& font, const QPaintDevice& device, double ratio = 1);

/// The cursor of a `MousePointer`, for 99 that of the icon.
QCursor cursor_of(std::int16_t mouse_pointer, const Image* icon);

}  // namespace mirolen::qt
