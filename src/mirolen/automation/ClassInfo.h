#pragma once

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "mirolen/automation/Variant.h"

namespace mirolen::automation {

enum class MemberKind { get, let, set, method };

struct EnumInfo {
  std::string name;
  std::vector<std::pair<std::string, std::int32_t>> values;
};

struct ArgumentInfo {
  std::string name;
  Type type = Type::none;
  bool by_reference = false;
  bool optional = false;
};

struct MemberInfo {
  std::string name;
  MemberKind kind = MemberKind::method;
  std::string meaning;
  Type result = Type::none;
  std::string enumeration;  // the name of the EnumInfo that a property's value comes from, or empty
  std::vector<ArgumentInfo> arguments;
  /// Makes the call on an object of the class. The arguments are complete and of their types; those by
  /// reference come back changed.
  std::function<Variant(void* object, std::span<Variant> arguments)> call;
};

struct EventInfo {
  std::string name;
  std::vector<ArgumentInfo> arguments;
};

/// A property in the host's bag. A default that is left out is the property's present value.
struct StoredKey {
  std::string key;
  Type type = Type::none;
  std::optional<Variant> fallback;
  std::string property;
};

/// All that can be said of a class: from it come calls by name, stored properties and the reference table.
struct ClassInfo {
  std::string name;
  std::vector<MemberInfo> members;
  std::vector<EnumInfo> enumerations;
  std::vector<EventInfo> events;
  std::vector<StoredKey> stored;  // in the order of reading and writing

  /// Null where the class has no such member. Names are told letter for letter.
  const MemberInfo* find(std::string_view member, MemberKind kind) const;
};

/// An object together with the description of its class. The object must outlive it.
struct Object {
  const ClassInfo* info = nullptr;
  void* instance = nullptr;
};

/// Calls a member by its name. Arguments are converted to their types; trailing optional ones may be left
/// out, and those by reference come back changed. @throws InvalidArgument for an unknown member, too few or
/// too many arguments or one without a reading in its type; otherwise what the member throws.
Variant invoke(const Object& object, std::string_view member, MemberKind kind,
               std::vector<Variant>& arguments);

/// Shorthands of invoke for properties and for methods without results in their arguments.
Variant get(const Object& object, std::string_view property);
void let(const Object& object, std::string_view property, Variant value);
Variant call(const Object& object, std::string_view method, std::vector<Variant> arguments = {});

}  // namespace mirolen::automation
