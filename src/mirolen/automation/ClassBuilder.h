#pragma once

#include <initializer_list>
#include <tuple>
#include <type_traits>

#include "mirolen/automation/ClassInfo.h"

namespace mirolen::automation {

/// How a C++ type stands in a Variant. Specialised for every type that a described member takes or gives.
template <class T>
struct Interface;

template <class T, Type kind>
struct SameInterface {
  static constexpr Type type = kind;
  static T take(const Variant& value) { return std::get<T>(value); }
  static Variant give(T value) { return Variant(std::move(value)); }
};

template <>
struct Interface<bool> : SameInterface<bool, Type::boolean> {};
template <>
struct Interface<std::int16_t> : SameInterface<std::int16_t, Type::int16> {};
template <>
struct Interface<std::int32_t> : SameInterface<std::int32_t, Type::int32> {};
template <>
struct Interface<double> : SameInterface<double, Type::real> {};
template <>
struct Interface<std::string> : SameInterface<std::string, Type::text> {};
template <>
struct Interface<Array> : SameInterface<Array, Type::array> {};

template <>
struct Interface<std::uint32_t> {  // a colour, told by its 32 bits
  static constexpr Type type = Type::int32;
  static std::uint32_t take(const Variant& value) {
    return static_cast<std::uint32_t>(std::get<std::int32_t>(value));
  }
  static Variant give(std::uint32_t value) { return static_cast<std::int32_t>(value); }
};

template <class Enumeration>
requires std::is_enum_v<Enumeration>
struct Interface<Enumeration> {
  static constexpr Type type = Type::int32;
  static Enumeration take(const Variant& value) {
    return static_cast<Enumeration>(std::get<std::int32_t>(value));
  }
  static Variant give(Enumeration value) { return static_cast<std::int32_t>(value); }
};

template <class T>
struct Interface<std::shared_ptr<T>> {
  static constexpr Type type = Type::object;
  /// @throws InvalidArgument for an object of another type.
  static std::shared_ptr<T> take(const Variant& value) {
    const auto& reference = std::get<ObjectReference>(value);
    if (reference.pointer && reference.type != typeid(T)) throw InvalidArgument("an object of another type");
    return std::static_pointer_cast<T>(reference.pointer);
  }
  static Variant give(const std::shared_ptr<T>& value) {
    return ObjectReference{std::const_pointer_cast<std::remove_const_t<T>>(value), typeid(T)};
  }
};

template <class T>
struct Interface<std::optional<T>> {
  static constexpr Type type = Interface<T>::type;
  static std::optional<T> take(const Variant& value) {
    if (std::holds_alternative<std::monostate>(value)) return std::nullopt;
    return Interface<T>::take(value);
  }
};

template <class T>
inline constexpr bool is_optional = false;
template <class T>
inline constexpr bool is_optional<std::optional<T>> = true;

/// Writes a ClassInfo down, member by member. The types come from the signatures of the functions given,
/// whose first parameter is the object: a reference parameter behind it is an argument by reference.
template <class Class>
class ClassBuilder {
  template <class T>
  using Bare = std::remove_cvref_t<T>;

 public:
  explicit ClassBuilder(std::string name) { info_.name = std::move(name); }

  template <class Get>
  ClassBuilder& read_only(std::string name, std::string meaning, Get getter) {
    return add(std::move(name), MemberKind::get, std::move(meaning), {}, getter);
  }

  template <class Get, class Let>
  ClassBuilder& property(std::string name, std::string meaning, Get getter, Let setter) {
    read_only(name, meaning, getter);
    return add(std::move(name), MemberKind::let, std::move(meaning), {"v"}, setter);
  }

  /// A property of two members of one name, told as &Class::Name twice.
  template <class Value, class Passed, class Reader, class Writer>
  ClassBuilder& property(std::string name, std::string meaning, Value (Reader::*getter)() const,
                         void (Writer::*setter)(Passed)) {
    return property(
        std::move(name), std::move(meaning), [getter](const Class& object) { return (object.*getter)(); },
        [setter](Class& object, Bare<Passed> v) { (object.*setter)(std::move(v)); });
  }
  template <class Value, class Base>
  ClassBuilder& read_only(std::string name, std::string meaning, Value (Base::*getter)() const) {
    return read_only(std::move(name), std::move(meaning),
                     [getter](const Class& object) { return (object.*getter)(); });
  }

  /// A public data member.
  template <class T, class Base>
  ClassBuilder& field(std::string name, std::string meaning, T Base::*member) {
    return property(
        std::move(name), std::move(meaning), [member](const Class& object) { return object.*member; },
        [member](Class& object, const T& v) { object.*member = v; });
  }

  /// A property that takes an object.
  template <class Get, class Set>
  ClassBuilder& object(std::string name, std::string meaning, Get getter, Set setter) {
    read_only(name, meaning, getter);
    return add(std::move(name), MemberKind::set, std::move(meaning), {"v"}, setter);
  }

  template <class Method>
  ClassBuilder& method(std::string name, std::string meaning, std::initializer_list<const char*> arguments,
                       Method method) {
    return add(std::move(name), MemberKind::method, std::move(meaning), arguments, method);
  }

  /// The property told last takes its values from an enumeration, told before.
  ClassBuilder& from(const std::string& enumeration) {
    const std::string property = info_.members.back().name;
    for (MemberInfo& member : info_.members)
      if (member.name == property) member.enumeration = enumeration;
    return *this;
  }

  ClassBuilder& enumeration(EnumInfo enumeration) {
    info_.enumerations.push_back(std::move(enumeration));
    return *this;
  }
  ClassBuilder& event(EventInfo event) {
    info_.events.push_back(std::move(event));
    return *this;
  }
  ClassBuilder& stored(std::string key, Type type, std::optional<Variant> fallback, std::string property) {
    if (fallback) fallback = converted(*fallback, type);
    info_.stored.push_back({std::move(key), type, std::move(fallback), std::move(property)});
    return *this;
  }

  ClassInfo build() { return std::move(info_); }

 private:
  template <class Function>
  ClassBuilder& add(std::string name, MemberKind kind, std::string meaning,
                    std::initializer_list<const char*> argument_names, Function function) {
    MemberInfo member{std::move(name), kind, std::move(meaning), Type::none, {}, {}, {}};
    describe(member, argument_names, function, &Function::operator());
    info_.members.push_back(std::move(member));
    return *this;
  }

  template <class Function, class Result, class Self, class... Arguments>
  static void describe(MemberInfo& member, std::initializer_list<const char*> names, Function function,
                       Result (Function::*)(Self&, Arguments...) const) {
    static_assert(std::is_same_v<std::remove_const_t<Self>, Class>);
    if (names.size() != sizeof...(Arguments))
      throw InvalidArgument(member.name + ": a name for each argument");
    if constexpr (!std::is_void_v<Result>) member.result = Interface<Bare<Result>>::type;
    auto name = names.begin();
    (member.arguments.push_back({*name++, Interface<Bare<Arguments>>::type, std::is_reference_v<Arguments>,
                                 is_optional<Bare<Arguments>>}),
     ...);
    member.call = [function](void* object, std::span<Variant> values) {
      return call_with<Result, Arguments...>(function, *static_cast<Class*>(object), values,
                                             std::index_sequence_for<Arguments...>());
    };
  }

  template <class Result, class... Arguments, class Function, std::size_t... i>
  static Variant call_with(const Function& function, Class& object,
                           [[maybe_unused]] std::span<Variant> values, std::index_sequence<i...>) {
    std::tuple<Bare<Arguments>...> passed{Interface<Bare<Arguments>>::take(values[i])...};
    const auto give_back = [&] { ((give_argument_back<Arguments>(values[i], std::get<i>(passed))), ...); };
    if constexpr (std::is_void_v<Result>) {
      function(object, std::get<i>(passed)...);
      give_back();
      return {};
    } else {
      Variant result = Interface<Bare<Result>>::give(function(object, std::get<i>(passed)...));
      give_back();
      return result;
    }
  }

  template <class Argument, class Value>
  static void give_argument_back(Variant& variant, Value& value) {
    if constexpr (std::is_lvalue_reference_v<Argument> && !std::is_const_v<std::remove_reference_t<Argument>>)
      variant = Interface<Value>::give(std::move(value));
  }

  ClassInfo info_;
};

}  // namespace mirolen::automation
