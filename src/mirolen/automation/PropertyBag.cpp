#include "mirolen/automation/PropertyBag.h"

#include <exception>

namespace mirolen::automation {
namespace {

Variant fallback_of(const Object& object, const StoredKey& key) {
  return key.fallback ? *key.fallback : converted(get(object, key.property), key.type);
}

Variant stored_value(const PropertyBag& bag, const StoredKey& key, const Variant& fallback) {
  try {
    return converted(bag.read(key.key, fallback), key.type);
  } catch (const RunTimeError&) {
    return fallback;
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

void ReadProperties(const Object& object, const PropertyBag& bag) {
  for (const StoredKey& key : object.info->stored)
    let(object, key.property, stored_value(bag, key, fallback_of(object, key)));
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
