#pragma once

#include <QJsonObject>
#include <QString>

#include "mirolen/automation/PropertyBag.h"

namespace mirolen::qt {

/// The settings of one control in a JSON file, each with its type, so that they come back exactly. An object
/// is kept if it is a picture, as a PNG.
///
///     SettingsBag bag(path);
///     mirolen::automation::WriteProperties(object, bag);
///     bag.save();
class SettingsBag : public automation::PropertyBag {
 public:
  /// Reads the file; one that does not exist yet is an empty bag.
  /// @throws FileError, which names the file, where it cannot be read, holds no settings, has more than 64
  /// MB, or is a device or a pipe.
  explicit SettingsBag(QString file);

  /// An entry that is damaged counts as missing.
  automation::Variant read(const std::string& key, const automation::Variant& fallback) const override;
  /// Keeps the value until `save`, also one equal to its fallback. @throws InvalidArgument for a value of a
  /// kind that no property has: an array, an object that is no picture of this toolkit.
  void write(const std::string& key, const automation::Variant& value,
             const automation::Variant& fallback) override;

  /// Writes the file, or the one that it links to, all of it or nothing. @throws FileError, which names the
  /// file and what is wrong with it.
  void save() const;

 private:
  QString file_;
  QJsonObject values_;
};

}  // namespace mirolen::qt
