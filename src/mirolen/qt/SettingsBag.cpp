#include "mirolen/qt/SettingsBag.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QSaveFile>
#include <charconv>
#include <optional>

#include "mirolen/core/translation.h"
#include "mirolen/qt/Picture.h"
#include "mirolen/qt/file_errors.h"
#include "mirolen/qt/translate.h"

namespace mirolen::qt {
namespace {

using automation::ObjectReference;
using automation::Type;
using automation::Variant;

constexpr QLatin1StringView type_key("type"), value_key("value");

/// Of a settings file; far more than a control with a picture needs.
constexpr qint64 most_bytes = 64 << 20;

/// The shortest digits that read back as the very same number: JSON's own have no NaN and no negative zero.
QString digits_of(double number) {
  char text[32];
  return QString::fromLatin1(text, std::to_chars(text, text + sizeof text, number).ptr - text);
}

std::optional<Variant> number_in(const QJsonValue& value) {
  const std::string text = value.toString().toStdString();
  double number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return number;
}

template <class Integer>
std::optional<Variant> integer_in(const QJsonValue& value) {
  const double number = value.toDouble(0.5);
  const auto integer =
      std::clamp<double>(number, std::numeric_limits<Integer>::min(), std::numeric_limits<Integer>::max());
  if (static_cast<Integer>(integer) != number) return std::nullopt;
  return static_cast<Integer>(integer);
}

QJsonValue png_of(const ObjectReference& object) {
  if (!object.pointer) return QJsonValue::Null;
  const auto* picture = object.type == typeid(Image)
                            ? dynamic_cast<const Picture*>(static_cast<Image*>(object.pointer.get()))
                            : nullptr;
  if (!picture) throw InvalidArgument(mirolen::tr("settings keep no objects but pictures"));
  QByteArray png;
  QBuffer buffer(&png);
  if (!buffer.open(QIODevice::WriteOnly) || !picture->image().save(&buffer, "PNG"))
    throw InvalidArgument(mirolen::tr("a picture cannot be kept as PNG"));
  return QString::fromLatin1(png.toBase64());
}

std::optional<Variant> picture_in(const QJsonValue& value) {
  if (value.isNull()) return ObjectReference{nullptr, typeid(Image)};
  const QImage image = QImage::fromData(QByteArray::fromBase64(value.toString().toLatin1()), "PNG");
  if (image.isNull()) return std::nullopt;
  const std::shared_ptr<Image> picture = std::make_shared<Picture>(image);
  return ObjectReference{picture, typeid(Image)};
}

QJsonValue json_of(const Variant& value) {
  switch (automation::type_of(value)) {
    case Type::boolean:
      return std::get<bool>(value);
    case Type::int16:
      return std::get<std::int16_t>(value);
    case Type::int32:
      return std::get<std::int32_t>(value);
    case Type::real:
      return digits_of(std::get<double>(value));
    case Type::text:
      return QString::fromStdString(std::get<std::string>(value));
    case Type::object:
      return png_of(std::get<ObjectReference>(value));
    default:
      throw InvalidArgument(mirolen::tr("settings keep no ") + name_of(automation::type_of(value)));
  }
}

std::optional<Variant> variant_in(const QJsonObject& entry) {
  const QString type = entry[type_key].toString();
  const QJsonValue value = entry[value_key];
  const auto is = [&](Type wanted) { return type == QLatin1StringView(automation::name_of(wanted)); };
  if (is(Type::boolean) && value.isBool()) return value.toBool();
  if (is(Type::int16)) return integer_in<std::int16_t>(value);
  if (is(Type::int32)) return integer_in<std::int32_t>(value);
  if (is(Type::real)) return number_in(value);
  if (is(Type::text) && value.isString()) return value.toString().toStdString();
  if (is(Type::object)) return picture_in(value);
  return std::nullopt;
}

}  // namespace

SettingsBag::SettingsBag(QString file) : file_(std::move(file)) {
  refuse_special_file(file_);
  if (!QFileInfo::exists(file_)) return;
  QFile stored(file_);
  if (!stored.open(QIODevice::ReadOnly)) raise_file_error(file_, stored.errorString());
  if (stored.size() > most_bytes)
    raise_file_error(file_, text_of(mirolen::tr("no settings, the file is too large")));
  QJsonParseError error;
  const QJsonDocument document = QJsonDocument::fromJson(stored.readAll(), &error);
  if (error.error != QJsonParseError::NoError)
    raise_file_error(
        file_, text_of(mirolen::tr("no settings, %1 at byte %2")).arg(error.errorString()).arg(error.offset));
  if (!document.isObject()) raise_file_error(file_, text_of(mirolen::tr("no settings")));
  values_ = document.object();
}

Variant SettingsBag::read(const std::string& key, const Variant& fallback) const {
  return variant_in(values_[QString::fromStdString(key)].toObject()).value_or(fallback);
}

void SettingsBag::write(const std::string& key, const Variant& value, const Variant&) {
  const QString type = QLatin1StringView(automation::name_of(automation::type_of(value)));
  values_[QString::fromStdString(key)] = QJsonObject{{type_key, type}, {value_key, json_of(value)}};
}

void SettingsBag::save() const {
  refuse_special_file(file_);
  QSaveFile file(file_);
  const QByteArray json = QJsonDocument(values_).toJson();
  if (!file.open(QIODevice::WriteOnly) || file.write(json) != json.size() || !file.commit())
    raise_file_error(file_, file.errorString());
}

}  // namespace mirolen::qt
