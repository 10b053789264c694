#pragma once

#include <QFont>
#include <QString>
#include <string>

#include "mirolen/render/Surface.h"

class QWidget;

namespace mirolen {
class Widget;
}

// The texts of widgets as Qt shows them.
namespace mirolen::qt {

/// Whether a widget lies on a form and not on the face of a control.
bool is_on_form(const Widget& widget);

/// The font of a widget's text. On the face of a control it is the font of plots, in the same size
/// everywhere; a form has the font of the platform's dialogs, larger or smaller as the widget wants it.
QFont text_font(const Widget& widget, const QWidget& view, const FontSpec& wanted = {});

/// A caption whose access key, 0 for none, is marked by the only '&' that is not doubled.
QString with_mnemonic(const QString& caption, char access_key);

/// A tool tip is plain text, whatever its "<" and "&" look like.
QString plain_tip(const QString& text);

/// A text with mnemonics in a room of so many pixels: what is too wide ends in dots, line by line, and the
/// view's tool tip, unless it has one, tells all of it.
QString fitted(QWidget& view, const QString& text, int room);

/// The size in pixels of a text with mnemonics.
QSize size_of_text(const QFont& font, const QWidget& view, const QString& text);

}  // namespace mirolen::qt
