#include "core/profiles/Settings.h"
#include "core/profiles/SettingsRecord.h"
#include "core/profiles/Tabs.h"
#include "core/rules/StepRecord.h"
#include "core/text/LocalizedStrings.h"

#include <QTimeZone>
#include <functional>
#include <gtest/gtest.h>

#include "support/QtPrinters.h"

inline void PrintTo(const QVariant& value, std::ostream* out)
{
    *out << value.typeName() << ' ' << value.toString().toStdString();
}

using namespace tavrin;
using namespace Qt::StringLiterals;

namespace {

using Prepare = std::function<void(Settings&)>;

RuleStep builtStep(int tab, const Prepare& setup)
{
    Settings settings;
    settings.setSelectedTab(tab);
    if (setup)
        setup(settings);
    return getRule(settings).step.value_or(RuleStep());
}

struct FormRow {
    int tab;
    Prepare setup;
    const char* rule;
    const char* type;
    int keyCount;  // the common three and the options of the kind
    QVariantMap samples;
};

TEST(StepRecord, EachTabStoresItsKindWithItsKeysInTheirForms)
{
    const FormRow rows[] = {
        {tabs::AlphaNumeric, nullptr, "AlphaNumeric", "Numeric", 15,
         {{u"isAlphaNumericIncrement"_s, u"1"_s}, {u"alphaNumericNumericStartWith"_s, u"1"_s}, {u"sequence"_s, -1}}},
        {tabs::AlphaNumeric, [](Settings& s) { s.chooseNumericOrAlphabetic(1); }, "AlphaNumeric", "Alphabetic", 15,
         {{u"alphaNumericAlphabeticStartWith"_s, u"a"_s}}},
        {tabs::InsertDelete, [](Settings& s) { s.setInsertDeleteInsert(u"x"_s); s.chooseInsertPosition(2); },
         "InsertDelete", "Insert", 11, {{u"insertDeleteInsertOptionIndex"_s, u"2"_s}}},
        {tabs::InsertDelete, [](Settings& s) { s.chooseInsertOrDelete(1); }, "InsertDelete", "Delete", 6,
         {{u"isInsertDeleteDeleteFromBackWard"_s, u"0"_s}}},
        {tabs::ReplaceRemove, [](Settings& s) { s.setReplaceRemoveThis(u"a"_s); }, "ReplaceRemove", "Replace", 12,
         {{u"replaceRemoveWith"_s, QString()}, {u"replaceRemovePositionDirection"_s, u"0"_s},
          {u"isReplaceRemoveRegularExpression"_s, u"0"_s}}},
        {tabs::ReplaceRemove, [](Settings& s) { s.setReplaceRemoveThis(u"a"_s); s.chooseReplaceRemoveMode(2); },
         "ReplaceRemove", "Remove Characters", 11, {}},
        {tabs::ReplaceRemove, [](Settings& s) { s.setReplaceRemoveThis(u"a"_s); s.chooseReplaceRemoveMode(1); },
         "ReplaceRemove", "Remove", 11, {}},
        {tabs::PrefixSuffix, nullptr, "PrefixSuffix", "As String", 22, {{u"prefixSuffixDatePart1"_s, u"dd"_s}}},
        {tabs::PrefixSuffix, [](Settings& s) { s.choosePrefixSuffixMode(1); }, "PrefixSuffix", "As Date", 22,
         {{u"isPrefixSuffixDate"_s, u"1"_s}}},
        {tabs::DateTime,
         [](Settings& s) { s.setDateTimeCustomDate(QDateTime(QDate(2024, 3, 5), QTime(14, 30), QTimeZone::utc())); },
         "Date & Time", "DateTime", 30, {{u"dateTimeCustomDate"_s, u"2024-03-05 14:30:00 +0000"_s}}},
        {tabs::General, [](Settings& s) { s.chooseGeneralOption(6); }, "General", "General", 15,
         {{u"generalOptionIndex"_s, u"6"_s}, {u"generalSwapPosition"_s, u"1"_s}}},
        {tabs::Audio, [](Settings& s) { s.setId3RenamingMask(u"<Artist>"_s); }, "ID3", "ID3Tag", 10,
         {{u"id3Extensions"_s, QVariantList{u".MP3"_s, u".M4A"_s, u".AAC"_s, u".M4B"_s}},
          {u"id3RenamingTagsList"_s, QVariantList()}}},
        {tabs::PathComponents, nullptr, "PathComponents", "Path Components", 14, {{u"pathComponentsLevelNo"_s, u"1"_s}}},
        {tabs::Photo, [](Settings& s) { s.setPhotoMetaDataList({u"<Model>"_s}); s.resetPhotoMask(); }, "Photo", "Photo", 23,
         {{u"photoMetaDataList"_s, QVariantList{u"<Model>"_s}}, {u"photoRenamingMask"_s, u"<Model>"_s}}},
    };
    for (const FormRow& row : rows) {
        const RuleStep step = builtStep(row.tab, row.setup);
        SCOPED_TRACE(row.type);
        EXPECT_EQ(stepRule(step), QString::fromLatin1(row.rule));
        EXPECT_EQ(stepType(step), QString::fromLatin1(row.type));
        EXPECT_EQ(step.value(u"isActive"_s), QVariant(u"1"_s));
        EXPECT_EQ(step.size(), row.keyCount);
        for (auto sample = row.samples.cbegin(); sample != row.samples.cend(); ++sample)
            EXPECT_EQ(step.value(sample.key()), sample.value()) << qPrintable(sample.key());
    }
}

TEST(StepRecord, SequenceStepsAreStoredClampedAndTheOptionsFollow)
{
    struct Row {
        bool alphabetic;
        const char* typed;
        const char* stored;
    };
    const Row rows[] = {{false, "0", "1"}, {true, "0", "1"}, {true, "30", "26"}, {false, "30", "30"}, {false, "-4", "1"}};
    for (const Row& row : rows) {
        Settings settings;
        settings.chooseNumericOrAlphabetic(row.alphabetic ? 1 : 0);
        settings.setAlphaNumericIncrementBy(QString::fromLatin1(row.typed));
        const StepOutcome built = getRule(settings);
        ASSERT_TRUE(built.step);
        EXPECT_EQ(built.step->value(u"alphaNumericIncrementBy"_s), QVariant(QString::fromLatin1(row.stored))) << row.typed;
        EXPECT_EQ(settings.alphaNumericIncrementBy(), QString::fromLatin1(row.stored));
    }
}

// A failure already shown to the user counts as handled; one with nothing to say does not.
TEST(StepRecord, AddRuleAddsOnlyBuiltStepsAndCountsToldFailuresAsHandled)
{
    struct Row {
        const char* name;
        int tab;
        Prepare setup;
        bool result;
        int added;
        const char* alertTitle;  // null: no alert
        const char* error;       // the error text's key, null: none
    };
    const Row rows[] = {
        {"general", tabs::General, nullptr, true, 1, nullptr, nullptr},
        {"empty photo mask", tabs::Photo, nullptr, true, 0, "PHOTOINVALIDINPUT", "INVALIDPHOTORENAMINGMASK"},
        {"empty audio mask", tabs::Audio, nullptr, true, 0, "ID3INVALIDINPUT", "INVALIDID3RENAMINGMASK"},
        {"empty insert", tabs::InsertDelete, nullptr, false, 0, "INSERTINVALIDINPUT", nullptr},
        {"no sequence kind", tabs::AlphaNumeric, [](Settings& s) { s.setIsAlphaNumericNumeric(false); }, false, 0,
         nullptr, nullptr},
        {"rename from file", tabs::FromFile, nullptr, false, 0, nullptr, nullptr},
    };
    for (const Row& row : rows) {
        Settings settings;
        settings.setSelectedTab(row.tab);
        if (row.setup)
            row.setup(settings);
        RuleChain rules;
        const StepOutcome built = getRule(settings);
        EXPECT_EQ(addRule(rules, built), row.result) << row.name;
        EXPECT_EQ(rules.size(), row.added) << row.name;
        EXPECT_EQ(built.failure ? built.failure->titleKey : QString(), QString::fromLatin1(row.alertTitle)) << row.name;
        EXPECT_EQ(built.error, row.error ? localized(row.error) : QString()) << row.name;
    }
}

// Each kind comes back with its tab and the radio mirrors the tabs show; nothing else moves.
TEST(StepRecord, SetRuleLoadsEachKindBackIntoTheOptions)
{
    const Prepare setups[] = {
        [](Settings& s) { s.setSelectedTab(tabs::AlphaNumeric); s.chooseIncrementOrDecrement(1); s.chooseNumericOrAlphabetic(1); s.setAlphaNumericAlphabeticStartWith(u"ba"_s); },
        [](Settings& s) { s.setSelectedTab(tabs::InsertDelete); s.setInsertDeleteInsert(u"-"_s); s.chooseInsertPosition(2); s.setInsertDeleteAtCharacterPositions(u"3"_s); },
        [](Settings& s) { s.setSelectedTab(tabs::InsertDelete); s.chooseInsertOrDelete(1); s.setIsInsertDeleteDeleteFromBackWard(true); },
        [](Settings& s) { s.setSelectedTab(tabs::ReplaceRemove); s.setReplaceRemoveThis(u"x"_s); s.chooseReplaceRemoveMode(2); },
        [](Settings& s) { s.setSelectedTab(tabs::DateTime); s.chooseDateTimeSource(2); s.chooseDateTimePlacement(4); s.setDateTimeAtAfterText(u"_"_s); },
        [](Settings& s) { s.setSelectedTab(tabs::General); s.chooseGeneralOption(11); s.setGeneralConvertWindowsCompatibleString(u"+"_s); },
        [](Settings& s) { s.setSelectedTab(tabs::Audio); s.setId3RenamingTagsList({u"<Title>"_s}); s.resetID3Mask(); s.setId3Extensions({u".OGG"_s}); },
        [](Settings& s) { s.setSelectedTab(tabs::PathComponents); s.choosePathComponentsPlacement(1); s.setPathComponentsLevelNo(2); },
    };
    for (const Prepare& setup : setups) {
        Settings original;
        setup(original);
        const RuleStep step = getRule(original).step.value_or(RuleStep());
        Settings loaded;
        loaded.setSelectedTab(tabs::FromFile);
        EXPECT_TRUE(setRule(loaded, step)) << qPrintable(stepType(step));
        QVariantMap expected = getCurrentSettings(original);
        QVariantMap actual = getCurrentSettings(loaded);
        expected.remove(u"dateTimeCustomDate"_s);  // the defaults of two objects made a second apart
        actual.remove(u"dateTimeCustomDate"_s);
        EXPECT_EQ(actual, expected) << qPrintable(stepType(step));
    }
}

TEST(StepRecord, PrefixSuffixStepsAndStepsOfAnotherKindLoadNothing)
{
    Settings source;
    source.choosePrefixSuffixMode(1);
    source.setSelectedTab(tabs::PrefixSuffix);
    const RuleStep prefixSuffix = getRule(source).step.value_or(RuleStep());
    Settings settings;
    settings.setSelectedTab(tabs::General);
    const QVariantMap before = getCurrentSettings(settings);
    EXPECT_FALSE(setRule(settings, prefixSuffix));
    EXPECT_EQ(getCurrentSettings(settings), before);

    RuleStep mismatched = builtStep(tabs::PathComponents, [](Settings& s) { s.setPathComponentsLevelNo(4); });
    mismatched.insert(u"type"_s, u"Path"_s);
    EXPECT_FALSE(setRule(settings, mismatched));
    EXPECT_EQ(settings.selectedTab(), tabs::PathComponents);
    EXPECT_EQ(settings.pathComponentsLevelNo(), 1);
}

}  // namespace
