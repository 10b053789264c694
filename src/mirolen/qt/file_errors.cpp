#include "mirolen/qt/file_errors.h"

#include <QFileInfo>
#include <filesystem>

#include "mirolen/core/RunTimeError.h"
#include "mirolen/qt/translate.h"

namespace mirolen::qt {

void raise_file_error(const QString& file, const QString& reason) {
  throw FileError(utf8_of(file) + ": " + utf8_of(reason));
}

void refuse_special_file(const QString& file) {
  const QFileInfo found(file);
  if (found.exists() && !found.isFile()) raise_file_error(file, text_of(mirolen::tr("not a regular file")));
}

}  // namespace mirolen::qt
