#pragma once

#include <QLocale>

namespace mirolen::qt {

/// Puts the texts of the library in the language of a locale, from the catalogues that it brings, and in
/// English where there is none. Texts go through QCoreApplication::translate in the context "mirolen", so a
/// translator of the host's can bring a language more. Needs the application, and comes before the first
/// control, which keeps the texts that it is made with; a later call replaces the one before. Not for
/// numbers: these follow the locale of the C library. @return whether there is a catalogue, or none is
/// needed.
bool install_translations(const QLocale& locale = QLocale());

}  // namespace mirolen::qt
