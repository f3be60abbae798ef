#include "gui/engine/SequenceTab.h"

#include "ActionTabFixture.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QRadioButton>
#include <vector>

using namespace tavrin;

namespace {

using SequenceTabTest = test::ActionTabFixture<SequenceTab>;

const std::vector<const char*> kInputs = {
    "alphaNumericNumericStartWith",
    "alphaNumericAlphabeticStartWith",
    "alphaNumericIncrementBy",
    "alphaNumericDecrementBy",
    "isAlphaNumericResetSequenceOnEachFolder",
    "isAlphaNumericPrefix",
    "isAlphaNumericSufix",
    "isAlphaNumericSeperator",
    "alphaNumericSeperator",
    "alphaNumericPaddingMask",
};

TEST_F(SequenceTabTest, TheRadioGroupsSetTheirIndexAndMirrors)
{
    click("sequenceAlphabetic");
    EXPECT_EQ(settings.alphaNumericNumericAlphabeticIndex(), 1);
    EXPECT_TRUE(settings.isAlphaNumericAlphabetic());
    EXPECT_FALSE(settings.isAlphaNumericNumeric());

    click("sequenceDecrement");
    EXPECT_EQ(settings.alphaNumericIncrementDecrementIndex(), 1);
    EXPECT_TRUE(settings.isAlphaNumericDecrement());
    EXPECT_FALSE(settings.isAlphaNumericIncrement());

    click("sequenceNumeric");
    click("sequenceIncrement");
    EXPECT_EQ(settings.alphaNumericNumericAlphabeticIndex(), 0);
    EXPECT_TRUE(settings.isAlphaNumericNumeric());
    EXPECT_FALSE(settings.isAlphaNumericAlphabetic());
    EXPECT_EQ(settings.alphaNumericIncrementDecrementIndex(), 0);
    EXPECT_TRUE(settings.isAlphaNumericIncrement());
    EXPECT_FALSE(settings.isAlphaNumericDecrement());
}

struct EnabledRow {
    const char* kind;
    const char* direction;
    bool prefix;
    bool suffix;
    bool separate;
    std::vector<const char*> enabled;
};

// The separator only has a place when the value stands beside the name.
const EnabledRow kEnabled[] = {
    { "sequenceNumeric", "sequenceIncrement", false, false, true,
        { "alphaNumericNumericStartWith", "alphaNumericIncrementBy" } },
    { "sequenceAlphabetic", "sequenceDecrement", true, false, false,
        { "alphaNumericAlphabeticStartWith", "alphaNumericDecrementBy", "isAlphaNumericSeperator" } },
    { "sequenceNumeric", "sequenceDecrement", false, true, true,
        { "alphaNumericNumericStartWith", "alphaNumericDecrementBy", "isAlphaNumericSeperator",
            "alphaNumericSeperator" } },
};

TEST_F(SequenceTabTest, OnlyTheInputsOfTheChosenKindDirectionAndPlacementAreEnabled)
{
    const std::vector<const char*> following
        = { "alphaNumericNumericStartWith", "alphaNumericAlphabeticStartWith", "alphaNumericIncrementBy",
              "alphaNumericDecrementBy", "isAlphaNumericSeperator", "alphaNumericSeperator" };
    for (const EnabledRow& row : kEnabled) {
        click(row.kind);
        click(row.direction);
        settings.setIsAlphaNumericPrefix(row.prefix);
        settings.setIsAlphaNumericSufix(row.suffix);
        settings.setIsAlphaNumericSeperator(row.separate);
        for (const char* key : following) {
            const bool expected = std::find(row.enabled.begin(), row.enabled.end(), key) != row.enabled.end();
            EXPECT_EQ(isEnabled(key), expected) << row.kind << " " << row.direction << ": " << key;
        }
    }
    EXPECT_TRUE(isEnabled("alphaNumericPaddingMask"));
    EXPECT_TRUE(isEnabled("isAlphaNumericResetSequenceOnEachFolder"));
}

TEST_F(SequenceTabTest, ChangesOfTheSettingsShowInTheWidgets)
{
    settings.chooseNumericOrAlphabetic(1);
    settings.chooseIncrementOrDecrement(1);
    settings.setAlphaNumericAlphabeticStartWith(QStringLiteral("xy"));
    settings.setAlphaNumericIncrementBy(QStringLiteral("0"));
    settings.setIsAlphaNumericSufix(true);
    settings.setAlphaNumericPaddingMask(QStringLiteral("000"));

    EXPECT_TRUE(button("sequenceAlphabetic")->isChecked());
    EXPECT_TRUE(button("sequenceDecrement")->isChecked());
    EXPECT_FALSE(button("sequenceNumeric")->isChecked());
    EXPECT_EQ(field<QLineEdit>("alphaNumericAlphabeticStartWith")->text(), QStringLiteral("xy"));
    EXPECT_EQ(field<QLineEdit>("alphaNumericIncrementBy")->text(), QStringLiteral("0"))
        << "a stored value shows as it is, not as the typing filter would have it";
    EXPECT_TRUE(field<QCheckBox>("isAlphaNumericSufix")->isChecked());
    EXPECT_EQ(field<QLineEdit>("alphaNumericPaddingMask")->text(), QStringLiteral("000"));

    // The action counts down when both directions are set, and the tab says so.
    settings.setIsAlphaNumericIncrement(true);
    EXPECT_TRUE(button("sequenceDecrement")->isChecked());
}

struct TypingRow {
    const char* choice;
    const char* key;
    const char* typed;
    const char* stored;
};

// Each field filters with its own kind: letters, a start that may be 0, steps that may not.
// The filter runs at every key, so a digit typed after letters goes at once.
const TypingRow kTyping[] = {
    { "sequenceAlphabetic", "alphaNumericAlphabeticStartWith", "AB1c", "abc" },
    { "sequenceAlphabetic", "alphaNumericAlphabeticStartWith", "123", "a" },
    { "sequenceIncrement", "alphaNumericIncrementBy", "12", "12" },
    { "sequenceIncrement", "alphaNumericIncrementBy", " 0x", "1" },
    { nullptr, "alphaNumericPaddingMask", "ID-00", "ID-00" },
};

TEST_F(SequenceTabTest, TypingSetsTheOptionsThroughTheFieldsFilters)
{
    settings.setIsAlphaNumericPrefix(true);
    for (const TypingRow& row : kTyping) {
        if (row.choice)
            click(row.choice);
        typeInto(row.key, QString::fromLatin1(row.typed));
        EXPECT_EQ(settings.property(row.key).toString(), QString::fromLatin1(row.stored))
            << row.key << " " << row.typed;
    }

    // A sequence may start at 0, which a step may not.
    click("sequenceNumeric");
    settings.setAlphaNumericNumericStartWith(QStringLiteral("5"));
    typeInto("alphaNumericNumericStartWith", QStringLiteral("0"));
    EXPECT_EQ(settings.alphaNumericNumericStartWith(), QStringLiteral("0"));

    click("isAlphaNumericResetSequenceOnEachFolder");
    EXPECT_TRUE(settings.isAlphaNumericResetSequenceOnEachFolder());
}

TEST_F(SequenceTabTest, EveryInputIsFoundByItsOptionAndExplained)
{
    for (const char* key : kInputs) {
        QWidget* input = tab.fieldForOption(QString::fromLatin1(key));
        ASSERT_NE(input, nullptr) << key;
        EXPECT_FALSE(input->toolTip().isEmpty()) << key;
        if (qobject_cast<QLineEdit*>(input)) {
            EXPECT_FALSE(input->accessibleName().isEmpty()) << key;
        }
    }
    for (const char* name :
        { "sequenceNumeric", "sequenceAlphabetic", "sequenceIncrement", "sequenceDecrement" })
        EXPECT_FALSE(button(name)->toolTip().isEmpty()) << name;
    EXPECT_EQ(
        field<QWidget>("alphaNumericNumericStartWith")->accessibleName(), button("sequenceNumeric")->text());
    EXPECT_EQ(tab.fieldForOption(QStringLiteral("replaceRemoveThis")), nullptr);
}

} // namespace
