#include <gtest/gtest.h>

#include "mirolen/controls/descriptions.h"
#include "mirolen/qt/Picture.h"
#include "mirolen/qt/SettingsBag.h"
#include "qt/nine_faces.h"
#include "qt/qt_support.h"

namespace mirolen {
namespace {

using namespace automation;

Variant default_of(const Object& control, const StoredKey& key) {
  return key.fallback ? *key.fallback : converted(get(control, key.property), key.type);
}

/// An icon with every kind of pixel: opaque, half transparent, transparent.
ObjectReference icon() {
  QImage image(7, 5, QImage::Format_ARGB32);
  image.fill(QColor(10, 20, 30, 40));
  image.setPixelColor(0, 0, Qt::red);
  image.setPixelColor(1, 0, Qt::transparent);
  const std::shared_ptr<Image> picture = std::make_shared<qt::Picture>(image);
  return {picture, typeid(Image)};
}

/// Another number than the default: of the property's enumeration, where it has one, or the next.
Variant another_number(const ClassInfo& info, const StoredKey& key) {
  const MemberInfo& property = *info.find(key.property, MemberKind::get);
  if (property.result == Type::boolean) return converted(true, key.type);
  for (const EnumInfo& enumeration : info.enumerations)
    if (enumeration.name == property.enumeration)
      for (const auto& value : enumeration.values)
        if (converted(value.second, key.type) != *key.fallback) return converted(value.second, key.type);
  return {};
}

/// A value of the key's type that its property takes as it is and that is not its default.
Variant another(const Object& control, const StoredKey& key) {
  const Variant value = default_of(control, key);
  switch (key.type) {
    case Type::object:
      return icon();
    case Type::text:
      return std::get<std::string>(value) + " Öl \"µm\"\n";
    case Type::boolean:
      return !std::get<bool>(value);
    case Type::real:
      return std::get<double>(value) + 0.1;
    default: {
      const Variant number = another_number(*control.info, key);
      if (!std::holds_alternative<std::monostate>(number)) return number;
      return converted(std::get<double>(converted(value, Type::real)) + 1, key.type);
    }
  }
}

/// The pixels of a picture; null for none.
QImage pixels_of(const Variant& value) {
  const auto& object = std::get<ObjectReference>(value);
  if (!object.pointer) return {};
  const auto& picture = dynamic_cast<const qt::Picture&>(*static_cast<Image*>(object.pointer.get()));
  return picture.image().convertToFormat(QImage::Format_ARGB32);
}

bool same(const Variant& one, const Variant& other) {
  return type_of(one) == Type::object ? pixels_of(one) == pixels_of(other) : one == other;
}

/// What the control keeps under a key, in the key's type.
Variant kept(const Object& control, const StoredKey& key) {
  return converted(get(control, key.property), key.type);
}

template <class Face>
class StoredSettings : public testing::Test {};
using Faces = testing::Types<qt::LineScan, qt::Plot2D, qt::Plot2DS, qt::Plot2DC, qt::Plot2DN, qt::Plot2DB,
                             qt::Plot3D, qt::Plot3DS, qt::Histogram>;
TYPED_TEST_SUITE(StoredSettings, Faces);

TYPED_TEST(StoredSettings, AllComeBackFromTheFileUnlikeTheirDefaults) {
  const qt_test::TemporaryFile file("{}", "settings.json");
  TypeParam changed, fresh;
  const Object from = described(changed.control()), to = described(fresh.control());
  for (const StoredKey& key : from.info->stored) let(from, key.property, another(to, key));
  {
    qt::SettingsBag out(file.path);
    WriteProperties(from, out);
    out.save();
  }
  for (const StoredKey& key : from.info->stored)
    ASSERT_FALSE(same(kept(from, key), default_of(to, key))) << key.key;

  ReadProperties(to, qt::SettingsBag(file.path));
  ASSERT_GE(to.info->stored.size(), 10u);
  for (const StoredKey& key : to.info->stored) {
    EXPECT_TRUE(same(kept(to, key), kept(from, key))) << key.key;
    EXPECT_TRUE(same(get(to, key.property), get(from, key.property))) << key.property;
  }
}

}  // namespace
}  // namespace mirolen
