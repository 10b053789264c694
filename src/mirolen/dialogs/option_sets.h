#pragma once

#include <cstdint>
#include <initializer_list>

#include "mirolen/core/translation.h"

// Sets of options, which are ControlArrays of OptionButtons in one group, under the numbers of what they
// stand for.
namespace mirolen {

template <class Options>
void name(const Options& options, std::initializer_list<const char*> captions) {
  int i = Options::LBound();
  for (const char* caption : captions) options(i++).Caption = tr(caption);
}

/// Chooses the option of a number; none where there is no such option.
template <class Options>
void choose(const Options& options, int number) {
  for (int i = Options::LBound(); i <= Options::UBound(); ++i) options(i).Value(i == number);
}

/// The number of the chosen option, or one for none.
template <class Options>
std::int16_t chosen(const Options& options, std::int16_t otherwise) {
  for (int i = Options::LBound(); i <= Options::UBound(); ++i)
    if (options(i).Value()) return static_cast<std::int16_t>(i);
  return otherwise;
}

}  // namespace mirolen
