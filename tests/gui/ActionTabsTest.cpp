#include "gui/engine/ActionTabs.h"
#include "core/profiles/Settings.h"
#include "core/profiles/Tabs.h"
#include "core/text/LocalizedStrings.h"
#include "gui/engine/GeneralTab.h"
#include "gui/engine/InsertDeleteTab.h"
#include "gui/engine/ReplaceRemoveTab.h"
#include "gui/engine/SequenceTab.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTabBar>
#include <QTest>
#include <functional>
#include <gtest/gtest.h>
#include <memory>

using namespace tavrin;
using namespace Qt::StringLiterals;

namespace {

enum class Kind { Sequence, InsertDelete, ReplaceRemove, General };

std::unique_ptr<ActionTab> makeTab(Kind kind, Settings& settings)
{
    switch (kind) {
    case Kind::Sequence:
        return std::make_unique<SequenceTab>(settings);
    case Kind::InsertDelete:
        return std::make_unique<InsertDeleteTab>(settings);
    case Kind::ReplaceRemove:
        return std::make_unique<ReplaceRemoveTab>(settings);
    case Kind::General:
        return std::make_unique<GeneralTab>(settings);
    }
    return nullptr;
}

// One action tab shown on its own over settings at their start values, with the ways a user
// reaches its inputs.
class ActionTabTest : public ::testing::Test {
protected:
    void show(Kind kind)
    {
        settings.resetToStartValues();
        tab = makeTab(kind, settings);
        tab->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(tab.get()));
    }

    QAbstractButton* button(const QString& objectName) const
    {
        auto* found = tab->findChild<QAbstractButton*>(objectName);
        EXPECT_NE(found, nullptr) << objectName.toStdString();
        return found;
    }

    // A wide button only answers a mouse click on its indicator and text; the space bar
    // presses it wherever it is.
    void click(const QString& objectName) const
    {
        QAbstractButton* pressed = button(objectName);
        pressed->setFocus();
        QTest::keyClick(pressed, Qt::Key_Space);
    }

    QWidget* field(const char* optionKey) const
    {
        QWidget* found = tab->fieldForOption(QString::fromLatin1(optionKey));
        EXPECT_NE(found, nullptr) << optionKey;
        return found;
    }

    // What an input shows: a field its text, a check box its tick, a chooser its index.
    QVariant shown(const char* optionKey) const
    {
        QWidget* input = field(optionKey);
        if (auto* line = qobject_cast<QLineEdit*>(input))
            return line->text();
        if (auto* box = qobject_cast<QCheckBox*>(input))
            return box->isChecked();
        return qobject_cast<QComboBox*>(input)->currentIndex();
    }

    // Replaces the field's text by typing, as a user who selected it all would.
    void typeInto(const char* optionKey, const QString& text) const
    {
        auto* line = qobject_cast<QLineEdit*>(field(optionKey));
        line->setFocus();
        line->selectAll();
        QTest::keyClicks(line, text);
    }

    // Picks an item with the keyboard, which is how a choice reports a user's pick.
    void chooseItem(const char* optionKey, int index) const
    {
        auto* chooser = qobject_cast<QComboBox*>(field(optionKey));
        chooser->setFocus();
        QTest::keyClick(chooser, Qt::Key_Home);
        for (int step = 0; step < index; ++step)
            QTest::keyClick(chooser, Qt::Key_Down);
    }

    Settings settings;
    std::unique_ptr<ActionTab> tab;
};

QStringList numbered(const QString& prefix, int count)
{
    QStringList names;
    for (int index = 0; index < count; ++index)
        names.append(prefix + QString::number(index));
    return names;
}

struct ChoiceGroup {
    Kind kind;
    const char* indexKey;
    QStringList buttons; // in the order of the index
    QStringList mirrors; // the mirror boolean of each button
};

TEST_F(ActionTabTest, EveryChoiceSetsItsIndexAndExactlyItsMirror)
{
    const ChoiceGroup groups[] = {
        { Kind::Sequence, "alphaNumericNumericAlphabeticIndex",
            { u"sequenceNumeric"_s, u"sequenceAlphabetic"_s },
            { u"isAlphaNumericNumeric"_s, u"isAlphaNumericAlphabetic"_s } },
        { Kind::Sequence, "alphaNumericIncrementDecrementIndex",
            { u"sequenceIncrement"_s, u"sequenceDecrement"_s },
            { u"isAlphaNumericIncrement"_s, u"isAlphaNumericDecrement"_s } },
        { Kind::InsertDelete, "insertDeleteIndex", { u"insertMode"_s, u"deleteMode"_s },
            { u"isInsertDeleteInsert"_s, u"isInsertDeleteDelete"_s } },
        { Kind::InsertDelete, "insertDeleteInsertOptionIndex", numbered(u"insertPlace"_s, 5),
            { u"isInsertDeleteInsertAtBeginning"_s, u"isInsertDeleteInsertAtEnd"_s,
                u"isInsertDeleteInsertAtPosition"_s, u"isInsertDeleteInsertAtBeforeText"_s,
                u"isInsertDeleteInsertAtAfterText"_s } },
        { Kind::ReplaceRemove, "removeReplaceIndex",
            { u"replaceMode"_s, u"removeMode"_s, u"removeCharactersMode"_s },
            { u"isReplaceRemoveReplace"_s, u"isReplaceRemoveRemove"_s,
                u"isReplaceRemoveRemoveCharacters"_s } },
        { Kind::General, "generalOptionIndex", numbered(u"generalOption"_s, 12),
            { u"isGeneralConvertFilenameCase"_s, u"isGeneralConvertExtension"_s,
                u"isGeneralRemoveExtension"_s, u"isGeneralChangeExtension"_s, u"isGeneralReverseFileName"_s,
                u"isGeneralRemoveSpaces"_s, u"isGeneralSwapFromSeperator"_s, u"isGeneralSwapFromPostion"_s,
                u"isGeneralRemoveAfterString"_s, u"isGeneralRemoveFromString"_s, u"isGeneralFilenameMask"_s,
                u"isGeneralConvertWindowsCompatible"_s } },
    };
    for (const ChoiceGroup& group : groups) {
        show(group.kind);
        for (auto chosen = group.buttons.size() - 1; chosen >= 0; --chosen) {
            click(group.buttons[chosen]);
            EXPECT_EQ(settings.property(group.indexKey).toInt(), chosen) << group.indexKey;
            for (qsizetype mirror = 0; mirror < group.mirrors.size(); ++mirror)
                EXPECT_EQ(settings.property(group.mirrors[mirror].toLatin1()).toBool(), mirror == chosen)
                    << group.buttons[chosen].toStdString() << " " << group.mirrors[mirror].toStdString();
        }
    }
}

struct EnabledRow {
    Kind kind;
    QStringList clicks;
    QList<std::pair<const char*, bool>> switches;
    QList<const char*> enabled; // among the inputs the choices above rule
};

// Only the inputs of what is chosen are enabled, so the tab shows what the next preview uses.
TEST_F(ActionTabTest, OnlyTheInputsOfTheChosenOptionsAreEnabled)
{
    const QList<const char*> ruled[] = {
        { "alphaNumericNumericStartWith", "alphaNumericAlphabeticStartWith", "alphaNumericIncrementBy",
            "alphaNumericDecrementBy", "isAlphaNumericSeperator", "alphaNumericSeperator" },
        { "insertDeleteInsert", "insertDeleteAtCharacterPositions", "insertDeleteInsertAtPostionDirection",
            "insertDeleteInsertAtBeforeText", "insertDeleteInsertAtBeforeOccurrence",
            "insertDeleteInsertAtAfterText", "insertDeleteInsertAtAfterOccurrence",
            "insertDeleteNumberOfCharacters", "insertDeleteFromCharacterPosition",
            "isInsertDeleteDeleteFromBackWard" },
        { "replaceRemoveWith", "isReplaceRemoveAllOccurrence", "replaceRemoveStartOnOccurrence",
            "replaceRemoveOccuranceCount", "replaceRemoveThis" },
        { "generalFileNameCase", "generalExtensionCase", "generalChangeExtension", "generalSwapSeperator",
            "generalSwapPosition", "generalRemoveAfterString", "generalRemoveAfterStringOccurrence",
            "generalFilenameMask", "generalConvertWindowsCompatibleString" },
    };
    const EnabledRow rows[] = {
        // The separator only has a place when the value stands beside the name.
        { Kind::Sequence, { u"sequenceNumeric"_s, u"sequenceIncrement"_s },
            { { "isAlphaNumericSeperator", true } },
            { "alphaNumericNumericStartWith", "alphaNumericIncrementBy" } },
        { Kind::Sequence, { u"sequenceAlphabetic"_s, u"sequenceDecrement"_s },
            { { "isAlphaNumericPrefix", true } },
            { "alphaNumericAlphabeticStartWith", "alphaNumericDecrementBy", "isAlphaNumericSeperator" } },
        { Kind::Sequence, { u"sequenceNumeric"_s },
            { { "isAlphaNumericSufix", true }, { "isAlphaNumericSeperator", true } },
            { "alphaNumericNumericStartWith", "alphaNumericIncrementBy", "isAlphaNumericSeperator",
                "alphaNumericSeperator" } },
        { Kind::InsertDelete, { u"insertPlace0"_s }, {}, { "insertDeleteInsert" } },
        { Kind::InsertDelete, { u"insertPlace2"_s }, {},
            { "insertDeleteInsert", "insertDeleteAtCharacterPositions",
                "insertDeleteInsertAtPostionDirection" } },
        { Kind::InsertDelete, { u"insertPlace3"_s }, {},
            { "insertDeleteInsert", "insertDeleteInsertAtBeforeText",
                "insertDeleteInsertAtBeforeOccurrence" } },
        { Kind::InsertDelete, { u"insertPlace4"_s, u"deleteMode"_s }, {},
            { "insertDeleteNumberOfCharacters", "insertDeleteFromCharacterPosition",
                "isInsertDeleteDeleteFromBackWard" } },
        // Single characters go wherever they stand, so there are no matches to choose.
        { Kind::ReplaceRemove, { u"replaceMode"_s }, {},
            { "replaceRemoveThis", "replaceRemoveWith", "isReplaceRemoveAllOccurrence",
                "replaceRemoveStartOnOccurrence", "replaceRemoveOccuranceCount" } },
        { Kind::ReplaceRemove, { u"removeMode"_s }, { { "isReplaceRemoveAllOccurrence", true } },
            { "replaceRemoveThis", "isReplaceRemoveAllOccurrence" } },
        { Kind::ReplaceRemove, { u"removeCharactersMode"_s }, {}, { "replaceRemoveThis" } },
        { Kind::General, { u"generalOption0"_s }, {}, { "generalFileNameCase" } },
        { Kind::General, { u"generalOption4"_s }, {}, {} },
        { Kind::General, { u"generalOption8"_s }, {},
            { "generalRemoveAfterString", "generalRemoveAfterStringOccurrence" } },
        { Kind::General, { u"generalOption11"_s }, {}, { "generalConvertWindowsCompatibleString" } },
    };
    for (const EnabledRow& row : rows) {
        show(row.kind);
        for (const QString& name : row.clicks)
            click(name);
        for (const auto& [key, on] : row.switches)
            settings.setProperty(key, on);
        for (const char* key : ruled[static_cast<int>(row.kind)]) {
            EXPECT_EQ(field(key)->isEnabled(), row.enabled.contains(key))
                << row.clicks.join(u' ').toStdString() << ": " << key;
        }
    }
}

// The word between a text and its occurrence follows its option too.
TEST_F(ActionTabTest, TheWordBetweenATextAndItsOccurrenceFollowsItsOption)
{
    const std::pair<Kind, const char*> rows[]
        = { { Kind::General, "generalOption8" }, { Kind::InsertDelete, "insertPlace4" } };
    for (const auto& [kind, choice] : rows) {
        show(kind);
        click(QString::fromLatin1(choice));
        int enabledWords = 0;
        for (const QLabel* word : tab->findChildren<QLabel*>())
            enabledWords += word->isEnabled() && word->text() == localized("OCCURRENCE") ? 1 : 0;
        EXPECT_EQ(enabledWords, 1) << choice;
    }
}

struct TypingRow {
    Kind kind;
    QString choice;
    const char* key;
    QString typed;
    QString stored;
};

// Each field filters with its own kind: letters, a start that may be 0, steps and positions
// that may not. The filter runs at every key, so a digit typed after letters goes at once.
TEST_F(ActionTabTest, TypingSetsTheOptionsThroughTheFieldsFilters)
{
    const TypingRow rows[] = {
        { Kind::Sequence, u"sequenceAlphabetic"_s, "alphaNumericAlphabeticStartWith", u"AB1c"_s, u"abc"_s },
        { Kind::Sequence, u"sequenceAlphabetic"_s, "alphaNumericAlphabeticStartWith", u"123"_s, u"a"_s },
        { Kind::Sequence, u"sequenceIncrement"_s, "alphaNumericIncrementBy", u" 0x"_s, u"1"_s },
        { Kind::Sequence, u"sequenceNumeric"_s, "alphaNumericNumericStartWith", u"0"_s, u"0"_s },
        { Kind::Sequence, {}, "alphaNumericPaddingMask", u"ID-00"_s, u"ID-00"_s },
        // A slash is turned into a colon by the action, not by the field.
        { Kind::InsertDelete, {}, "insertDeleteInsert", u"a/b"_s, u"a/b"_s },
        { Kind::InsertDelete, u"insertPlace2"_s, "insertDeleteAtCharacterPositions", u"x0"_s, u"1"_s },
        { Kind::InsertDelete, u"deleteMode"_s, "insertDeleteNumberOfCharacters", u"12"_s, u"12"_s },
        { Kind::ReplaceRemove, {}, "replaceRemoveThis", u"-"_s, u"-"_s },
        { Kind::ReplaceRemove, {}, "replaceRemoveStartFromCharacter", u"0"_s, u"1"_s },
        { Kind::ReplaceRemove, {}, "replaceRemoveStartOnOccurrence", u"3"_s, u"3"_s },
        { Kind::General, u"generalOption8"_s, "generalRemoveAfterString", u"a/b"_s, u"a/b"_s },
        { Kind::General, u"generalOption8"_s, "generalRemoveAfterStringOccurrence", u"x2"_s, u"2"_s },
    };
    for (const TypingRow& row : rows) {
        show(row.kind);
        if (!row.choice.isEmpty())
            click(row.choice);
        typeInto(row.key, row.typed);
        EXPECT_EQ(settings.property(row.key).toString(), row.stored)
            << row.key << " " << row.typed.toStdString();
    }
}

struct ChoosingRow {
    Kind kind;
    QString choice;
    const char* key;
    int index;
    QVariant stored;
};

TEST_F(ActionTabTest, ChoosingAnItemOrTickingSetsTheOption)
{
    const ChoosingRow rows[] = {
        { Kind::InsertDelete, u"insertPlace2"_s, "insertDeleteInsertAtPostionDirection", 1, 1 },
        { Kind::InsertDelete, u"deleteMode"_s, "isInsertDeleteDeleteFromBackWard", 1, true },
        { Kind::InsertDelete, u"deleteMode"_s, "isInsertDeleteDeleteFromBackWard", 0, false },
        { Kind::ReplaceRemove, {}, "replaceRemovePositionDirection", 1, 1 },
        { Kind::General, u"generalOption0"_s, "generalFileNameCase", 1, 2 },
        { Kind::General, u"generalOption0"_s, "generalFileNameCase", 2, 3 },
        { Kind::ReplaceRemove, u"isReplaceRemoveCaseSensitive"_s, "isReplaceRemoveCaseSensitive", -1, true },
        { Kind::Sequence, u"isAlphaNumericResetSequenceOnEachFolder"_s,
            "isAlphaNumericResetSequenceOnEachFolder", -1, true },
    };
    for (const ChoosingRow& row : rows) {
        show(row.kind);
        if (!row.choice.isEmpty())
            click(row.choice);
        if (row.index >= 0)
            chooseItem(row.key, row.index);
        EXPECT_EQ(settings.property(row.key), row.stored) << row.key << " " << row.index;
    }
    EXPECT_EQ(settings.generalExtensionCase(), 1) << "the extension's chooser is another option";
}

struct RefreshRow {
    Kind kind;
    std::function<void(Settings&)> change;
    QList<std::pair<const char*, QVariant>> shown;
    QString checkedButton;
};

// Settings changed from elsewhere (a profile, a validation) show as they are stored.
TEST_F(ActionTabTest, ChangesOfTheSettingsShowInTheInputs)
{
    const RefreshRow rows[] = {
        { Kind::Sequence,
            [](Settings& s) {
                s.chooseNumericOrAlphabetic(1);
                s.setAlphaNumericAlphabeticStartWith(u"xy"_s);
                s.setAlphaNumericIncrementBy(u"0"_s);
                s.setIsAlphaNumericSufix(true);
            },
            { { "alphaNumericAlphabeticStartWith", u"xy"_s }, { "alphaNumericIncrementBy", u"0"_s },
                { "isAlphaNumericSufix", true } },
            u"sequenceAlphabetic"_s },
        // The action counts down when both directions are set, and the tab says so.
        { Kind::Sequence,
            [](Settings& s) {
                s.chooseIncrementOrDecrement(1);
                s.setIsAlphaNumericIncrement(true);
            },
            {}, u"sequenceDecrement"_s },
        { Kind::InsertDelete,
            [](Settings& s) {
                s.chooseInsertPosition(2);
                s.setInsertDeleteAtCharacterPositions(u"7"_s);
                s.setInsertDeleteInsertAtPostionDirection(1);
                s.setIsInsertDeleteDeleteFromBackWard(true);
            },
            { { "insertDeleteAtCharacterPositions", u"7"_s }, { "insertDeleteInsertAtPostionDirection", 1 },
                { "isInsertDeleteDeleteFromBackWard", 1 } },
            u"insertPlace2"_s },
        { Kind::ReplaceRemove,
            [](Settings& s) {
                s.chooseReplaceRemoveMode(1);
                s.setReplaceRemoveThis(u"draft "_s);
                s.setIsReplaceRemoveCaseSensitive(true);
                s.setReplaceRemoveOccuranceCount(u"0"_s);
            },
            { { "replaceRemoveThis", u"draft "_s }, { "isReplaceRemoveCaseSensitive", true },
                { "replaceRemoveOccuranceCount", u"0"_s } },
            u"removeMode"_s },
        // A code the chooser does not offer must not pass for one it does.
        { Kind::General,
            [](Settings& s) {
                s.chooseGeneralOption(10);
                s.setGeneralFilenameMask(u"0000"_s);
                s.setGeneralFileNameCase(0);
            },
            { { "generalFilenameMask", u"0000"_s }, { "generalFileNameCase", -1 } }, u"generalOption10"_s },
    };
    for (const RefreshRow& row : rows) {
        show(row.kind);
        row.change(settings);
        for (const auto& [key, value] : row.shown)
            EXPECT_EQ(shown(key), value) << key;
        QAbstractButton* chosen = button(row.checkedButton);
        ASSERT_NE(chosen->group(), nullptr);
        for (QAbstractButton* radio : chosen->group()->buttons())
            EXPECT_EQ(radio->isChecked(), radio == chosen) << radio->objectName().toStdString();
    }

    // A profile with no mode set runs no action; no button claims otherwise.
    show(Kind::ReplaceRemove);
    settings.setIsReplaceRemoveReplace(false);
    for (const char* mode : { "replaceMode", "removeMode", "removeCharactersMode" })
        EXPECT_FALSE(button(QString::fromLatin1(mode))->isChecked()) << mode;
}

TEST_F(ActionTabTest, AFieldBeingTypedInKeepsItsCursor)
{
    show(Kind::General);
    click(u"generalOption3"_s);
    auto* extension = qobject_cast<QLineEdit*>(field("generalChangeExtension"));
    QTest::keyClicks(extension, u"jpg"_s);
    extension->setCursorPosition(1);
    QTest::keyClicks(extension, u"e"_s);
    EXPECT_EQ(settings.generalChangeExtension(), u"jepg"_s);
    EXPECT_EQ(extension->cursorPosition(), 2) << "the echo of the setting does not reset the field";
}

TEST_F(ActionTabTest, TheFindFieldSaysWhatItHolds)
{
    show(Kind::ReplaceRemove);
    QWidget* find = field("replaceRemoveThis");
    click(u"removeCharactersMode"_s);
    EXPECT_EQ(find->toolTip(), localized("REPLACECHARACTERSTIP"));
    const QString charactersName = find->accessibleName();
    click(u"removeMode"_s);
    EXPECT_EQ(find->toolTip(), localized("REPLACEFINDTIP"));
    EXPECT_NE(find->accessibleName(), charactersName);
}

// Every input is found by its option for the focus after an alert, says what it is for, and
// a screen reader names it after the words before it.
TEST_F(ActionTabTest, EveryInputIsFoundByItsOptionAndExplained)
{
    const std::pair<Kind, QList<const char*>> inputs[] = {
        { Kind::Sequence,
            { "alphaNumericNumericStartWith", "alphaNumericAlphabeticStartWith", "alphaNumericIncrementBy",
                "alphaNumericDecrementBy", "isAlphaNumericResetSequenceOnEachFolder", "isAlphaNumericPrefix",
                "isAlphaNumericSufix", "isAlphaNumericSeperator", "alphaNumericSeperator",
                "alphaNumericPaddingMask" } },
        { Kind::InsertDelete,
            { "insertDeleteInsert", "insertDeleteAtCharacterPositions",
                "insertDeleteInsertAtPostionDirection", "insertDeleteInsertAtBeforeText",
                "insertDeleteInsertAtBeforeOccurrence", "insertDeleteInsertAtAfterText",
                "insertDeleteInsertAtAfterOccurrence", "insertDeleteNumberOfCharacters",
                "insertDeleteFromCharacterPosition", "isInsertDeleteDeleteFromBackWard" } },
        { Kind::ReplaceRemove,
            { "replaceRemoveThis", "replaceRemoveWith", "isReplaceRemoveCaseSensitive",
                "replaceRemoveStartFromCharacter", "replaceRemovePositionDirection",
                "isReplaceRemoveAllOccurrence", "replaceRemoveStartOnOccurrence",
                "replaceRemoveOccuranceCount" } },
        { Kind::General,
            { "generalFileNameCase", "generalExtensionCase", "generalChangeExtension", "generalSwapSeperator",
                "generalSwapPosition", "generalRemoveAfterString", "generalRemoveAfterStringOccurrence",
                "generalRemoveFromString", "generalRemoveFromStringOccurrence", "generalFilenameMask",
                "generalConvertWindowsCompatibleString" } },
    };
    for (const auto& [kind, keys] : inputs) {
        show(kind);
        for (const char* key : keys) {
            QWidget* input = field(key);
            EXPECT_FALSE(input->toolTip().isEmpty()) << key;
            if (!qobject_cast<QCheckBox*>(input)) {
                EXPECT_FALSE(input->accessibleName().isEmpty()) << key;
            }
        }
        for (QAbstractButton* radio : tab->findChildren<QAbstractButton*>())
            EXPECT_FALSE(radio->toolTip().isEmpty()) << radio->objectName().toStdString();
        EXPECT_EQ(tab->fieldForOption(
                      kind == Kind::ReplaceRemove ? u"generalFilenameMask"_s : u"replaceRemoveThis"_s),
            nullptr);
    }
    const std::tuple<Kind, const char*, QString> names[] = {
        { Kind::Sequence, "alphaNumericNumericStartWith", u"sequenceNumeric"_s },
        { Kind::InsertDelete, "insertDeleteInsertAtBeforeText", u"insertPlace3"_s },
        { Kind::General, "generalRemoveAfterString", u"generalOption8"_s },
    };
    for (const auto& [kind, key, radio] : names) {
        show(kind);
        EXPECT_EQ(field(key)->accessibleName(), button(radio)->text()) << key;
        EXPECT_EQ(field(key)->toolTip(), button(radio)->toolTip()) << key;
    }
    show(Kind::InsertDelete);
    EXPECT_EQ(field("insertDeleteInsertAtBeforeOccurrence")->accessibleName(), localized("OCCURRENCE"));
    const QString textName = field("insertDeleteInsert")->accessibleName();
    EXPECT_TRUE(localized("INSERTTEXT").startsWith(textName) && !textName.endsWith(u':'))
        << "a label's colon is not read out";
}

// A page with one input, standing for the tabs that later work adds.
class OneFieldTab final : public ActionTab {
public:
    QWidget* fieldForOption(const QString& key) const override
    {
        return key == "replaceRemoveThis"_L1 ? m_field : nullptr;
    }

private:
    QLineEdit* m_field = new QLineEdit(this);
};

class ActionTabsTest : public ::testing::Test {
protected:
    void addPages()
    {
        tabWidget.addActionTab(general, tabs::General, u"General"_s);
        tabWidget.addActionTab(replace, tabs::ReplaceRemove, u"Replace"_s);
        tabWidget.showSelectedTab();
    }

    Settings settings;
    ActionTabs tabWidget { settings };
    GeneralTab* general = new GeneralTab(settings);
    OneFieldTab* replace = new OneFieldTab;
};

TEST_F(ActionTabsTest, TheSelectedTabFollowsTheVisiblePageAndTheSettings)
{
    settings.resetToStartValues();
    ASSERT_EQ(settings.selectedTab(), tabs::AlphaNumeric);
    addPages();
    tabWidget.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&tabWidget));
    EXPECT_EQ(settings.selectedTab(), tabs::General) << "a tab without a page yields to the visible one";
    EXPECT_EQ(tabWidget.pageForTab(tabs::ReplaceRemove), replace);
    EXPECT_EQ(tabWidget.pageForTab(tabs::AlphaNumeric), nullptr);

    tabWidget.setCurrentIndex(1);
    EXPECT_EQ(settings.selectedTab(), tabs::ReplaceRemove);
    EXPECT_EQ(tabWidget.currentActionTab(), replace);
    QTest::keyClick(tabWidget.tabBar(), Qt::Key_Left);
    EXPECT_EQ(settings.selectedTab(), tabs::General) << "the tabs are reachable by keyboard";

    settings.setSelectedTab(tabs::ReplaceRemove);
    EXPECT_EQ(tabWidget.currentActionTab(), replace);
    // A profile saved on a tab this window lacks: the visible page stays and says so.
    settings.setSelectedTab(tabs::Photo);
    EXPECT_EQ(tabWidget.currentActionTab(), replace);
    EXPECT_EQ(settings.selectedTab(), tabs::ReplaceRemove);
}

TEST_F(ActionTabsTest, TheTabOfTheLastSessionIsShownEvenWhenItsPageComesLater)
{
    settings.setSelectedTab(tabs::ReplaceRemove);
    addPages();
    EXPECT_EQ(tabWidget.currentActionTab(), replace);
    EXPECT_EQ(settings.selectedTab(), tabs::ReplaceRemove);
}

} // namespace
