#pragma once

#include <map>
#include <string>

#include "mirolen/automation/ClassInfo.h"

namespace mirolen::automation {

/// Where a host keeps the settings of its controls.
class PropertyBag {
 public:
  virtual ~PropertyBag() = default;
  /// The value under a key; the fallback where there is none.
  virtual Variant read(const std::string& key, const Variant& fallback) const = 0;
  /// Keeps a value. A bag may leave out one that equals its fallback.
  virtual void write(const std::string& key, const Variant& value, const Variant& fallback) = 0;
};

/// A bag in memory, which keeps every value with its type.
class MemoryPropertyBag : public PropertyBag {
 public:
  Variant read(const std::string& key, const Variant& fallback) const override;
  void write(const std::string& key, const Variant& value, const Variant& fallback) override;

  std::map<std::string, Variant> values;
};

/// Gives every stored property its value from the bag, or its default, in the order of the keys. A value that
/// has no reading in its key's type counts as missing.
void ReadProperties(Object object, const PropertyBag& bag);

/// Writes every stored property, in the order of the keys and with the types of the bag.
/// @throws OverflowError for a value that does not fit the type of its key, when all others are written.
void WriteProperties(const Object& object, PropertyBag& bag);

}  // namespace mirolen::automation
