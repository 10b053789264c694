#include "mirolen/core/translation.h"

#include <utility>

namespace mirolen {
namespace {

Translator& translator_in_force() {
  static Translator translator;
  return translator;
}

}  // namespace

Translator set_translator(Translator translator) {
  return std::exchange(translator_in_force(), std::move(translator));
}

std::string tr(std::string_view english) {
  const Translator& translator = translator_in_force();
  const std::string translated = translator && !english.empty() ? translator(english) : std::string();
  return translated.empty() ? std::string(english) : translated;
}

}  // namespace mirolen
