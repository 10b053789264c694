#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <typeindex>
#include <variant>

#include "mirolen/core/Array.h"
#include "mirolen/core/RunTimeError.h"

namespace mirolen::automation {

/// Types of values at the interface, in the order of the alternatives of Variant.
enum class Type { none, boolean, int16, int32, real, text, array, object };

/// A shared object of the host or the library, of which only its owner knows the type.
struct ObjectReference {
  std::shared_ptr<void> pointer;
  std::type_index type = typeid(void);
  friend bool operator==(const ObjectReference&, const ObjectReference&) = default;
};

/// A value at the interface. monostate stands for an argument left out and for the result of what has none.
using Variant = std::variant<std::monostate, bool, std::int16_t, std::int32_t, double, std::string, Array,
                             ObjectReference>;

inline Type type_of(const Variant& value) { return static_cast<Type>(value.index()); }

/// The name of a type as documentation shows it.
const char* name_of(Type type);

/// A value in another type: numbers are rounded half to even, any number but 0 is True, True is -1.
/// A text that reads as a number counts as one, with "." as its separator.
/// A Double stays as it is, also NaN; in no other type does a number that is not finite have a reading.
/// @throws OverflowError where it does not fit, InvalidArgument where there is no such reading.
Variant converted(const Variant& value, Type to);

}  // namespace mirolen::automation
