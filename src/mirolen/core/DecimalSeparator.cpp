#include "mirolen/core/DecimalSeparator.h"

#include <clocale>

namespace mirolen {
namespace {

std::string separator = ".";

}  // namespace

const std::string& decimal_separator() { return separator; }

DecimalSeparatorFromLocale::DecimalSeparatorFromLocale() { separator = std::localeconv()->decimal_point; }

}  // namespace mirolen
