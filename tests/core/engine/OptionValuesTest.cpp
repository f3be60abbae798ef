#include "core/engine/OptionValues.h"
#include "core/profiles/Settings.h"

#include <gtest/gtest.h>

using namespace tavrin;
using namespace Qt::StringLiterals;

namespace {

TEST(PropertyOptionValues, TextOptionsReadAsIntegersAndBooleansByTheirLeadingDigits)
{
    Settings settings;
    settings.setAlphaNumericIncrementBy(u" 12ab"_s);
    settings.setAlphaNumericDecrementBy(u"x"_s);
    settings.setGeneralFileNameCase(3);
    settings.setIsFolders(true);
    const PropertyOptionValues values(settings);

    EXPECT_EQ(values.integer(Settings::alphaNumericIncrementByKey), 12);
    EXPECT_EQ(values.integer(Settings::alphaNumericDecrementByKey), 0);
    EXPECT_EQ(values.integer(Settings::generalFileNameCaseKey), 3);
    EXPECT_TRUE(values.boolean(Settings::alphaNumericIncrementByKey));
    EXPECT_FALSE(values.boolean(Settings::alphaNumericDecrementByKey));
    EXPECT_TRUE(values.boolean(Settings::isFoldersKey));
    EXPECT_EQ(values.text(Settings::alphaNumericIncrementByKey), u" 12ab"_s);
}

TEST(PropertyOptionValues, AreTakenWhenMadeAndAnUnknownKeyReadsAsEmpty)
{
    Settings settings;
    settings.setReplaceRemoveThis(u"before"_s);
    const PropertyOptionValues values(settings);
    settings.setReplaceRemoveThis(u"after"_s);

    EXPECT_EQ(values.text(Settings::replaceRemoveThisKey), u"before"_s);
    EXPECT_EQ(values.text("noSuchOption"), QString());
    EXPECT_EQ(values.integer("noSuchOption"), 0);
    EXPECT_FALSE(values.boolean("noSuchOption"));
}

}  // namespace
