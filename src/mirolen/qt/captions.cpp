#include "mirolen/qt/captions.h"

#include <QFontInfo>
#include <QFontMetrics>
#include <QTextDocument>
#include <QWidget>
#include <algorithm>

#include "mirolen/qt/translate.h"
#include "mirolen/widgets/Widget.h"

namespace mirolen::qt {

bool is_on_form(const Widget& widget) {
  const Widget* root = &widget;
  while (root->container()) root = root->container();
  return root->kind() == WidgetKind::form;
}

QFont text_font(const Widget& widget, const QWidget& view, const FontSpec& wanted) {
  if (!is_on_form(widget)) return font_of(wanted, view);
  QFont font = view.window()->font();
  if (wanted.size != FontSpec{}.size)
    font.setPointSizeF(std::max(1.0, QFontInfo(font).pointSizeF() * wanted.size / FontSpec{}.size));
  font.setBold(font.bold() || wanted.bold);
  font.setUnderline(wanted.underline);
  return font;
}

QString with_mnemonic(const QString& caption, char access_key) {
  const QChar key = QChar::fromLatin1(access_key);
  qsizetype at = access_key == 0 ? -1 : caption.indexOf(key);
  if (at < 0 && access_key != 0) at = caption.indexOf(key, 0, Qt::CaseInsensitive);
  QString text = caption;
  if (at < 0) return text.replace('&', "&&");
  return text.left(at).replace('&', "&&") + '&' + text.mid(at).replace('&', "&&");
}

QString plain_tip(const QString& text) {
  return Qt::mightBeRichText(text) ? QStringLiteral("<span>%1</span>").arg(text.toHtmlEscaped()) : text;
}

namespace {

QString without_mnemonic(QString text) {
  for (qsizetype at = text.indexOf('&'); at >= 0; at = text.indexOf('&', at + 1)) text.remove(at, 1);
  return text;
}

}  // namespace

QString fitted(QWidget& view, const QString& text, int room) {
  const QFontMetrics metrics(view.font(), &view);
  QStringList lines = text.split('\n');
  for (QString& line : lines) line = metrics.elidedText(line, Qt::ElideRight, room, Qt::TextShowMnemonic);
  const QString shown = lines.join('\n');
  if (shown != text && view.toolTip().isEmpty()) view.setToolTip(plain_tip(without_mnemonic(text)));
  return shown;
}

QSize size_of_text(const QFont& font, const QWidget& view, const QString& text) {
  return QFontMetrics(font, &view).size(Qt::TextShowMnemonic, text);
}

}  // namespace mirolen::qt
