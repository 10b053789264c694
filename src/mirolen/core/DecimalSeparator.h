#pragma once

#include <string>

namespace mirolen {

/// The library-wide decimal separator of all texts: "." until the first wafer is made, then that of the wafer
/// made last. Safe on every thread.
std::string decimal_separator();

/// Takes the decimal separator from the C locale in force at the moment of construction.
struct DecimalSeparatorFromLocale {
  DecimalSeparatorFromLocale();
};

}  // namespace mirolen
