#include "gui/engine/ActionTabs.h"

#include "GuiFixture.h"
#include "gui/engine/GeneralTab.h"
#include "gui/engine/InsertDeleteTab.h"
#include "gui/engine/ReplaceRemoveTab.h"
#include "gui/engine/SequenceTab.h"
#include "gui/ui/TextFieldFormatter.h"

#include <QTabBar>

using namespace tavrin;
using namespace tavrin::test;

namespace {

enum class Kind { Sequence, InsertDelete, ReplaceRemove, General };

// Every input of each tab by its option, in the order of Kind.
const QList<const char*> kInputs[] = {
    { "alphaNumericNumericStartWith", "alphaNumericAlphabeticStartWith", "alphaNumericIncrementBy",
        "alphaNumericDecrementBy", "isAlphaNumericResetSequenceOnEachFolder", "isAlphaNumericPrefix",
        "isAlphaNumericSufix", "isAlphaNumericSeperator", "alphaNumericSeperator",
        "alphaNumericPaddingMask" },
    { "insertDeleteInsert", "insertDeleteAtCharacterPositions", "insertDeleteInsertAtPostionDirection",
        "insertDeleteInsertAtBeforeText", "insertDeleteInsertAtBeforeOccurrence",
        "insertDeleteInsertAtAfterText", "insertDeleteInsertAtAfterOccurrence",
        "insertDeleteNumberOfCharacters", "insertDeleteFromCharacterPosition",
        "isInsertDeleteDeleteFromBackWard" },
    { "replaceRemoveThis", "replaceRemoveWith", "isReplaceRemoveCaseSensitive",
        "replaceRemoveStartFromCharacter", "replaceRemovePositionDirection", "isReplaceRemoveAllOccurrence",
        "replaceRemoveStartOnOccurrence", "replaceRemoveOccuranceCount" },
    { "generalFileNameCase", "generalExtensionCase", "generalChangeExtension", "generalSwapSeperator",
        "generalSwapPosition", "generalRemoveAfterString", "generalRemoveAfterStringOccurrence",
        "generalRemoveFromString", "generalRemoveFromStringOccurrence", "generalFilenameMask",
        "generalConvertWindowsCompatibleString" },
};

// The inputs that no choice of their tab disables.
const QList<const char*> kAlwaysEnabled = { "isAlphaNumericResetSequenceOnEachFolder", "isAlphaNumericPrefix",
    "isAlphaNumericSufix", "alphaNumericPaddingMask", "isReplaceRemoveCaseSensitive",
    "replaceRemoveStartFromCharacter", "replaceRemovePositionDirection" };

// One action tab shown on its own over settings at their start values.
class ActionTabTest : public ::testing::Test {
protected:
    void show(Kind kind)
    {
        settings.resetToStartValues();
        const std::function<ActionTab*()> makers[]
            = { [&] { return new SequenceTab(settings); }, [&] { return new InsertDeleteTab(settings); },
                  [&] { return new ReplaceRemoveTab(settings); }, [&] { return new GeneralTab(settings); } };
        tab.reset(makers[static_cast<int>(kind)]());
        tab->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(tab.get()));
    }

    QAbstractButton* button(const QString& name) const { return part<QAbstractButton>(tab.get(), name); }
    void click(const QString& name) const { press(button(name)); }

    QWidget* field(const char* optionKey) const
    {
        QWidget* found = tab->fieldForOption(QString::fromLatin1(optionKey));
        EXPECT_NE(found, nullptr) << optionKey;
        return found;
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

// A button chooses its index of its group, and a choice made elsewhere checks its button;
// the settings set the mirror booleans of a group with its index.
TEST_F(ActionTabTest, EachRadioButtonStandsForItsIndexOfItsGroup)
{
    const std::tuple<Kind, const char*, QStringList> groups[] = {
        { Kind::Sequence, "alphaNumericNumericAlphabeticIndex",
            { u"sequenceNumeric"_s, u"sequenceAlphabetic"_s } },
        { Kind::Sequence, "alphaNumericIncrementDecrementIndex",
            { u"sequenceIncrement"_s, u"sequenceDecrement"_s } },
        { Kind::InsertDelete, "insertDeleteIndex", { u"insertMode"_s, u"deleteMode"_s } },
        { Kind::InsertDelete, "insertDeleteInsertOptionIndex", numbered(u"insertPlace"_s, 5) },
        { Kind::ReplaceRemove, "removeReplaceIndex",
            { u"replaceMode"_s, u"removeMode"_s, u"removeCharactersMode"_s } },
        { Kind::General, "generalOptionIndex", numbered(u"generalOption"_s, 12) },
    };
    for (const auto& [kind, indexKey, buttons] : groups) {
        show(kind);
        for (auto chosen = buttons.size() - 1; chosen >= 0; --chosen) {
            click(buttons[chosen]);
            EXPECT_EQ(settings.property(indexKey).toInt(), chosen) << buttons[chosen].toStdString();
        }
        for (qsizetype chosen = 1; chosen < buttons.size(); ++chosen) {
            settings.chooseRadioOption(QString::fromLatin1(indexKey), int(chosen));
            EXPECT_TRUE(button(buttons[chosen])->isChecked()) << buttons[chosen].toStdString();
            EXPECT_FALSE(button(buttons[chosen - 1])->isChecked()) << buttons[chosen].toStdString();
        }
    }
    // The action counts down when both directions are set, and the tab says so.
    show(Kind::Sequence);
    settings.chooseIncrementOrDecrement(1);
    settings.setIsAlphaNumericIncrement(true);
    EXPECT_TRUE(button(u"sequenceDecrement"_s)->isChecked());
    // A profile with no mode set runs no action; no button claims otherwise.
    show(Kind::ReplaceRemove);
    settings.setIsReplaceRemoveReplace(false);
    for (const char* mode : { "replaceMode", "removeMode", "removeCharactersMode" })
        EXPECT_FALSE(button(QString::fromLatin1(mode))->isChecked()) << mode;
}

struct EnabledRow {
    Kind kind;
    QStringList clicks;
    QList<std::pair<const char*, bool>> switches;
    QList<const char*> enabled; // besides the ones always enabled
};

// Only the inputs of what is chosen are enabled, so the tab shows what the next preview uses.
TEST_F(ActionTabTest, OnlyTheInputsOfTheChosenOptionsAreEnabled)
{
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
        for (const char* key : kInputs[static_cast<int>(row.kind)]) {
            EXPECT_EQ(field(key)->isEnabled(), row.enabled.contains(key) || kAlwaysEnabled.contains(key))
                << row.clicks.join(u' ').toStdString() << ": " << key;
        }
    }
    // The word between a text and its occurrence follows its option too.
    for (const auto& [kind, choice] :
        { std::pair(Kind::General, "generalOption8"), std::pair(Kind::InsertDelete, "insertPlace4") }) {
        show(kind);
        click(QString::fromLatin1(choice));
        int enabledWords = 0;
        for (const QLabel* word : tab->findChildren<QLabel*>())
            enabledWords += word->isEnabled() && word->text() == localized("OCCURRENCE") ? 1 : 0;
        EXPECT_EQ(enabledWords, 1) << choice;
    }
}

struct InputRow {
    Kind kind;
    QString choice;
    const char* key;
    QString typed; // null: pick the item of that index, or tick when it is -1
    int index;
    QVariant stored;
};

// Each field filters with its own kind: letters, a start that may be 0, steps and positions
// that may not. The filter runs at every key, so a digit typed after letters goes at once.
// A chooser stores the value of its item, not the item's index.
TEST_F(ActionTabTest, TypingChoosingAndTickingSetTheirOptions)
{
    const InputRow rows[] = {
        { Kind::Sequence, u"sequenceAlphabetic"_s, "alphaNumericAlphabeticStartWith", u"AB1c"_s, 0,
            u"abc"_s },
        { Kind::Sequence, u"sequenceIncrement"_s, "alphaNumericIncrementBy", u" 0x"_s, 0, u"1"_s },
        { Kind::Sequence, u"sequenceNumeric"_s, "alphaNumericNumericStartWith", u"0"_s, 0, u"0"_s },
        { Kind::Sequence, {}, "alphaNumericPaddingMask", u"ID-00"_s, 0, u"ID-00"_s },
        // A slash is turned into a colon by the action, not by the field.
        { Kind::InsertDelete, {}, "insertDeleteInsert", u"a/b"_s, 0, u"a/b"_s },
        { Kind::InsertDelete, u"insertPlace2"_s, "insertDeleteAtCharacterPositions", u"x0"_s, 0, u"1"_s },
        { Kind::ReplaceRemove, {}, "replaceRemoveStartFromCharacter", u"0"_s, 0, u"1"_s },
        { Kind::General, u"generalOption8"_s, "generalRemoveAfterString", u"a/b"_s, 0, u"a/b"_s },
        { Kind::General, u"generalOption8"_s, "generalRemoveAfterStringOccurrence", u"x2"_s, 0, u"2"_s },
        { Kind::InsertDelete, u"insertPlace2"_s, "insertDeleteInsertAtPostionDirection", {}, 1, 1 },
        { Kind::InsertDelete, u"deleteMode"_s, "isInsertDeleteDeleteFromBackWard", {}, 1, true },
        { Kind::ReplaceRemove, {}, "replaceRemovePositionDirection", {}, 1, 1 },
        { Kind::General, u"generalOption0"_s, "generalFileNameCase", {}, 2, 3 },
        { Kind::ReplaceRemove, u"isReplaceRemoveCaseSensitive"_s, "isReplaceRemoveCaseSensitive", {}, -1,
            true },
        { Kind::Sequence, u"isAlphaNumericResetSequenceOnEachFolder"_s,
            "isAlphaNumericResetSequenceOnEachFolder", {}, -1, true },
    };
    for (const InputRow& row : rows) {
        show(row.kind);
        if (!row.choice.isEmpty())
            click(row.choice);
        if (!row.typed.isNull())
            typeInto(field(row.key), row.typed);
        else if (row.index >= 0)
            chooseItem(row.key, row.index);
        EXPECT_EQ(settings.property(row.key), row.stored) << row.key << " " << row.typed.toStdString();
    }
    EXPECT_EQ(settings.generalExtensionCase(), 1) << "the extension's chooser is another option";
}

// Settings changed from elsewhere (a profile, a validation) show as they are stored.
TEST_F(ActionTabTest, ChangesOfTheSettingsShowInTheInputs)
{
    for (const Kind kind : { Kind::Sequence, Kind::InsertDelete, Kind::ReplaceRemove, Kind::General }) {
        show(kind);
        for (const char* key : kInputs[static_cast<int>(kind)]) {
            QWidget* input = field(key);
            if (auto* line = qobject_cast<QLineEdit*>(input)) {
                settings.setProperty(key, u"07"_s);
                EXPECT_EQ(line->text(), u"07"_s) << key << ": shown as the action will use it";
            } else if (auto* box = qobject_cast<QCheckBox*>(input)) {
                settings.setProperty(key, !box->isChecked());
                EXPECT_EQ(box->isChecked(), settings.property(key).toBool()) << key;
            } else {
                auto* chooser = qobject_cast<QComboBox*>(input);
                settings.setProperty(key, chooser->itemData(chooser->count() - 1));
                EXPECT_EQ(chooser->currentIndex(), chooser->count() - 1) << key;
            }
        }
    }
    // A code the chooser does not offer must not pass for one it does.
    settings.setGeneralFileNameCase(0);
    EXPECT_EQ(qobject_cast<QComboBox*>(field("generalFileNameCase"))->currentIndex(), -1);
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

// Every input is found by its option for the focus after an alert, says what it is for, and
// a screen reader names it after the words before it.
TEST_F(ActionTabTest, EveryInputIsFoundByItsOptionAndExplained)
{
    for (const Kind kind : { Kind::Sequence, Kind::InsertDelete, Kind::ReplaceRemove, Kind::General }) {
        show(kind);
        for (const char* key : kInputs[static_cast<int>(kind)]) {
            EXPECT_FALSE(field(key)->toolTip().isEmpty()) << key;
            EXPECT_TRUE(qobject_cast<QCheckBox*>(field(key)) || !field(key)->accessibleName().isEmpty())
                << key;
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

    // The find field says whether it holds a text or a set of characters.
    show(Kind::ReplaceRemove);
    QWidget* find = field("replaceRemoveThis");
    click(u"removeCharactersMode"_s);
    EXPECT_EQ(find->toolTip(), localized("REPLACECHARACTERSTIP"));
    const QString charactersName = find->accessibleName();
    click(u"removeMode"_s);
    EXPECT_EQ(find->toolTip(), localized("REPLACEFINDTIP"));
    EXPECT_NE(find->accessibleName(), charactersName);
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

struct FilterRow {
    TextFieldFormatter::Kind kind;
    const char* typed;
    const char* kept;
};

// Letters and safe characters are only trimmed at the ends; numbers keep their digits
// wherever they stand.
const FilterRow kFilters[] = {
    { TextFieldFormatter::Kind::Letters, "AB1c", "ab1c" },
    { TextFieldFormatter::Kind::Letters, "123", "a" },
    { TextFieldFormatter::Kind::Letters, "", "a" },
    { TextFieldFormatter::Kind::Letters, " -Xy. ", "xy" },
    { TextFieldFormatter::Kind::Letters, "zz", "zz" },
    { TextFieldFormatter::Kind::PositiveNumber, " 0x", "1" },
    { TextFieldFormatter::Kind::PositiveNumber, "", "1" },
    { TextFieldFormatter::Kind::PositiveNumber, "000", "1" },
    { TextFieldFormatter::Kind::PositiveNumber, "x7y", "7" },
    { TextFieldFormatter::Kind::PositiveNumber, "1 2", "12" },
    { TextFieldFormatter::Kind::PositiveNumber, "-3", "3" },
    { TextFieldFormatter::Kind::PositiveNumber, "007", "007" },
    { TextFieldFormatter::Kind::Number, "", "0" },
    { TextFieldFormatter::Kind::Number, "0", "0" },
    { TextFieldFormatter::Kind::Number, " 12a", "12" },
    { TextFieldFormatter::Kind::SafeCharacters, "/_X|", "_x" },
    { TextFieldFormatter::Kind::SafeCharacters, "\\:*?\"<>|", "" },
    { TextFieldFormatter::Kind::SafeCharacters, "a:b", "a:b" },
    { TextFieldFormatter::Kind::SafeCharacters, " -", " -" },
    { TextFieldFormatter::Kind::Text, " a/b ", " a/b " },
    { TextFieldFormatter::Kind::Text, "", "" },
};

TEST(TextFieldFormatterTest, EachKindKeepsWhatItsOptionCanHold)
{
    for (const FilterRow& row : kFilters) {
        EXPECT_EQ(
            TextFieldFormatter::filtered(row.kind, QString::fromUtf8(row.typed)), QString::fromUtf8(row.kept))
            << int(row.kind) << " \"" << row.typed << '"';
    }
}

class FormattedFieldTest : public ::testing::Test {
protected:
    void attach(TextFieldFormatter::Kind kind, int maximumLength = 9)
    {
        formatter = new TextFieldFormatter(&field, kind, maximumLength);
        edits = std::make_unique<QSignalSpy>(formatter, &TextFieldFormatter::edited);
        field.show();
        field.setFocus();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&field));
    }

    QString lastEdit() const { return edits->isEmpty() ? QString() : edits->last().first().toString(); }

    QLineEdit field;
    TextFieldFormatter* formatter = nullptr;
    std::unique_ptr<QSignalSpy> edits;
};

// A stand-in value is selected, so the next key replaces it.
TEST_F(FormattedFieldTest, TheEditSignalCarriesTheFilteredTextAndAStandInGoesAtTheNextKey)
{
    attach(TextFieldFormatter::Kind::PositiveNumber);
    QTest::keyClicks(&field, u"5"_s);
    QTest::keyClick(&field, Qt::Key_Backspace);
    EXPECT_EQ(field.text(), u"1"_s);
    EXPECT_EQ(field.selectedText(), u"1"_s);
    EXPECT_EQ(lastEdit(), u"1"_s);
    EXPECT_EQ(edits->size(), 2);
    QTest::keyClicks(&field, u"3x"_s);
    EXPECT_EQ(field.text(), u"3"_s) << "not 13";
}

TEST_F(FormattedFieldTest, ARefusedCharacterLeavesTheCursorWhereTheUserTyped)
{
    attach(TextFieldFormatter::Kind::PositiveNumber);
    QTest::keyClicks(&field, u"1234"_s);
    field.setCursorPosition(2);
    QTest::keyClicks(&field, u"x9"_s);
    EXPECT_EQ(field.text(), u"12934"_s);
    EXPECT_EQ(field.cursorPosition(), 3);
}

TEST_F(FormattedFieldTest, OnlyTheUsersEditsAreFilteredAndTheLengthIsLimited)
{
    attach(TextFieldFormatter::Kind::PositiveNumber, 3);
    field.setText(u"0"_s);
    EXPECT_EQ(field.text(), u"0"_s) << "a stored value shows as the action will use it";
    EXPECT_TRUE(edits->isEmpty());
    field.selectAll();
    QTest::keyClicks(&field, u"98765"_s);
    EXPECT_EQ(field.text(), u"987"_s);
}

} // namespace
