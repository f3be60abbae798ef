#include "core/text/LocalizedStrings.h"

#include <gtest/gtest.h>

using namespace tavrin;

// The TAVRINTEST keys come from tables compiled into this test only (tests/core/text/data):
// all three in English, two of them in French.
namespace {

class LocalizedStringsTest : public ::testing::Test {
protected:
    void TearDown() override { LocalizedStrings::setLanguage(QStringLiteral("en")); }
};

struct LookupRow {
    const char* language;
    const char* key;
    const char* expected;
};

TEST_F(LocalizedStringsTest, LooksUpTheCurrentLanguageThenEnglishThenTheKeyItself)
{
    const LookupRow rows[] = {
        {"en", "TAVRINTESTGREETING", "Hello"},
        {"en", "TAVRINTESTENGLISHONLY", "Only in English"},
        {"en", "TAVRINTESTNOWHERE", "TAVRINTESTNOWHERE"},
        {"fr", "TAVRINTESTGREETING", "Bonjour"},
        {"fr", "TAVRINTESTENGLISHONLY", "Only in English"},
        {"fr", "TAVRINTESTNOWHERE", "TAVRINTESTNOWHERE"},
        // Keys are matched exactly.
        {"en", "tavrintestgreeting", "tavrintestgreeting"},
        {"en", "", ""},
    };
    for (const LookupRow& row : rows) {
        LocalizedStrings::setLanguage(QString::fromLatin1(row.language));
        EXPECT_EQ(LocalizedStrings::text(QString::fromLatin1(row.key)), QString::fromUtf8(row.expected))
            << row.language << " " << row.key;
        EXPECT_EQ(localized(row.key), QString::fromUtf8(row.expected)) << row.language << " " << row.key;
    }
}

TEST_F(LocalizedStringsTest, AnUnknownLanguageSelectsEnglish)
{
    LocalizedStrings::setLanguage(QStringLiteral("fr"));
    ASSERT_EQ(LocalizedStrings::language(), QStringLiteral("fr"));
    LocalizedStrings::setLanguage(QStringLiteral("xx"));
    EXPECT_EQ(LocalizedStrings::language(), QStringLiteral("en"));
    EXPECT_EQ(localized("TAVRINTESTGREETING"), QStringLiteral("Hello"));
}

TEST_F(LocalizedStringsTest, AreaFilesOfALanguageMergeIntoOneTable)
{
    const QStringList english = LocalizedStrings::keys(QStringLiteral("en"));
    EXPECT_TRUE(english.contains(QStringLiteral("TAVRINTESTENGLISHONLY")));
    EXPECT_TRUE(english.contains(QStringLiteral("UNABLETOGENERATENEWFILENAMEERROR")));
    const QStringList french = LocalizedStrings::keys(QStringLiteral("fr"));
    EXPECT_TRUE(french.contains(QStringLiteral("TAVRINTESTGREETING")));
    EXPECT_FALSE(french.contains(QStringLiteral("TAVRINTESTENGLISHONLY")));
}

TEST_F(LocalizedStringsTest, FormatTextsKeepTheirPlaceholdersPerLanguage)
{
    EXPECT_EQ(localized("TAVRINTESTFORMAT").arg(3).arg(7), QStringLiteral("3 of 7 done"));
    LocalizedStrings::setLanguage(QStringLiteral("fr"));
    EXPECT_EQ(localized("TAVRINTESTFORMAT").arg(3).arg(7), QString::fromUtf8("3 sur 7 terminés"));
}

TEST_F(LocalizedStringsTest, TheActionErrorTextCarriesItsReason)
{
    const QString text = localized("UNABLETOGENERATENEWFILENAMEERROR");
    ASSERT_NE(text, QStringLiteral("UNABLETOGENERATENEWFILENAMEERROR"));
    EXPECT_TRUE(text.arg(QStringLiteral("out of memory")).contains(QStringLiteral("out of memory")));
}

}  // namespace
