#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace mirolen {

/// Makes the text of another language from an English one, both UTF-8. An empty answer counts as none.
using Translator = std::function<std::string(std::string_view english)>;

/// Puts a translator in force for the whole process, none for an empty one, and gives back the one before, to
/// be restored. There is no lock: it is set while no wafer works on another thread, and is called on each
/// thread on which a wafer writes a text or tells an error. What it captures lives as long as it is in force.
/// Texts are translated when they are set, so controls and open forms keep theirs: a translator comes before
/// the first control.
Translator set_translator(Translator translator);

/// The text in the language in force: the English one itself without a translator, and where that knows none.
/// Only for texts that are shown; no decision and no stored key may hang on one. Costs what the translator
/// does.
std::string tr(std::string_view english);

/// Marks an English text that is translated where it is shown.
constexpr const char* translatable(const char* english) { return english; }

}  // namespace mirolen
