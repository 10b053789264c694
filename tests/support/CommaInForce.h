#pragma once

#include <gtest/gtest.h>

#include <clocale>
#include <string>

#include "mirolen/core/wafer.h"

namespace mirolen {

/// A locale with a decimal comma, as a program takes it from the system. A wafer looks for it when it is
/// made.
class CommaInForce {
 public:
  CommaInForce() : before_(std::setlocale(LC_ALL, nullptr)) {
    EXPECT_NE(std::setlocale(LC_ALL, "de_DE.UTF-8"), nullptr)
        << "needs the locale de_DE.UTF-8: localedef -i de_DE -f UTF-8 de_DE.UTF-8";
    const wafer made_in_this_locale;
  }
  ~CommaInForce() {
    std::setlocale(LC_ALL, before_.c_str());
    const wafer made_as_before;
  }
  CommaInForce(const CommaInForce&) = delete;
  CommaInForce& operator=(const CommaInForce&) = delete;

 private:
  const std::string before_;
};

}  // namespace mirolen
