#include "ActionTestSupport.h"
#include "core/engine/actions/alphanumeric.h"

#include <gtest/gtest.h>
#include <limits>
#include <vector>

using namespace tavrin;
using test::q;

namespace {

using Placement = SequencePlacement;
constexpr auto decrement = SequenceDirection::Decrement;
constexpr auto stay = SequenceDirection::Stay;

// A run of the action over one fresh "photo.jpg" per expected name, the counter passed on.
template <typename Counter>
struct SequenceRow {
    const char* name;
    SequenceOptions options;
    Counter start;
    std::vector<const char*> expected;
    Counter counterAfter;
};

using NumericRow = SequenceRow<int>;
using AlphabeticRow = SequenceRow<QString>;

class AlphaNumericAction : public test::ActionTest {
protected:
    template <typename Counter, typename Action>
    void expectRun(const SequenceRow<Counter>& row, Action action, const char* onDisk = "photo.jpg",
                   const char* earlier = "")
    {
        SCOPED_TRACE(row.name);
        Counter counter = row.start;
        for (const char* expected : row.expected) {
            FileSystemItem record = item(onDisk, earlier);
            QString error;
            EXPECT_TRUE(action(record, row.options, counter, error));
            EXPECT_EQ(record.newFilename(), q(expected));
        }
        EXPECT_EQ(counter, row.counterAfter);
    }
};

TEST_F(AlphaNumericAction, NumbersWithMaskPlacementAndSeparator)
{
    const NumericRow rows[] = {
        {"after, mask wider", {.placement = Placement::AfterName, .separator = "-", .paddingMask = "00"}, 9,
         {"photo-09.jpg", "photo-10.jpg"}, 11},
        {"a narrower mask truncates", {.placement = Placement::AfterName, .separator = "-", .paddingMask = "0"}, 9,
         {"photo-9.jpg", "photo-1.jpg"}, 11},
        {"before, mask longer", {.placement = Placement::BeforeName, .paddingMask = "0000"}, 42, {"0042photo.jpg"}, 43},
        {"the mask's own characters", {.paddingMask = "ID-00"}, 7, {"ID-07.jpg"}, 8},
        {"value longer than the mask", {.paddingMask = "000"}, 12345, {"123.jpg"}, 12346},
        {"instead of the name", {}, 0, {"0.jpg", "1.jpg", "2.jpg"}, 3},
        {"both ends", {.placement = Placement::BothEnds, .separator = "_"}, 3, {"3_photo_3.jpg"}, 4},
        {"typed slashes", {.placement = Placement::BeforeName, .separator = "/", .paddingMask = "a/00"}, 5,
         {"a:05:photo.jpg"}, 6},
    };
    for (const NumericRow& row : rows)
        expectRun(row, renameByNumeric);
}

TEST_F(AlphaNumericAction, NumericStepsNeverLeaveTheIntRangeOrDropBelowZero)
{
    constexpr int largest = std::numeric_limits<int>::max();
    const NumericRow rows[] = {
        {"step 3", {.step = 3}, 0, {"0.jpg", "3.jpg", "6.jpg"}, 9},
        {"steps below 1 count as 1", {.step = 0}, 4, {"4.jpg", "5.jpg"}, 6},
        {"decrement to 0 and stay", {.direction = decrement, .step = 5}, 1, {"1.jpg", "0.jpg", "0.jpg"}, 0},
        {"decrement by less than 1", {.direction = decrement, .step = -4}, 2, {"2.jpg", "1.jpg"}, 0},
        {"stay", {.direction = stay}, 5, {"5.jpg", "5.jpg"}, 5},
        {"negative start", {}, -3, {"0.jpg", "1.jpg"}, 2},
        {"stops at the largest int", {.step = 5}, largest - 1, {"2147483646.jpg", "2147483647.jpg", "2147483647.jpg"},
         largest},
    };
    for (const NumericRow& row : rows)
        expectRun(row, renameByNumeric);
}

TEST_F(AlphaNumericAction, LettersCarryAndBorrowAcrossPositions)
{
    const AlphabeticRow rows[] = {
        {"past z", {}, "x", {"x.jpg", "y.jpg", "z.jpg", "aa.jpg", "ab.jpg"}, "ac"},
        {"past zz", {}, "zy", {"zy.jpg", "zz.jpg", "aaa.jpg"}, "aab"},
        {"down past a", {.direction = decrement}, "ab", {"ab.jpg", "aa.jpg", "z.jpg", "y.jpg"}, "x"},
        {"down from a goes round to z", {.direction = decrement}, "a", {"a.jpg", "z.jpg"}, "y"},
        {"down by less than 1", {.direction = decrement, .step = 0}, "c", {"c.jpg", "b.jpg"}, "a"},
        {"step 2 across z", {.step = 2}, "y", {"y.jpg", "ab.jpg"}, "ad"},
        {"steps above 26 count as 26", {.step = 40}, "a", {"a.jpg", "az.jpg"}, "bz"},
        {"26 itself", {.step = 26}, "a", {"a.jpg", "az.jpg"}, "bz"},
        {"empty start", {}, "", {"a.jpg", "b.jpg"}, "c"},
        {"stay", {.direction = stay}, "c", {"c.jpg", "c.jpg"}, "c"},
        // A start outside the letters is used once, then stepped into range.
        {"upper case", {}, "A", {"A.jpg", "a.jpg", "b.jpg"}, "c"},
        {"a digit", {}, "a1", {"a1.jpg", "aa.jpg"}, "ab"},
        {"beyond z", {}, "{", {"{.jpg", "aa.jpg"}, "ab"},
        {"upper case downwards", {.direction = decrement}, "B", {"B.jpg", "z.jpg"}, "y"},
        // Stepping this one into range one letter at a time would take longer than any batch.
        {"hopeless", {}, "A0000000", {"A0000000.jpg", "a.jpg"}, "b"},
    };
    for (const AlphabeticRow& row : rows)
        expectRun(row, renameByAlphabetic);
}

TEST_F(AlphaNumericAction, LetterPlacementWrapsTheNameDifferently)
{
    const AlphabeticRow rows[] = {
        {"both ends", {.placement = Placement::BothEnds, .separator = "_"}, "c", {"photo_c_photo.jpg"}, "d"},
        {"before", {.placement = Placement::BeforeName, .separator = "_"}, "c", {"c_photo.jpg"}, "d"},
        {"after", {.placement = Placement::AfterName, .separator = "_"}, "c", {"photo_c.jpg"}, "d"},
        {"mask longer than the value", {.placement = Placement::BeforeName, .paddingMask = "00"}, "c",
         {"0cphoto.jpg"}, "d"},
        // A longer value is cut to the mask, and the sequence goes on from there.
        {"mask shorter than the value", {.paddingMask = "**"}, "abcd", {"ab.jpg", "ac.jpg"}, "ad"},
        {"mask shorter, then carrying", {.paddingMask = "**"}, "zz", {"zz.jpg", "aa.jpg"}, "ab"},
        // Unlike numbers, letters take the separator and the mask as typed.
        {"no slash conversion", {.placement = Placement::BeforeName, .separator = "/", .paddingMask = "/0"}, "c",
         {"/c/photo.jpg"}, "d"},
    };
    for (const AlphabeticRow& row : rows)
        expectRun(row, renameByAlphabetic);
}

TEST_F(AlphaNumericAction, SequencesWorkOnTheNameAnEarlierStepProposed)
{
    expectRun(NumericRow{"numeric", {.placement = Placement::BeforeName, .separator = "_"}, 0, {"0_new.md"}, 1},
              renameByNumeric, "old.txt", "new.md");
    expectRun(AlphabeticRow{"alphabetic", {.placement = Placement::AfterName}, "a", {"newa"}, "b"},
              renameByAlphabetic, "old.txt", "new");
}

TEST_F(AlphaNumericAction, TheCounterIsWrittenBackAlsoWhenTheCallFails)
{
    FileSystemItem record = item("a.txt");
    QString error = q("earlier");
    int number = 4;
    EXPECT_FALSE(renameByNumeric(record, {.step = 2}, number, error));
    EXPECT_EQ(number, 6);
    QString letters = q("z");
    EXPECT_FALSE(renameByAlphabetic(record, {.kind = SequenceKind::Alphabetic}, letters, error));
    EXPECT_EQ(letters, q("aa"));
    EXPECT_EQ(error, q("earlier"));
}

// The numbering tab warns beside the mask when it would cut the numbers of the list.
TEST(NumbersOverflowMask, ComparesTheLargestNumberWithTheMask)
{
    struct Row {
        const char* name;
        SequenceOptions options;
        int count;
        bool cut;
    };
    const auto numbers = [](int start, const char* mask, SequenceDirection direction = SequenceDirection::Increment,
                            int step = 1) {
        SequenceOptions options;
        options.numericStart = start;
        options.paddingMask = q(mask);
        options.direction = direction;
        options.step = step;
        return options;
    };
    SequenceOptions letters = numbers(10, "0");
    letters.kind = SequenceKind::Alphabetic;
    const Row rows[] = {
        {"10 to 12 in one digit", numbers(10, "0"), 3, true},
        {"1 to 9 in one digit", numbers(1, "0"), 9, false},
        {"1 to 10 in one digit", numbers(1, "0"), 10, true},
        {"steps of 5 reach 11", numbers(1, "0", SequenceDirection::Increment, 5), 3, true},
        {"counting down stays within the start", numbers(9, "0", decrement), 100, false},
        {"no mask cuts nothing", numbers(10, ""), 3, false},
        {"an empty list", numbers(10, "0"), 0, false},
        {"letters are not numbers", letters, 3, false},
    };
    for (const Row& row : rows)
        EXPECT_EQ(numbersOverflowMask(row.options, row.count), row.cut) << row.name;
}

struct FromRow {
    const char* name;
    int incrementOrDecrement;  // -1: neither switch on
    bool prefix;
    bool suffix;
    bool separator;
    SequenceDirection direction;
    int step;
    SequencePlacement placement;
    const char* separatorText;
};

TEST(SequenceOptionsFrom, TheSwitchesPickDirectionStepPlacementAndSeparator)
{
    const FromRow rows[] = {
        {"increment", 0, false, false, false, SequenceDirection::Increment, 3, Placement::InsteadOfName, ""},
        {"decrement", 1, true, false, true, decrement, 7, Placement::BeforeName, "_"},
        {"neither", -1, false, true, false, stay, 1, Placement::AfterName, ""},
        {"both ends", 0, true, true, true, SequenceDirection::Increment, 3, Placement::BothEnds, "_"},
    };
    for (const FromRow& row : rows) {
        SCOPED_TRACE(row.name);
        Settings settings;
        settings.chooseIncrementOrDecrement(std::max(row.incrementOrDecrement, 0));
        if (row.incrementOrDecrement < 0)
            settings.setIsAlphaNumericIncrement(false);
        settings.setAlphaNumericIncrementBy(q("3"));
        settings.setAlphaNumericDecrementBy(q("7th"));
        settings.setIsAlphaNumericPrefix(row.prefix);
        settings.setIsAlphaNumericSufix(row.suffix);
        settings.setIsAlphaNumericSeperator(row.separator);
        settings.setAlphaNumericSeperator(q("_"));
        const auto options = test::optionsFrom<SequenceOptions>(settings);
        EXPECT_EQ(options.direction, row.direction);
        EXPECT_EQ(options.step, row.step);
        EXPECT_EQ(options.placement, row.placement);
        EXPECT_EQ(options.separator, q(row.separatorText));
    }
}

TEST(SequenceOptionsFrom, DecrementWinsAndTheStartsAreReadByKey)
{
    Settings settings;
    settings.chooseNumericOrAlphabetic(1);
    settings.setIsAlphaNumericIncrement(true);
    settings.setIsAlphaNumericDecrement(true);
    settings.setAlphaNumericDecrementBy(q("2"));
    settings.setAlphaNumericPaddingMask(q("00"));
    settings.setAlphaNumericNumericStartWith(q("-5"));
    settings.setAlphaNumericAlphabeticStartWith(q("b"));
    const auto options = test::optionsFrom<SequenceOptions>(settings);
    EXPECT_EQ(options.kind, SequenceKind::Alphabetic);
    EXPECT_EQ(options.direction, decrement);
    EXPECT_EQ(QList<int>({options.step, options.numericStart}), QList<int>({2, -5}));
    EXPECT_EQ(options.paddingMask + options.alphabeticStart, q("00b"));
}

struct LetterRow {
    QString value;
    int step;
    QString expected;
};

TEST(AlphabeticNumber, NextCarriesFromTheRight)
{
    const LetterRow rows[] = {
        {q("a"), 1, q("b")},
        {q("z"), 1, q("aa")},
        {q("az"), 1, q("ba")},
        {q("zz"), 1, q("aaa")},
        {q("zzz"), 1, q("aaaa")},
        // The last letter wraps to "a" + (step - 1), whatever the overshoot.
        {q("y"), 3, q("ac")},
        {q("x"), 26, q("az")},
        {q("abz"), 2, q("acb")},
        // An empty value has only the carry slot, which becomes the step's character.
        {QString(), 1, QString(QChar(u'\x01'))},
        // Characters outside the letters move by their code.
        {q("A"), 1, q("B")},
        {q("a{"), 1, q("ba")},
    };
    for (const LetterRow& row : rows) {
        SCOPED_TRACE(testing::Message() << qPrintable(row.value) << '+' << row.step);
        EXPECT_EQ(nextAlphabeticNumber(row.value, row.step), row.expected);
    }
}

TEST(AlphabeticNumber, PreviousBorrowsAndDropsTheFirstLetter)
{
    const LetterRow rows[] = {
        {q("b"), 1, q("a")},
        {q("ba"), 1, q("az")},
        {q("aa"), 1, q("z")},
        {q("aaa"), 1, q("zz")},
        {q("a"), 1, QString()},
        {QString(), 1, QString()},
        {q("bc"), 3, q("ax")},
        {q("c"), 3, QString()},
        // What the action makes of an empty value steps on to "z".
        {QStringLiteral("a") + QChar(u'\0'), 1, q("z")},
    };
    for (const LetterRow& row : rows) {
        SCOPED_TRACE(testing::Message() << qPrintable(row.value) << '-' << row.step);
        EXPECT_EQ(previousAlphabeticNumber(row.value, row.step), row.expected);
    }
}

TEST(AlphabeticNumber, InRangeMeansLowerCaseLettersOnly)
{
    for (const char* inRange : {"", "abcxyz"})
        EXPECT_TRUE(isAlphabeticNumericInRange(q(inRange))) << inRange;
    for (const char* outside : {"aZ", "a1", "`", "{", "\xc3\xa9"})
        EXPECT_FALSE(isAlphabeticNumericInRange(q(outside))) << outside;
    EXPECT_FALSE(isAlphabeticNumericInRange(QStringLiteral("a") + QChar(u'\0')));
}

}  // namespace
