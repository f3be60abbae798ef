#include "gui/engine/ReplaceRemoveTab.h"

#include "ActionTabFixture.h"
#include "core/engine/actions/replaceremove.h"
#include "core/text/LocalizedStrings.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <vector>

using namespace tavrin;

namespace {

using ReplaceRemoveTabTest = test::ActionTabFixture<ReplaceRemoveTab>;

const char* const kModeButtons[] = { "replaceMode", "removeMode", "removeCharactersMode" };
const char* const kModeMirrors[]
    = { "isReplaceRemoveReplace", "isReplaceRemoveRemove", "isReplaceRemoveRemoveCharacters" };
const char* const kMatchChoice[] = { "replaceRemoveStartOnOccurrence", "replaceRemoveOccuranceCount" };

TEST_F(ReplaceRemoveTabTest, TheModeSetsItsIndexAndExactlyItsMirror)
{
    for (int mode = 2; mode >= 0; --mode) {
        click(kModeButtons[mode]);
        EXPECT_EQ(settings.removeReplaceIndex(), mode);
        for (int mirror = 0; mirror < 3; ++mirror)
            EXPECT_EQ(settings.property(kModeMirrors[mirror]).toBool(), mirror == mode)
                << mode << " " << mirror;
    }
}

struct EnabledRow {
    int mode;
    bool allOccurrences;
    bool replacement;
    bool allSwitch;
    bool matchChoice;
};

// Single characters go wherever they stand, so there are no matches to choose.
const EnabledRow kEnabled[] = {
    { 0, false, true, true, true },
    { 0, true, true, true, false },
    { 1, false, false, true, true },
    { 1, true, false, true, false },
    { 2, false, false, false, false },
};

TEST_F(ReplaceRemoveTabTest, OnlyWhatTheModeUsesIsEnabled)
{
    for (const EnabledRow& row : kEnabled) {
        // The switch is ticked before the mode: the third mode disables it.
        if (field<QCheckBox>("isReplaceRemoveAllOccurrence")->isChecked() != row.allOccurrences)
            click("isReplaceRemoveAllOccurrence");
        click(kModeButtons[row.mode]);
        ASSERT_EQ(settings.isReplaceRemoveAllOccurrence(), row.allOccurrences);
        EXPECT_EQ(isEnabled("replaceRemoveWith"), row.replacement) << row.mode;
        EXPECT_EQ(isEnabled("isReplaceRemoveAllOccurrence"), row.allSwitch) << row.mode;
        for (const char* key : kMatchChoice)
            EXPECT_EQ(isEnabled(key), row.matchChoice) << row.mode << " " << row.allOccurrences << " " << key;
        for (const char* key : { "replaceRemoveThis", "isReplaceRemoveCaseSensitive",
                 "replaceRemoveStartFromCharacter", "replaceRemovePositionDirection" })
            EXPECT_TRUE(isEnabled(key)) << row.mode << " " << key;
    }
}

TEST_F(ReplaceRemoveTabTest, TheFindFieldSaysWhatItHolds)
{
    auto* find = field<QLineEdit>("replaceRemoveThis");
    click("removeCharactersMode");
    EXPECT_EQ(find->toolTip(), localized("REPLACECHARACTERSTIP"));
    const QString charactersName = find->accessibleName();
    click("removeMode");
    EXPECT_EQ(find->toolTip(), localized("REPLACEFINDTIP"));
    EXPECT_NE(find->accessibleName(), charactersName);
}

TEST_F(ReplaceRemoveTabTest, ChangesOfTheSettingsShowInTheWidgets)
{
    settings.chooseReplaceRemoveMode(1);
    settings.setReplaceRemoveThis(QStringLiteral("draft "));
    settings.setIsReplaceRemoveCaseSensitive(true);
    settings.setReplaceRemovePositionDirection(replaceremovedirection::FromEnd);
    settings.setReplaceRemoveOccuranceCount(QStringLiteral("0"));

    EXPECT_TRUE(button("removeMode")->isChecked());
    EXPECT_EQ(field<QLineEdit>("replaceRemoveThis")->text(), QStringLiteral("draft "));
    EXPECT_TRUE(field<QCheckBox>("isReplaceRemoveCaseSensitive")->isChecked());
    EXPECT_EQ(field<QComboBox>("replaceRemovePositionDirection")->currentIndex(), 1);
    EXPECT_EQ(field<QLineEdit>("replaceRemoveOccuranceCount")->text(), QStringLiteral("0"))
        << "a stored count of none shows as none";

    // A profile with no mode set runs no action; no button claims otherwise.
    settings.setIsReplaceRemoveRemove(false);
    for (const char* mode : kModeButtons)
        EXPECT_FALSE(button(mode)->isChecked()) << mode;
}

TEST_F(ReplaceRemoveTabTest, TypingAndChoosingSetTheOptions)
{
    typeInto("replaceRemoveThis", QStringLiteral("-"));
    typeInto("replaceRemoveWith", QStringLiteral("_"));
    settings.setReplaceRemoveStartFromCharacter(QStringLiteral("5"));
    typeInto("replaceRemoveStartFromCharacter", QStringLiteral("0"));
    typeInto("replaceRemoveStartOnOccurrence", QStringLiteral("3"));
    click("isReplaceRemoveCaseSensitive");
    chooseItem("replaceRemovePositionDirection", 1);

    EXPECT_EQ(settings.replaceRemoveThis(), QStringLiteral("-"));
    EXPECT_EQ(settings.replaceRemoveWith(), QStringLiteral("_"));
    EXPECT_EQ(settings.replaceRemoveStartFromCharacter(), QStringLiteral("1"));
    EXPECT_EQ(settings.replaceRemoveStartOnOccurrence(), QStringLiteral("3"));
    EXPECT_TRUE(settings.isReplaceRemoveCaseSensitive());
    EXPECT_EQ(settings.replaceRemovePositionDirection(), replaceremovedirection::FromEnd);
}

TEST_F(ReplaceRemoveTabTest, EveryInputIsFoundByItsOptionAndExplained)
{
    for (const char* key : { "replaceRemoveThis", "replaceRemoveWith", "isReplaceRemoveCaseSensitive",
             "replaceRemoveStartFromCharacter", "replaceRemovePositionDirection",
             "isReplaceRemoveAllOccurrence", "replaceRemoveStartOnOccurrence",
             "replaceRemoveOccuranceCount" }) {
        QWidget* input = tab.fieldForOption(QString::fromLatin1(key));
        ASSERT_NE(input, nullptr) << key;
        EXPECT_FALSE(input->toolTip().isEmpty()) << key;
        if (!qobject_cast<QCheckBox*>(input)) {
            EXPECT_FALSE(input->accessibleName().isEmpty()) << key;
        }
    }
    for (const char* mode : kModeButtons)
        EXPECT_FALSE(button(mode)->toolTip().isEmpty()) << mode;
}

} // namespace
