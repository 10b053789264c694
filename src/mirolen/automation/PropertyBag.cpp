#include "mirolen/automation/PropertyBag.h"

#include <exception>

#include "mirolen/core/numbers.h"

namespace mirolen::automation {
namespace {

Variant fallback_of(const Object& object, const StoredKey& key) {
  return key.fallback ? *key.fallback : converted(get(object, key.property), key.type);
}

/// @throws RunTimeError for a value that has no reading in the key's type. NaN and the infinities have none.
Variant reading(const Variant& value, Type type) {
  const Variant read = converted(value, type);
  if (const auto* number = std::get_if<double>(&read)) checked(*number);
  return read;
}

void read_property(const Object& object, const PropertyBag& bag, const StoredKey& key) {
  const Variant fallback = fallback_of(object, key);
  try {
    let(object, key.property, reading(bag.read(key.key, fallback), key.type));
  } catch (const RunTimeError&) {
    let(object, key.property, fallback);
  }
}

}  // namespace

Variant MemoryPropertyBag::read(const std::string& key, const Variant& fallback) const {
  const auto found = values.find(key);
  return found == values.end() ? fallback : found->second;
}

void MemoryPropertyBag::write(const std::string& key, const Variant& value, const Variant&) {
  values[key] = value;
}

void ReadProperties(Object object, const PropertyBag& bag) {
  for (const StoredKey& key : object.info->stored) read_property(object, bag, key);
}

void WriteProperties(const Object& object, PropertyBag& bag) {
  std::exception_ptr failure;
  for (const StoredKey& key : object.info->stored) {
    try {
      bag.write(key.key, converted(get(object, key.property), key.type), fallback_of(object, key));
    } catch (const OverflowError&) {
      failure = std::current_exception();
    }
  }
  if (failure) std::rethrow_exception(failure);
}

}  // namespace mirolen::automation
