#pragma once

#include <gtest/gtest.h>

#include "mirolen/core/translation.h"
#include "mirolen/qt/translations.h"

namespace mirolen::qt_test {

/// All texts in German as long as this lives.
struct InGerman {
  InGerman() { EXPECT_TRUE(qt::install_translations(QLocale("de"))); }
  ~InGerman() {
    qt::install_translations(QLocale(QLocale::English));
    set_translator({});
  }
  InGerman(const InGerman&) = delete;
  InGerman& operator=(const InGerman&) = delete;
};

}  // namespace mirolen::qt_test
