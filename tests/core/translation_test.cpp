#include "mirolen/core/translation.h"

#include <gtest/gtest.h>

#include "support/translators.h"

namespace mirolen {
namespace {

TEST(Translation, IsTheTextItselfWithoutATranslator) {
  EXPECT_EQ(tr("Mean:"), "Mean:");
  EXPECT_EQ(tr(""), "");
}

TEST(Translation, IsWhatTheTranslatorMakesOfIt) {
  const TranslatorInForce loud(shouted);
  EXPECT_EQ(tr("Mean: "), "MEAN: ");
}

TEST(Translation, KeepsTheTextThatTheTranslatorDoesNotKnow) {
  const TranslatorInForce one([](std::string_view text) { return text == "Mean" ? "Mittelwert" : ""; });
  EXPECT_EQ(tr("Mean"), "Mittelwert");
  EXPECT_EQ(tr("Flat"), "Flat");
}

TEST(Translation, DoesNotAskForTheEmptyText) {
  int asked = 0;
  const TranslatorInForce counting([&](std::string_view) { return ++asked, "header"; });
  EXPECT_EQ(tr(""), "");
  EXPECT_EQ(asked, 0);
}

TEST(Translation, GivesBackTheTranslatorBefore) {
  {
    const TranslatorInForce loud(shouted);
    {
      const TranslatorInForce none({});
      EXPECT_EQ(tr("Flat"), "Flat");
    }
    EXPECT_EQ(tr("Flat"), "FLAT");
  }
  EXPECT_EQ(tr("Flat"), "Flat");
}

}  // namespace
}  // namespace mirolen
