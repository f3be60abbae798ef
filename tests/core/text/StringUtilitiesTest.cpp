#include "core/text/StringUtilities.h"

#include <gtest/gtest.h>

#include <climits>

using namespace tavrin;

namespace {

QString q(const char* utf8)
{
    return QString::fromUtf8(utf8);
}

// U+1F600, one character on screen, two UTF-16 code units.
const QString smiley = QString::fromUtf16(u"\U0001F600");

TEST(ReverseString, ReversesCodeUnits)
{
    EXPECT_EQ(reverseString(QString()), QString());
    EXPECT_EQ(reverseString(q("a")), q("a"));
    EXPECT_EQ(reverseString(q("abc")), q("cba"));
    EXPECT_EQ(reverseString(q("ab.c d")), q("d c.ba"));
}

TEST(ReverseString, SplitsASurrogatePairUnitByUnit)
{
    const QString reversed = reverseString(q("a") + smiley);
    ASSERT_EQ(reversed.size(), 3);
    EXPECT_EQ(reversed.at(0), smiley.at(1));
    EXPECT_EQ(reversed.at(1), smiley.at(0));
    EXPECT_EQ(reversed.at(2), QLatin1Char('a'));
    EXPECT_EQ(reverseString(reversed), q("a") + smiley);
}

struct SwapBySeparatorRow {
    const char* str;
    const char* separator;
    const char* expected;
};

TEST(SwapStringBySeperator, SwapsAroundTheFirstCaseInsensitiveOccurrence)
{
    const SwapBySeparatorRow rows[] = {
        {"John-Smith", "-", "Smith-John"},
        {"A_B", "-", "A_B"},
        {"a-b-c", "-", "b-c-a"},
        {"JohnANDSmith", "and", "SmithANDJohn"},  // the name's own spelling of the separator
        {"a--b", "--", "b--a"},
        {"-ab", "-", "ab-"},
        {"ab-", "-", "-ab"},
        {"-", "-", "-"},
        {"ab", "", "ab"},
        {"", "-", ""},
        {"abc", "abcd", "abc"},
    };
    for (const SwapBySeparatorRow& row : rows)
        EXPECT_EQ(swapStringBySeperator(q(row.str), q(row.separator)), q(row.expected))
            << row.str << " / " << row.separator;
}

struct SwapByPositionRow {
    const char* str;
    int position;
    const char* expected;
};

TEST(SwapStringByPosition, TheCharacterAtThePositionIsThePivot)
{
    const SwapByPositionRow rows[] = {
        {"abcdef", 3, "defcab"},
        {"abcdef", 1, "bcdefa"},
        {"abcdef", 2, "cdefba"},
        {"abcdef", 6, "fabcde"},
        {"abcdef", 7, "abcdef"},
        {"abcdef", 0, "abcdef"},
        {"abcdef", -3, "abcdef"},
        {"a", 1, "a"},
        {"", 1, ""},
        {"ab", 2, "ba"},
    };
    for (const SwapByPositionRow& row : rows)
        EXPECT_EQ(swapStringByPosition(q(row.str), row.position), q(row.expected)) << row.str << " @" << row.position;
}

TEST(SwapStringByPosition, CountsCodeUnits)
{
    // The smiley occupies positions 2 and 3, so position 4 is the "b".
    EXPECT_EQ(swapStringByPosition(q("a") + smiley + q("b"), 4), q("b") + q("a") + smiley);
}

struct MidRow {
    const char* str;
    int start;
    int length;
    const char* expected;
};

TEST(MidString, TakesAtMostLengthCharactersFromAOneBasedStart)
{
    const MidRow rows[] = {
        {"abcdef", 1, 3, "abc"}, {"abcdef", 2, 2, "bc"},  {"abcdef", 5, 10, "ef"}, {"abcdef", 6, 1, "f"},
        {"abcdef", 7, 1, ""},    {"abcdef", 0, 3, ""},    {"abcdef", -1, 3, ""},   {"abcdef", 3, 0, ""},
        {"abcdef", 3, -1, ""},   {"", 1, 1, ""},          {"abcdef", 1, 6, "abcdef"},
    };
    for (const MidRow& row : rows)
        EXPECT_EQ(midString(q(row.str), row.start, row.length), q(row.expected))
            << row.str << " " << row.start << "," << row.length;
}

struct LeftRow {
    const char* str;
    int length;
    const char* expected;
};

TEST(LeftString, FirstCharactersOrTheWholeString)
{
    const LeftRow rows[] = {
        {"abcdef", 2, "ab"}, {"abcdef", 6, "abcdef"}, {"abcdef", 7, "abcdef"},
        {"abcdef", 0, ""},   {"abcdef", -1, ""},      {"", 3, ""},
    };
    for (const LeftRow& row : rows)
        EXPECT_EQ(leftString(q(row.str), row.length), q(row.expected)) << row.str << " " << row.length;
}

struct InstrRow {
    const char* str;
    const char* find;
    int start;
    bool caseSensitive;
    int expected;
};

TEST(InstrString, AnswersTheOneBasedPositionOrZero)
{
    const InstrRow rows[] = {
        {"abcabc", "c", 1, true, 3},
        {"abcabc", "c", 3, true, 3},   // the start itself is searched
        {"abcabc", "c", 4, true, 6},
        {"abcabc", "c", 7, true, 0},
        {"abcabc", "c", 99, true, 0},
        {"abcabc", "C", 1, true, 0},
        {"abcabc", "C", 1, false, 3},
        {"abcabc", "bc", 5, true, 5},
        {"abcabc", "bca", 1, true, 2},
        {"abcabc", "", 1, true, 0},    // Qt would find an empty text at the start
        {"", "a", 1, true, 0},
        {"", "", 1, false, 0},
        {"abc", "a", 0, true, 0},
    };
    for (const InstrRow& row : rows)
        EXPECT_EQ(instrString(q(row.str), q(row.find), row.start, row.caseSensitive), row.expected)
            << row.str << " / " << row.find << " from " << row.start;
}

struct ReplaceRow {
    const char* str;
    const char* find;
    const char* replace;
    int start;
    int count;
    bool caseSensitive;
    const char* expected;
};

TEST(ReplaceString, ReplacesUpToCountMatchesFromStart)
{
    const ReplaceRow rows[] = {
        {"a-b-c-d", "-", "+", 1, 2, true, "a+b+c-d"},
        {"a-b-c-d", "-", "+", 1, -1, true, "a+b+c+d"},
        {"a-b-c-d", "-", "+", 1, 0, true, "a-b-c-d"},
        {"a-b-c-d", "-", "+", 1, -2, true, "a-b-c-d"},  // only -1 means all
        {"a-b-c-d", "-", "+", 1, 1, true, "a+b-c-d"},
        {"a-b-c-d", "-", "+", 1, 10, true, "a+b+c+d"},
        {"a-b-c-d", "-", "", 1, -1, true, "abcd"},
        {"a-b", "-", "<=>", 1, 1, true, "a<=>b"},
        {"aXbxc", "x", "_", 1, -1, true, "aXb_c"},
        {"aXbxc", "x", "_", 1, -1, false, "a_b_c"},
        {"abab", "ab", "abab", 1, -1, true, "abababab"},  // a replacement is never searched again
        {"aaa", "aa", "b", 1, -1, true, "ba"},             // matches do not overlap
        {"abc", "", "x", 1, -1, true, "abc"},
        {"", "a", "x", 1, -1, true, ""},
        {"abc", "abc", "", 1, -1, true, ""},
    };
    for (const ReplaceRow& row : rows)
        EXPECT_EQ(replaceString(q(row.str), q(row.find), q(row.replace), row.start, row.count, row.caseSensitive),
                  q(row.expected))
            << row.str << " / " << row.find << " -> " << row.replace << " count " << row.count;
}

TEST(ReplaceString, AStartAboveOneCutsTheHeadOff)
{
    const ReplaceRow rows[] = {
        {"abcdef", "x", "y", 3, -1, true, "cdef"},
        {"abcdef", "c", "C", 3, -1, true, "Cdef"},
        {"abcabc", "a", "_", 2, -1, true, "bc_bc"},
        {"abcdef", "x", "y", 6, -1, true, "f"},
        {"abcdef", "x", "y", 7, -1, true, ""},
        {"abcdef", "x", "y", 0, -1, true, ""},
        {"abcdef", "x", "y", 3, 0, true, "cdef"},
    };
    for (const ReplaceRow& row : rows)
        EXPECT_EQ(replaceString(q(row.str), q(row.find), q(row.replace), row.start, row.count, row.caseSensitive),
                  q(row.expected))
            << row.str << " from " << row.start;
}

TEST(ReplaceString, ReplacesASurrogatePairAsTwoUnits)
{
    EXPECT_EQ(replaceString(q("a") + smiley + q("b"), smiley, q("-"), 1, -1, true), q("a-b"));
    // Starting on the low half of the pair leaves that half at the front.
    EXPECT_EQ(replaceString(q("a") + smiley, q("x"), q("y"), 3, -1, true), QString(smiley.at(1)));
}

struct RemoveRow {
    const char* str;
    const char* find;
    const char* replace;
    int start;
    int count;
    bool caseSensitive;
    const char* expected;
};

TEST(RemoveString, CutsAtTheCountthOccurrence)
{
    const RemoveRow rows[] = {
        {"ab-cd-ef", "-", "", 1, 1, true, "ab"},
        {"ab-cd-ef", "-", "-", 1, 1, true, "ab-"},
        {"ab-cd-ef", "-", "", 1, 2, true, "ab-cd"},
        {"ab-cd-ef", "-", "x", 1, 2, true, "ab-cd-"},  // replace is a flag, its text is never used
        {"ab-cd-ef", "-", "", 1, 3, true, "ab-cd-ef"},
        {"ab-cd-ef", "-", "-", 1, 3, true, "ab-cd-ef"},
        {"ab-cd-ef", "-", "", 1, -1, true, "ab-cd-ef"},
        {"ab-cd-ef", "-", "-", 1, -1, true, "ab-cd-ef"},
        {"ab-cd-ef", "-", "", 1, -5, true, "ab-cd-ef"},
        {"ab-cd-ef", "", "", 1, 1, true, "ab-cd-ef"},
        {"aXbxc", "x", "", 1, 1, true, "aXb"},
        {"aXbxc", "x", "", 1, 1, false, "a"},
        {"aXbxc", "x", "x", 1, 1, false, "aX"},  // the occurrence as the name spells it
        {"", "-", "", 1, 1, true, ""},
    };
    for (const RemoveRow& row : rows)
        EXPECT_EQ(removeString(q(row.str), q(row.find), q(row.replace), row.start, row.count, row.caseSensitive),
                  q(row.expected))
            << row.str << " / " << row.find << " flag '" << row.replace << "' count " << row.count;
}

TEST(RemoveString, DroppingTheOccurrenceAtTheStartKeepsWhatFollows)
{
    const RemoveRow rows[] = {
        {"ab-cd", "ab", "", 1, 1, true, "-cd"},
        {"-a-b", "-", "", 1, 1, true, "a-b"},
        {"ab-cd", "ab", "ab", 1, 1, true, "ab"},
        {"--x", "-", "", 1, 2, true, "-"},
        {"ab", "ab", "", 1, 1, true, ""},
    };
    for (const RemoveRow& row : rows)
        EXPECT_EQ(removeString(q(row.str), q(row.find), q(row.replace), row.start, row.count, row.caseSensitive),
                  q(row.expected))
            << row.str << " / " << row.find;
}

TEST(RemoveString, StartCutsTheHeadButAFailedCutReturnsTheWholeInput)
{
    const RemoveRow rows[] = {
        {"ab-cd-ef", "-", "", 4, 1, true, "cd"},
        {"ab-cd-ef", "-", "", 3, 0, true, "-cd-ef"},  // count 0: the string from start on
        {"ab-cd-ef", "-", "", 1, 0, true, "ab-cd-ef"},
        {"ab-cd-ef", "-", "", 4, 2, true, "ab-cd-ef"},
        {"ab-cd-ef", "-", "", 9, 1, true, "ab-cd-ef"},
        {"ab-cd-ef", "-", "", 9, 0, true, ""},
    };
    for (const RemoveRow& row : rows)
        EXPECT_EQ(removeString(q(row.str), q(row.find), q(row.replace), row.start, row.count, row.caseSensitive),
                  q(row.expected))
            << row.str << " from " << row.start << " count " << row.count;
}

struct InsertRow {
    const char* str;
    const char* find;
    const char* insert;
    int onOccurence;
    bool before;
    bool caseSensitive;
    const char* expected;
};

TEST(InsertString, InsertsBeforeOrAfterTheOccurrence)
{
    const InsertRow rows[] = {
        {"a-b-c", "-", "X", 2, true, true, "a-bX-c"},
        {"a-b-c", "-", "X", 2, false, true, "a-b-Xc"},
        {"a-b-c", "-", "X", 1, true, true, "aX-b-c"},
        {"a-b-c", "-", "X", 1, false, true, "a-Xb-c"},
        {"a-b-c", "-", "X", 3, true, true, "a-b-c"},
        {"a-b-c", "-", "X", 0, true, true, "a-b-c"},
        {"a-b-c", "-", "X", -1, true, true, "a-b-c"},
        {"a--b--c", "--", "X", 2, false, true, "a--b--Xc"},
        {"aaaa", "aa", "X", 2, true, true, "aaXaa"},  // occurrences do not overlap
        {"-ab", "-", "X", 1, true, true, "X-ab"},
        {"ab-", "-", "X", 1, false, true, "ab-X"},
        {"abc", "", "X", 1, true, true, "abc"},
        {"", "-", "X", 1, true, true, ""},
    };
    for (const InsertRow& row : rows)
        EXPECT_EQ(insertString(q(row.str), q(row.find), q(row.insert), row.onOccurence, row.before, row.caseSensitive),
                  q(row.expected))
            << row.str << " / " << row.find << " #" << row.onOccurence << (row.before ? " before" : " after");
}

TEST(InsertString, IgnoresTheCaseFlagAndAlwaysMatchesExactly)
{
    EXPECT_EQ(insertString(q("aXb"), q("x"), q("-"), 1, true, false), q("aXb"));
    EXPECT_EQ(insertString(q("aXb"), q("x"), q("-"), 1, true, true), q("aXb"));
    EXPECT_EQ(insertString(q("aXbxc"), q("x"), q("-"), 1, false, false), q("aXbx-c"));
}

struct IntegerRow {
    const char* text;
    int expected;
};

TEST(ToInteger, ReadsLeadingDigitsLikeTheCLibrary)
{
    const IntegerRow rows[] = {
        {"12", 12},
        {"-1", -1},
        {"+7", 7},
        {"12abc", 12},
        {"abc", 0},
        {"", 0},
        {"  42", 42},
        {"\t-3", -3},
        {"4 2", 4},
        {"-", 0},
        {"- 1", 0},
        {"--1", 0},
        {"007", 7},
        {"1.9", 1},
        {"2147483647", INT_MAX},
        {"2147483648", INT_MAX},
        {"99999999999999999999", INT_MAX},
        {"-2147483648", INT_MIN},
        {"-99999999999999999999", INT_MIN},
    };
    for (const IntegerRow& row : rows)
        EXPECT_EQ(toInteger(q(row.text)), row.expected) << "'" << row.text << "'";
}

TEST(ToInteger, OnlyAsciiDigitsCount)
{
    // Arabic-Indic digit three.
    EXPECT_EQ(toInteger(QString::fromUtf16(u"\u0663")), 0);
    EXPECT_EQ(toInteger(QString::fromUtf16(u"5\u0663")), 5);
}

}  // namespace
