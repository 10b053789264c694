#include "mirolen/automation/ClassInfo.h"

#include <algorithm>

namespace mirolen::automation {
namespace {

/// The arguments as the member takes them, those left out empty.
std::vector<Variant> complete(const MemberInfo& member, const std::vector<Variant>& given) {
  if (given.size() > member.arguments.size()) throw InvalidArgument(member.name + " takes fewer arguments");
  std::vector<Variant> arguments(member.arguments.size());
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const ArgumentInfo& wanted = member.arguments[i];
    const bool missing = i >= given.size() || std::holds_alternative<std::monostate>(given[i]);
    if (missing && !wanted.optional)
      throw InvalidArgument(member.name + " lacks its argument " + wanted.name);
    if (!missing) arguments[i] = converted(given[i], wanted.type);
  }
  return arguments;
}

}  // namespace

const MemberInfo* ClassInfo::find(std::string_view member, MemberKind kind) const {
  const auto found = std::find_if(members.begin(), members.end(), [&](const MemberInfo& candidate) {
    return candidate.name == member && candidate.kind == kind;
  });
  return found == members.end() ? nullptr : &*found;
}

Variant invoke(const Object& object, std::string_view member, MemberKind kind,
               std::vector<Variant>& arguments) {
  const MemberInfo* found = object.info->find(member, kind);
  if (!found) throw InvalidArgument(object.info->name + " has no such member: " + std::string(member));
  std::vector<Variant> passed = complete(*found, arguments);
  const Variant result = found->call(object.instance, passed);
  for (std::size_t i = 0; i < arguments.size(); ++i)
    if (found->arguments[i].by_reference) arguments[i] = std::move(passed[i]);
  return result;
}

Variant get(const Object& object, std::string_view property) {
  std::vector<Variant> none;
  return invoke(object, property, MemberKind::get, none);
}

void let(const Object& object, std::string_view property, Variant value) {
  const bool by_reference = object.info->find(property, MemberKind::set) != nullptr;
  std::vector<Variant> arguments{std::move(value)};
  invoke(object, property, by_reference ? MemberKind::set : MemberKind::let, arguments);
}

Variant call(const Object& object, std::string_view method, std::vector<Variant> arguments) {
  return invoke(object, method, MemberKind::method, arguments);
}

}  // namespace mirolen::automation
