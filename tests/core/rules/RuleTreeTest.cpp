#include "core/profiles/Settings.h"
#include "core/profiles/Tabs.h"
#include "core/rules/RuleTree.h"
#include "core/rules/StepRecord.h"

#include <QTimeZone>
#include <functional>
#include <gtest/gtest.h>

#include "support/QtPrinters.h"

using namespace tavrin;
using namespace Qt::StringLiterals;

namespace {

// "label=value" for every leaf, in order.
QStringList leafTexts(const Rule& root)
{
    QStringList texts;
    for (const Rule& leaf : root.children()) {
        EXPECT_EQ(leaf.numberOfChildren(), -1);
        texts.append(leaf.option() + u'=' + leaf.value());
    }
    return texts;
}

struct TreeRow {
    int tab;
    std::function<void(Settings&)> set;
    const char* root;
    QStringList leaves;
};

TEST(RuleTree, EachStepShowsTheOptionsOfItsKindAsAPersonReadsThem)
{
    const TreeRow rows[] = {
        {tabs::AlphaNumeric,
         [](Settings& s) { s.setIsAlphaNumericPrefix(true); s.setIsAlphaNumericSeperator(true); s.setAlphaNumericSeperator(u"_"_s); s.chooseIncrementOrDecrement(1); s.setAlphaNumericDecrementBy(u"2"_s); },
         "Numbers",
         {u"Start with=1"_s, u"Count down by=2"_s, u"Before the name=Yes"_s, u"Separator=_"_s, u"Padding mask="_s}},
        {tabs::InsertDelete,
         [](Settings& s) { s.setInsertDeleteInsert(u"x"_s); s.chooseInsertPosition(2); s.setInsertDeleteInsertAtPostionDirection(1); },
         "Insert",
         {u"Insert=x"_s, u"At a position=Yes"_s, u"Character position=1"_s, u"Counted from=End"_s}},
        {tabs::ReplaceRemove,
         [](Settings& s) { s.setReplaceRemoveThis(u"a"_s); s.setIsReplaceRemoveAllOccurrence(true); s.setReplaceRemovePositionDirection(1); },
         "Replace",
         {u"Find=a"_s, u"Replace with="_s, u"Search from=End of the name"_s, u"From character=1"_s, u"Every occurrence=Yes"_s}},
        {tabs::PrefixSuffix,
         [](Settings& s) { s.choosePrefixSuffixMode(1); s.setPrefixSuffixDatePart2(QString()); s.setPrefixSuffixDateSeperator1(u"-"_s); s.setPrefixSuffixTimePart1(QString()); s.setPrefixSuffixTimePart2(QString()); s.setPrefixSuffixTimePart3(QString()); s.setIsPrefixSuffixDateSuffix(true); },
         "With a date",
         {u"Date used=Date created"_s, u"Date and time format=dd-Noneyyyy hh mm ss a"_s, u"After the name=Yes"_s,
          u"Text before="_s, u"Text after="_s}},
        {tabs::DateTime,
         [](Settings& s) { s.chooseDateTimeSource(2); s.setDateTimeCustomDate(QDateTime(QDate(2024, 3, 5), QTime(14, 30))); s.chooseDateTimePlacement(3); s.setDateTimeAtBeforeText(u"x"_s); s.setHasTimeFormat(false); },
         "Date and time",
         {u"Date used=Chosen date"_s, u"Chosen date=05/03/2024 02:30:00 PM"_s, u"Date placed=Before a text"_s,
          u"Text to find=x"_s, u"Occurrence number=1"_s, u"Date format=ddMMyyyy"_s, u"Separator="_s,
          u"Text before="_s, u"Text after="_s}},
        {tabs::General, [](Settings& s) { s.chooseGeneralOption(1); s.setGeneralExtensionCase(3); }, "General",
         {u"Extension in=Capitalised Words"_s}},
        {tabs::Audio, [](Settings& s) { s.setId3RenamingMask(u"<Title>"_s); }, "Audio tags",
         {u"Mask=<Title>"_s, u"Allowed extensions=.MP3; .M4A; .AAC; .M4B"_s}},
        {tabs::PathComponents, [](Settings& s) { s.choosePathComponentsPlacement(1); s.setPathComponentsPrefix(u"["_s); },
         "Folder names",
         {u"Folder levels=1"_s, u"At the end=Yes"_s, u"Separator="_s, u"Text before=["_s, u"Text after="_s}},
    };
    for (const TreeRow& row : rows) {
        Settings settings;
        settings.setSelectedTab(row.tab);
        row.set(settings);
        const Rule root = Rule::rootItem(getRule(settings).step.value_or(RuleStep()));
        EXPECT_EQ(root.option(), QString::fromUtf8(row.root));
        EXPECT_EQ(root.value(), QString());
        EXPECT_EQ(leafTexts(root), row.leaves) << row.root;
        EXPECT_EQ(root.numberOfChildren(), row.leaves.size());
    }
}

}  // namespace
