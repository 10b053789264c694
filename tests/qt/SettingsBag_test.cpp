#include "mirolen/qt/SettingsBag.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <cmath>
#include <filesystem>
#include <limits>

#include "mirolen/controls/descriptions.h"
#include "mirolen/qt/Picture.h"
#include "qt/qt_support.h"
#include "support/SpecialFiles.h"

namespace mirolen {
namespace {

using namespace qt_test;
using automation::ObjectReference;
using automation::Variant;
using qt::SettingsBag;

class SettingsFile : public testing::Test {
 protected:
  /// The value as it comes back from the file.
  Variant kept(const Variant& value) {
    SettingsBag out(path_);
    out.write("key", value, {});
    out.save();
    return SettingsBag(path_).read("key", std::string("fallback"));
  }
  void fill(const QByteArray& content) {
    QFile file(path_);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
  }
  template <class Action>
  std::string error_of(Action act) {
    try {
      act();
    } catch (const FileError& error) {
      return error.what();
    }
    return "no error";
  }

  QTemporaryDir directory_;
  QString path_ = directory_.filePath("map.json");
};

TEST_F(SettingsFile, BringsEveryTypeBackExactly) {
  const Variant values[] = {std::int16_t{-32768},
                            std::int16_t{5},
                            std::int32_t{5},
                            std::numeric_limits<std::int32_t>::min(),
                            std::numeric_limits<std::int32_t>::max(),
                            0.1,
                            -0.0,
                            5.0,
                            1.7976931348623157e308,
                            5e-324,
                            true,
                            false,
                            std::string(),
                            std::string("True"),
                            std::string("Öl \"µm\"\n\\ 5")};
  for (const Variant& value : values) {
    const Variant back = kept(value);
    EXPECT_EQ(back.index(), value.index());
    EXPECT_EQ(back, value);
  }
  EXPECT_TRUE(std::signbit(std::get<double>(kept(-0.0))));
  EXPECT_TRUE(std::isnan(std::get<double>(kept(std::nan("")))));
}

TEST_F(SettingsFile, KeepsAPicture) {
  QImage icon(7, 5, QImage::Format_ARGB32);
  icon.fill(QColor(10, 20, 30, 40));
  const std::shared_ptr<Image> picture = std::make_shared<qt::Picture>(icon);
  const auto back = std::get<ObjectReference>(kept(ObjectReference{picture, typeid(Image)}));
  ASSERT_TRUE(back.type == typeid(Image) && back.pointer);
  const auto& image = dynamic_cast<const qt::Picture&>(*static_cast<Image*>(back.pointer.get())).image();
  EXPECT_EQ(image.convertToFormat(QImage::Format_ARGB32), icon);
  EXPECT_EQ(kept(ObjectReference{nullptr, typeid(Image)}), Variant(ObjectReference{nullptr, typeid(Image)}));
}

TEST_F(SettingsFile, GivesTheFallbackForWhatIsMissingOrDamaged) {
  EXPECT_EQ(SettingsBag(path_).read("key", 3.5), Variant(3.5));
  for (const char* entry :
       {"5", "{}", R"({"type":"16-bit integer","value":70000})", R"({"type":"Double","value":"x"})",
        R"({"type":"32-bit integer","value":1.5})", R"({"type":"boolean","value":"yes"})",
        R"({"type":"object","value":"AAAA"})", R"({"type":"text","value":5})"}) {
    fill(QByteArray(R"({"key":)") + entry + "}");
    EXPECT_EQ(SettingsBag(path_).read("key", 3.5), Variant(3.5)) << entry;
  }
}

TEST_F(SettingsFile, RefusesValuesThatNoPropertyHas) {
  SettingsBag bag(path_);
  EXPECT_THROW(bag.write("key", Array(1, 3), {}), InvalidArgument);
  EXPECT_THROW(bag.write("key", ObjectReference{std::make_shared<int>(5), typeid(int)}, {}), InvalidArgument);
}

TEST_F(SettingsFile, TellsWhatIsWrongWithAFile) {
  fill("{\"key\": ");
  EXPECT_THAT(error_of([&] { SettingsBag bag(path_); }), testing::HasSubstr("map.json: no settings"));
  fill("[1, 2]");
  EXPECT_THAT(error_of([&] { SettingsBag bag(path_); }), testing::HasSubstr("map.json: no settings"));
}

TEST_F(SettingsFile, TellsWhenItCannotBeWritten) {
  const QString nowhere = directory_.filePath("no/such/folder/map.json");
  EXPECT_THAT(error_of([&] { SettingsBag(nowhere).save(); }), testing::HasSubstr("folder/map.json: "));
  ASSERT_TRUE(QDir().mkpath(path_));
  EXPECT_THAT(error_of([&] {
                SettingsBag bag(path_);
                bag.save();
              }),
              testing::HasSubstr("map.json: "));
}

TEST_F(SettingsFile, IsARegularFile) {
  const SpecialFiles specials(directory_.path().toStdString());
  ASSERT_GE(specials.paths().size(), 6u);
  const SettingsBag bag(path_);
  for (const std::string& special : specials.paths()) {
    const QString path = QString::fromStdString(special);
    EXPECT_EQ(error_of([&] { SettingsBag other(path); }), special + ": not a regular file");
  }
  EXPECT_TRUE(specials.stand());
}

TEST_F(SettingsFile, ReplacesNothingElse) {
  SettingsBag bag(path_);
  bag.write("key", 3.5, {});
  ASSERT_EQ(mkfifo(path_.toStdString().c_str(), 0600), 0);
  EXPECT_EQ(error_of([&] { bag.save(); }), path_.toStdString() + ": not a regular file");
  EXPECT_FALSE(std::filesystem::is_regular_file(path_.toStdString()));
}

TEST_F(SettingsFile, MayBeALinkThatStays) {
  const QString link = directory_.filePath("link.json");
  for (const bool exists : {false, true}) {
    if (!exists) {
      ASSERT_TRUE(QFile::link(path_, link));
    }
    SettingsBag bag(link);
    bag.write("key", exists ? 2.5 : 1.5, {});
    bag.save();
    EXPECT_TRUE(QFileInfo(link).isSymLink());
    EXPECT_EQ(SettingsBag(path_).read("key", 0.0), Variant(exists ? 2.5 : 1.5));
  }
}

TEST_F(SettingsFile, IsNotReadBeyondAllMeasure) {
  fill("{}");
  QFile file(path_);
  ASSERT_TRUE(file.resize((qint64{64} << 20) + 1));  // a hole takes no room
  EXPECT_EQ(error_of([&] { SettingsBag bag(path_); }),
            path_.toStdString() + ": no settings, the file is too large");
}

TEST_F(SettingsFile, CarriesTheSettingsOfOneControlToAnother) {
  qt::Plot2D first, second;
  first.setResolution(3);
  first.setPlotCaption("Oxid µm");
  first.setIntervalColor(4, QColor(1, 2, 3));
  first.setHideLegend(true);
  QPixmap icon(9, 9);
  icon.fill(Qt::green);
  first.setMouseIcon(icon);

  SettingsBag out(path_);
  automation::WriteProperties({&description_of_Plot2D(), &first.control()}, out);
  out.save();
  automation::ReadProperties({&description_of_Plot2D(), &second.control()}, SettingsBag(path_));
  EXPECT_EQ(second.Resolution(), 3);
  EXPECT_EQ(second.PlotCaption(), "Oxid µm");
  EXPECT_EQ(second.IntervalColor(4), QColor(1, 2, 3));
  EXPECT_TRUE(second.HideLegend());
  EXPECT_EQ(second.MouseIcon().size(), QSize(9, 9));
}

}  // namespace
}  // namespace mirolen
