#pragma once

#include <algorithm>
#include <cctype>
#include <string>
#include <utility>

#include "mirolen/core/translation.h"

namespace mirolen {

/// A translator in force as long as this lives.
class TranslatorInForce {
 public:
  explicit TranslatorInForce(Translator translator) : before_(set_translator(std::move(translator))) {}
  ~TranslatorInForce() { set_translator(std::move(before_)); }
  TranslatorInForce(const TranslatorInForce&) = delete;
  TranslatorInForce& operator=(const TranslatorInForce&) = delete;

 private:
  Translator before_;
};

/// A language that shouts.
inline std::string shouted(std::string_view english) {
  std::string text(english);
  std::transform(text.begin(), text.end(), text.begin(),
                 [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
  return text;
}

}  // namespace mirolen
