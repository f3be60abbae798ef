#include "gui/engine/InsertDeleteTab.h"

#include "ActionTabFixture.h"
#include "core/engine/actions/insertdelete.h"
#include "core/text/LocalizedStrings.h"

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <vector>

using namespace tavrin;

namespace {

using InsertDeleteTabTest = test::ActionTabFixture<InsertDeleteTab>;

// The mirror boolean of each insert place, in the order of the option indexes.
const char* const kPlaceMirrors[] = {
    "isInsertDeleteInsertAtBeginning",
    "isInsertDeleteInsertAtEnd",
    "isInsertDeleteInsertAtPosition",
    "isInsertDeleteInsertAtBeforeText",
    "isInsertDeleteInsertAtAfterText",
};

// The inputs of each insert place, by option key.
const std::vector<std::vector<const char*>> kPlaceInputs = {
    {},
    {},
    { "insertDeleteAtCharacterPositions", "insertDeleteInsertAtPostionDirection" },
    { "insertDeleteInsertAtBeforeText", "insertDeleteInsertAtBeforeOccurrence" },
    { "insertDeleteInsertAtAfterText", "insertDeleteInsertAtAfterOccurrence" },
};

const char* const kDeleteInputs[] = { "insertDeleteNumberOfCharacters", "insertDeleteFromCharacterPosition",
    "isInsertDeleteDeleteFromBackWard" };

QString placeButton(int place)
{
    return QStringLiteral("insertPlace%1").arg(place);
}

TEST_F(InsertDeleteTabTest, TheRadioGroupsSetTheirIndexAndMirrors)
{
    click("deleteMode");
    EXPECT_EQ(settings.insertDeleteIndex(), 1);
    EXPECT_TRUE(settings.isInsertDeleteDelete());
    EXPECT_FALSE(settings.isInsertDeleteInsert());

    click("insertMode");
    EXPECT_EQ(settings.insertDeleteIndex(), 0);
    EXPECT_TRUE(settings.isInsertDeleteInsert());
    EXPECT_FALSE(settings.isInsertDeleteDelete());

    for (int place = insertoption::AfterText; place >= insertoption::AtBeginning; --place) {
        click(placeButton(place).toLatin1().constData());
        EXPECT_EQ(settings.insertDeleteInsertOptionIndex(), place);
        for (int mirror = 0; mirror < 5; ++mirror)
            EXPECT_EQ(settings.property(kPlaceMirrors[mirror]).toBool(), mirror == place)
                << place << " " << mirror;
    }
}

TEST_F(InsertDeleteTabTest, OnlyTheChosenModeAndPlaceHaveTheirInputsEnabled)
{
    auto* insertGroup = tab.findChild<QGroupBox*>(QStringLiteral("insertGroup"));
    auto* deleteGroup = tab.findChild<QGroupBox*>(QStringLiteral("deleteGroup"));
    ASSERT_NE(insertGroup, nullptr);
    ASSERT_NE(deleteGroup, nullptr);

    for (int chosen = 0; chosen < int(kPlaceInputs.size()); ++chosen) {
        click(placeButton(chosen).toLatin1().constData());
        EXPECT_TRUE(isEnabled("insertDeleteInsert"));
        for (int place = 0; place < int(kPlaceInputs.size()); ++place) {
            for (const char* key : kPlaceInputs[place])
                EXPECT_EQ(isEnabled(key), place == chosen) << "chosen " << chosen << ", " << key;
        }
        for (const char* key : kDeleteInputs)
            EXPECT_FALSE(isEnabled(key)) << key;
    }
    // The word between an anchor and its occurrence follows its place too.
    int enabledWords = 0;
    for (const QLabel* word : insertGroup->findChildren<QLabel*>(QString(), Qt::FindDirectChildrenOnly))
        enabledWords += word->isEnabled() && word->text() == localized("OCCURRENCE") ? 1 : 0;
    EXPECT_EQ(enabledWords, 1);

    click("deleteMode");
    EXPECT_FALSE(insertGroup->isEnabled());
    EXPECT_TRUE(deleteGroup->isEnabled());
    for (const char* key : kDeleteInputs)
        EXPECT_TRUE(isEnabled(key)) << key;
    EXPECT_FALSE(isEnabled("insertDeleteInsert"));
}

TEST_F(InsertDeleteTabTest, ChangesOfTheSettingsShowInTheWidgets)
{
    settings.chooseInsertPosition(insertoption::AtPosition);
    settings.setInsertDeleteAtCharacterPositions(QStringLiteral("7"));
    settings.setInsertDeleteInsertAtPostionDirection(insertdirection::FromEnd);
    settings.setIsInsertDeleteDeleteFromBackWard(true);
    settings.setInsertDeleteInsert(QStringLiteral("-v2"));

    EXPECT_TRUE(button("insertPlace2")->isChecked());
    EXPECT_FALSE(button("insertPlace0")->isChecked());
    EXPECT_EQ(field<QLineEdit>("insertDeleteAtCharacterPositions")->text(), QStringLiteral("7"));
    EXPECT_EQ(field<QLineEdit>("insertDeleteInsert")->text(), QStringLiteral("-v2"));
    EXPECT_EQ(field<QComboBox>("insertDeleteInsertAtPostionDirection")->currentIndex(), 1);
    EXPECT_EQ(field<QComboBox>("isInsertDeleteDeleteFromBackWard")->currentIndex(), 1);

    settings.chooseInsertOrDelete(1);
    EXPECT_TRUE(button("deleteMode")->isChecked());
    EXPECT_TRUE(isEnabled("insertDeleteNumberOfCharacters"));
}

TEST_F(InsertDeleteTabTest, TypingAndChoosingSetTheOptions)
{
    click("insertPlace2");
    typeInto("insertDeleteInsert", QStringLiteral("a/b"));
    EXPECT_EQ(settings.insertDeleteInsert(), QStringLiteral("a/b"))
        << "a slash is turned into a colon by the action";
    settings.setInsertDeleteAtCharacterPositions(QStringLiteral("5"));
    typeInto("insertDeleteAtCharacterPositions", QStringLiteral("x0"));
    EXPECT_EQ(settings.insertDeleteAtCharacterPositions(), QStringLiteral("1"));
    chooseItem("insertDeleteInsertAtPostionDirection", 1);
    EXPECT_EQ(settings.insertDeleteInsertAtPostionDirection(), insertdirection::FromEnd);

    click("deleteMode");
    typeInto("insertDeleteNumberOfCharacters", QStringLiteral("12"));
    EXPECT_EQ(settings.insertDeleteNumberOfCharacters(), QStringLiteral("12"));
    chooseItem("isInsertDeleteDeleteFromBackWard", 1);
    EXPECT_TRUE(settings.isInsertDeleteDeleteFromBackWard());
    chooseItem("isInsertDeleteDeleteFromBackWard", 0);
    EXPECT_FALSE(settings.isInsertDeleteDeleteFromBackWard());
}

TEST_F(InsertDeleteTabTest, EveryInputIsFoundByItsOptionAndExplained)
{
    std::vector<const char*> keys(std::begin(kDeleteInputs), std::end(kDeleteInputs));
    keys.push_back("insertDeleteInsert");
    for (const auto& inputs : kPlaceInputs)
        keys.insert(keys.end(), inputs.begin(), inputs.end());
    for (const char* key : keys) {
        QWidget* input = tab.fieldForOption(QString::fromLatin1(key));
        ASSERT_NE(input, nullptr) << key;
        EXPECT_FALSE(input->toolTip().isEmpty()) << key;
        EXPECT_FALSE(input->accessibleName().isEmpty()) << key;
    }
    EXPECT_EQ(field<QWidget>("insertDeleteInsertAtBeforeText")->toolTip(), button("insertPlace3")->toolTip());
    EXPECT_EQ(
        field<QWidget>("insertDeleteInsertAtBeforeText")->accessibleName(), button("insertPlace3")->text());
    EXPECT_EQ(
        field<QWidget>("insertDeleteInsertAtBeforeOccurrence")->accessibleName(), localized("OCCURRENCE"));
    const QString textName = field<QWidget>("insertDeleteInsert")->accessibleName();
    EXPECT_TRUE(localized("INSERTTEXT").startsWith(textName) && !textName.endsWith(QLatin1Char(':')))
        << "a label's colon is not read out";
}

} // namespace
