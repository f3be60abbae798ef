#include "ActionTestSupport.h"
#include "core/engine/actions/alphanumeric.h"

#include <gtest/gtest.h>
#include <limits>
#include <vector>

using namespace tavrin;
using test::q;

namespace {

// The sequence options as the pipeline hands them over; the defaults count up by one and
// put the bare value in place of the name.
struct Sequence {
    bool increment = true;
    bool decrement = false;
    bool prefix = false;
    bool suffix = false;
    bool separator = false;
    const char* separatorText = "";
    const char* mask = "";
    int incrementBy = 1;
    int decrementBy = 1;
};

struct NumericRow {
    const char* label;
    Sequence sequence;
    int start;
    std::vector<const char*> expected;  // one item named "photo.jpg" per entry
    int counterAfter;
};

struct AlphabeticRow {
    const char* label;
    Sequence sequence;
    const char* start;
    std::vector<const char*> expected;
    const char* counterAfter;
};

class AlphaNumericAction : public test::ActionTest {
protected:
    // Runs the action over one fresh record per expected name, passing the counter on.
    void expectNumeric(const NumericRow& row, const char* onDisk = "photo.jpg", const char* earlier = "")
    {
        const Sequence& s = row.sequence;
        int counter = row.start;
        for (const char* expected : row.expected) {
            FileSystemItem record = item(onDisk, earlier);
            QString error;
            EXPECT_TRUE(renameByNumeric(record, s.increment, s.decrement, s.prefix, s.suffix, s.separator,
                                        q(s.separatorText), q(s.mask), counter, s.incrementBy, s.decrementBy, error))
                << row.label;
            EXPECT_EQ(record.newFilename(), q(expected)) << row.label;
        }
        EXPECT_EQ(counter, row.counterAfter) << row.label;
    }

    void expectAlphabetic(const AlphabeticRow& row, const char* onDisk = "photo.jpg", const char* earlier = "")
    {
        const Sequence& s = row.sequence;
        QString counter = q(row.start);
        for (const char* expected : row.expected) {
            FileSystemItem record = item(onDisk, earlier);
            QString error;
            EXPECT_TRUE(renameByAlphabetic(record, s.increment, s.decrement, s.prefix, s.suffix, s.separator,
                                           q(s.separatorText), q(s.mask), counter, s.incrementBy, s.decrementBy, error))
                << row.label;
            EXPECT_EQ(record.newFilename(), q(expected)) << row.label;
        }
        EXPECT_EQ(counter, q(row.counterAfter)) << row.label;
    }
};

TEST_F(AlphaNumericAction, NumbersWithMaskPlacementAndSeparator)
{
    const NumericRow rows[] = {
        {"suffix, mask wider", {.suffix = true, .separator = true, .separatorText = "-", .mask = "00"}, 9,
         {"photo-09.jpg", "photo-10.jpg"}, 11},
        {"a narrower mask truncates", {.suffix = true, .separator = true, .separatorText = "-", .mask = "0"}, 9,
         {"photo-9.jpg", "photo-1.jpg"}, 11},
        {"mask longer than the value", {.prefix = true, .mask = "0000"}, 42, {"0042photo.jpg"}, 43},
        {"mask longer by its own characters", {.mask = "ID-00"}, 7, {"ID-07.jpg"}, 8},
        {"value longer than the mask", {.mask = "000"}, 12345, {"123.jpg"}, 12346},
        {"neither end: the bare number", {}, 0, {"0.jpg", "1.jpg", "2.jpg"}, 3},
        {"both ends", {.prefix = true, .suffix = true, .separator = true, .separatorText = "_"}, 3, {"3_photo_3.jpg"},
         4},
        {"separator text without its switch", {.prefix = true, .separatorText = "_"}, 3, {"3photo.jpg"}, 4},
        {"typed slashes", {.prefix = true, .separator = true, .separatorText = "/", .mask = "a/00"}, 5,
         {"a:05:photo.jpg"}, 6},
    };
    for (const NumericRow& row : rows)
        expectNumeric(row);
}

TEST_F(AlphaNumericAction, NumericStepsNeverLeaveTheIntRangeOrDropBelowZero)
{
    constexpr int largest = std::numeric_limits<int>::max();
    const NumericRow rows[] = {
        {"step 3", {.incrementBy = 3}, 0, {"0.jpg", "3.jpg", "6.jpg"}, 9},
        {"steps below 1 count as 1", {.incrementBy = 0}, 4, {"4.jpg", "5.jpg"}, 6},
        {"decrement to 0 and stay", {.increment = false, .decrement = true, .decrementBy = 5}, 1,
         {"1.jpg", "0.jpg", "0.jpg"}, 0},
        {"decrement by less than 1", {.increment = false, .decrement = true, .decrementBy = -4}, 2, {"2.jpg", "1.jpg"},
         0},
        {"decrement wins", {.decrement = true, .incrementBy = 10, .decrementBy = 2}, 6, {"6.jpg", "4.jpg"}, 2},
        {"neither direction", {.increment = false}, 5, {"5.jpg", "5.jpg"}, 5},
        {"negative start", {}, -3, {"0.jpg", "1.jpg"}, 2},
        {"stops at the largest int", {.incrementBy = 5}, largest - 1,
         {"2147483646.jpg", "2147483647.jpg", "2147483647.jpg"}, largest},
    };
    for (const NumericRow& row : rows)
        expectNumeric(row);
}

TEST_F(AlphaNumericAction, LettersCarryAndBorrowAcrossPositions)
{
    const AlphabeticRow rows[] = {
        {"past z", {}, "x", {"x.jpg", "y.jpg", "z.jpg", "aa.jpg", "ab.jpg"}, "ac"},
        {"past zz", {}, "zy", {"zy.jpg", "zz.jpg", "aaa.jpg"}, "aab"},
        {"down past a", {.increment = false, .decrement = true}, "ab", {"ab.jpg", "aa.jpg", "z.jpg", "y.jpg"}, "x"},
        {"down from a goes round to z", {.increment = false, .decrement = true}, "a", {"a.jpg", "z.jpg"}, "y"},
        {"down from aaa", {.increment = false, .decrement = true}, "aaa", {"aaa.jpg", "zz.jpg"}, "zy"},
        {"step 2 across z", {.incrementBy = 2}, "y", {"y.jpg", "ab.jpg"}, "ad"},
        {"steps above 26 count as 26", {.incrementBy = 40}, "a", {"a.jpg", "az.jpg"}, "bz"},
        {"26 itself", {.incrementBy = 26}, "a", {"a.jpg", "az.jpg"}, "bz"},
        {"empty start", {}, "", {"a.jpg", "b.jpg"}, "c"},
        {"neither direction", {.increment = false}, "c", {"c.jpg", "c.jpg"}, "c"},
    };
    for (const AlphabeticRow& row : rows)
        expectAlphabetic(row);
}

TEST_F(AlphaNumericAction, AStartOutsideTheLettersIsUsedOnceThenSteppedIntoRange)
{
    const AlphabeticRow rows[] = {
        {"upper case", {}, "A", {"A.jpg", "a.jpg", "b.jpg"}, "c"},
        {"a digit", {}, "a1", {"a1.jpg", "aa.jpg"}, "ab"},
        {"beyond z", {}, "{", {"{.jpg", "aa.jpg"}, "ab"},
        {"upper case downwards", {.increment = false, .decrement = true}, "B", {"B.jpg", "z.jpg"}, "y"},
        // Stepping this one into range one letter at a time would take longer than any batch.
        {"hopeless", {}, "A0000000", {"A0000000.jpg", "a.jpg"}, "b"},
    };
    for (const AlphabeticRow& row : rows)
        expectAlphabetic(row);
}

TEST_F(AlphaNumericAction, LetterPlacementWrapsTheNameDifferently)
{
    const AlphabeticRow rows[] = {
        {"both ends", {.prefix = true, .suffix = true, .separator = true, .separatorText = "_"}, "c",
         {"photo_c_photo.jpg"}, "d"},
        {"prefix", {.prefix = true, .separator = true, .separatorText = "_"}, "c", {"c_photo.jpg"}, "d"},
        {"suffix", {.suffix = true, .separator = true, .separatorText = "_"}, "c", {"photo_c.jpg"}, "d"},
        {"neither", {.separator = true, .separatorText = "_"}, "c", {"c.jpg"}, "d"},
        {"mask longer than the value", {.prefix = true, .mask = "00"}, "c", {"0cphoto.jpg"}, "d"},
        // A longer value is cut to the mask, and the sequence goes on from there.
        {"mask shorter than the value", {.mask = "**"}, "abcd", {"ab.jpg", "ac.jpg"}, "ad"},
        {"mask shorter, then carrying", {.mask = "**"}, "zz", {"zz.jpg", "aa.jpg"}, "ab"},
        // Unlike numbers, letters take the separator and the mask as typed.
        {"no slash conversion", {.prefix = true, .separator = true, .separatorText = "/", .mask = "/0"}, "c",
         {"/c/photo.jpg"}, "d"},
    };
    for (const AlphabeticRow& row : rows)
        expectAlphabetic(row);
}

TEST_F(AlphaNumericAction, SequencesWorkOnTheNameAnEarlierStepProposed)
{
    expectNumeric({"numeric", {.prefix = true, .separator = true, .separatorText = "_"}, 0, {"0_new.md"}, 1}, "old.txt",
                  "new.md");
    expectAlphabetic({"alphabetic", {.suffix = true}, "a", {"newa"}, "b"}, "old.txt", "new");
}

TEST_F(AlphaNumericAction, TheCounterIsWrittenBackAlsoWhenTheCallFails)
{
    FileSystemItem numbered = item("a.txt");
    QString error = q("earlier");
    int number = 4;
    EXPECT_FALSE(
        renameByNumeric(numbered, true, false, false, false, false, QString(), QString(), number, 2, 1, error));
    EXPECT_EQ(number, 6);

    FileSystemItem lettered = item("a.txt");
    QString letters = q("z");
    EXPECT_FALSE(
        renameByAlphabetic(lettered, true, false, false, false, false, QString(), QString(), letters, 1, 1, error));
    EXPECT_EQ(letters, q("aa"));
    EXPECT_EQ(error, q("earlier"));
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
    for (const LetterRow& row : rows)
        EXPECT_EQ(nextAlphabeticNumber(row.value, row.step), row.expected)
            << qPrintable(row.value) << " + " << row.step;
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
    for (const LetterRow& row : rows)
        EXPECT_EQ(previousAlphabeticNumber(row.value, row.step), row.expected)
            << qPrintable(row.value) << " - " << row.step;
}

TEST(AlphabeticNumber, InRangeMeansLowerCaseLettersOnly)
{
    EXPECT_TRUE(isAlphabeticNumericInRange(QString()));
    EXPECT_TRUE(isAlphabeticNumericInRange(q("abcxyz")));
    EXPECT_FALSE(isAlphabeticNumericInRange(q("aZ")));
    EXPECT_FALSE(isAlphabeticNumericInRange(q("a1")));
    EXPECT_FALSE(isAlphabeticNumericInRange(q("`")));
    EXPECT_FALSE(isAlphabeticNumericInRange(q("{")));
    EXPECT_FALSE(isAlphabeticNumericInRange(q("\xc3\xa9")));
    EXPECT_FALSE(isAlphabeticNumericInRange(QStringLiteral("a") + QChar(u'\0')));
}

}  // namespace
