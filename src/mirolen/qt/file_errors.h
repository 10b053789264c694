#pragma once

#include <QString>

namespace mirolen::qt {

/// @throws FileError, which names the file.
[[noreturn]] void raise_file_error(const QString& file, const QString& reason);

/// Lets a regular file pass, a link to one, and one that does not exist yet. What is read from a pipe or a
/// device may never end, and what is written in the place of one takes it away. @throws FileError.
void refuse_special_file(const QString& file);

}  // namespace mirolen::qt
