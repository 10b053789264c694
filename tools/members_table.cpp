// members_table          writes the page to standard output
// members_table --check FILE   fails unless FILE holds the page

#include <fstream>
#include <iostream>
#include <iterator>
#include <sstream>

#include "mirolen/controls/descriptions.h"

namespace {

using namespace mirolen;
using namespace mirolen::automation;

const ClassInfo* const classes[] = {&description_of_LineScan(),  &description_of_Plot2D(),
                                    &description_of_Plot2DS(),   &description_of_Plot2DC(),
                                    &description_of_Plot2DN(),   &description_of_Plot2DB(),
                                    &description_of_Plot3D(),    &description_of_Plot3DS(),
                                    &description_of_Histogram(), &description_of_wafer()};

std::string in_table(std::string text) {
  for (std::size_t at = 0; (at = text.find('|', at)) != std::string::npos; at += 2) text.insert(at, 1, '\\');
  return text;
}

std::string arguments_of(const MemberInfo& member) {
  std::string text;
  for (const ArgumentInfo& argument : member.arguments) {
    if (!text.empty()) text += ", ";
    text += "`" + argument.name + "` " + name_of(argument.type);
    if (argument.by_reference) text += " by reference";
    if (argument.optional) text += ", optional";
  }
  return text;
}

std::string type_of_property(const ClassInfo& info, const MemberInfo& getter) {
  std::string type = getter.enumeration.empty() ? name_of(getter.result) : "`" + getter.enumeration + "`";
  const bool writable = info.find(getter.name, MemberKind::let) || info.find(getter.name, MemberKind::set);
  return writable ? type : type + ", read-only";
}

void write_members(std::ostream& out, const ClassInfo& info) {
  out << "\n## `" << info.name << "`\n\n| Property | Type | Meaning |\n|---|---|---|\n";
  for (const MemberInfo& member : info.members)
    if (member.kind == MemberKind::get)
      out << "| `" << member.name << "` | " << type_of_property(info, member) << " | "
          << in_table(member.meaning) << " |\n";
  out << "\n| Method | Arguments | Result | Meaning |\n|---|---|---|---|\n";
  for (const MemberInfo& member : info.members)
    if (member.kind == MemberKind::method)
      out << "| `" << member.name << "` | " << arguments_of(member) << " | " << name_of(member.result)
          << " | " << in_table(member.meaning) << " |\n";
}

void write_rest(std::ostream& out, const ClassInfo& info) {
  for (const EnumInfo& enumeration : info.enumerations) {
    out << "\n`" << enumeration.name << "`:";
    for (const auto& [name, value] : enumeration.values) out << " `" << name << "` = " << value << ";";
    out << "\n";
  }
  if (!info.stored.empty()) out << "\nStored under, in this order:";
  for (const StoredKey& key : info.stored) out << " \"" << key.key << "\" (" << name_of(key.type) << "),";
  if (!info.stored.empty()) out << " and nothing else.\n";
}

std::string page() {
  std::ostringstream out;
  out << "# Members\n\nEvery member of every class, as it is called by name. This page is written by the "
         "program\n"
         "`members_table` from the descriptions in the code.\n\nEvents of every control: `Click`, "
         "`DblClick`, and "
         "`MouseDown`, `MouseMove`, `MouseUp`\nwith `Button`, `Shift`, `x`, `y`.\n";
  for (const ClassInfo* info : classes) {
    write_members(out, *info);
    write_rest(out, *info);
  }
  return out.str();
}

}  // namespace

int main(int argc, char** argv) {
  if (argc == 1) {
    std::cout << page();
    return 0;
  }
  if (argc != 3 || std::string(argv[1]) != "--check") {
    std::cerr << "usage: members_table [--check FILE]\n";
    return 2;
  }
  std::ifstream file(argv[2]);
  const std::string held((std::istreambuf_iterator<char>(file)), {});
  if (held == page()) return 0;
  std::cerr << argv[2] << " is out of date: write it anew with members_table\n";
  return 1;
}
