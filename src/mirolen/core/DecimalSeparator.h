#pragma once

#include <string>

namespace mirolen {

/// The library-wide decimal separator of all texts: "." until the first wafer is made. One thread, as all
/// else.
const std::string& decimal_separator();

/// Takes the decimal separator from the C locale in force at the moment of construction.
struct DecimalSeparatorFromLocale {
  DecimalSeparatorFromLocale();
};

}  // namespace mirolen
