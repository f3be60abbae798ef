#include "ActionTestSupport.h"
#include "core/engine/actions/replaceremove.h"

#include <gtest/gtest.h>

using namespace tavrin;
using test::q;
using namespace Qt::StringLiterals;

namespace {

using Row = test::ActionRow<ReplaceRemoveOptions>;
using Mode = ReplaceRemoveMode;
using Direction = replaceremovedirection::ReplaceRemoveDirection;
constexpr auto fromEnd = replaceremovedirection::FromEnd;

// `options` finding `find` and replacing it with `with`; by default every occurrence from
// the first character on, case-insensitively.
ReplaceRemoveOptions replace(const char* find, const char* with, ReplaceRemoveOptions options = {})
{
    options.find = q(find);
    options.replacement = q(with);
    return options;
}

ReplaceRemoveOptions occurrences(int first, int count, ReplaceRemoveOptions options = {})
{
    options.startOnOccurrence = first;
    options.occurrenceCount = count;
    return options;
}

class ReplaceRemoveAction : public test::ActionTest {
protected:
    void expect(std::initializer_list<Row> rows) { expectRows<ReplaceRemoveOptions>(rows, renameByReplaceRemove); }
};

TEST_F(ReplaceRemoveAction, TheStartPositionKeepsTheHeadOutOfTheSearch)
{
    expect({
        {"head kept", "abcabc", replace("b", "X", {.startFromCharacter = 3}), "abcaXc"},
        // A start at or beyond the length, or below 2, searches the whole name.
        {"at the length", "abc", replace("b", "X", {.startFromCharacter = 3}), "aXc"},
        {"zero", "abc", replace("b", "X", {.startFromCharacter = 0}), "aXc"},
        {"straddling match", "abcd", replace("bc", "X", {.startFromCharacter = 3}), "abcd"},
    });
}

TEST_F(ReplaceRemoveAction, ChangesChosenOccurrences)
{
    expect({
        {"second only", "aXbXcX", replace("X", "-", occurrences(2, 1)), "aXb-cX"},
        {"second on", "aXbXcX", replace("X", "-", occurrences(2, -1)), "aXb-c-"},
        {"two from the second", "a1a2a3a4", replace("a", "_", occurrences(2, 2)), "a1_2_3a4"},
        {"missing occurrence", "aXbX", replace("X", "-", occurrences(5, 1)), "aXbX"},
        {"count 0", "aXbX", replace("X", "-", occurrences(1, 0)), "aXbX"},
        {"count below -1", "aXbX", replace("X", "-", occurrences(1, -3)), "aXbX"},
        {"occurrence 0 is the first", "aXbX", replace("X", "-", occurrences(0, 1)), "a-bX"},
        {"no overlap", "aaaa", replace("aa", "X", occurrences(2, 1)), "aaX"},
        {"counted from the start", "XaXbX", replace("X", "-", occurrences(2, 1, {.startFromCharacter = 2})),
         "XaXb-"},
        {"case-insensitive occurrences", "xAxa", replace("a", "_", occurrences(2, 1)), "xAx_"},
        {"case-sensitive occurrences", "xAxa", replace("a", "_", occurrences(2, 1, {.caseSensitive = true})), "xAxa"},
        {"case-sensitive", "aAa", replace("a", "x", {.caseSensitive = true}), "xAx"},
    });
}

TEST_F(ReplaceRemoveAction, TheModesDecideWhatReplacesAMatch)
{
    const ReplaceRemoveOptions characters{.mode = Mode::RemoveCharacters};
    expect({
        {"remove ignores the replacement", "a-b-c.txt", replace("-", "+", {.mode = Mode::Remove}), "abc.txt"},
        {"remove the whole name", "abc", replace("ABC", "", {.mode = Mode::Remove}), ""},
        {"empty find text", "abc.txt", replace("", "X"), "abc.txt"},
        {"characters", "Alpha Beta", replace("ae", "", characters), "lph Bt"},
        {"characters with case", "Alpha Beta",
         replace("ae", "", {.mode = Mode::RemoveCharacters, .caseSensitive = true}), "Alph Bt"},
        {"characters ignore occurrences", "a-b-c", replace("-", "", occurrences(2, 1, characters)), "abc"},
        {"characters after the start", "aaaa",
         replace("a", "", {.mode = Mode::RemoveCharacters, .startFromCharacter = 3}), "aa"},
        {"characters, typed slash", "a:b:c", replace("/", "", characters), "abc"},
        {"no mode proposes nothing", "abc.txt", replace("a", "b", {.mode = Mode::None}), ""},
        {"no mode keeps an earlier proposal", "abc.txt", replace("x", "y", {.mode = Mode::None}), "x.md", "x.md"},
    });
}

TEST_F(ReplaceRemoveAction, OnlyTheNameIsSearchedAndATypedSlashIsAColon)
{
    expect({
        {"find a slash", "a:b", replace("/", "-"), "a-b"},
        {"replace with a slash", "a-b", replace("-", "x/y"), "ax:yb"},
        {"extension", "a.b.txt", replace("txt", "X"), "a.b.txt"},
        {"inner dot", "a.b.txt", replace(".", "_"), "a_b.txt"},
        {"earlier proposal", "old.png", replace("x", "y"), "y.jpg", "x.jpg"},
        {"earlier dot file", "old.txt", replace("bash", "zsh"), ".zshrc", ".bashrc"},
        {"earlier extension", "jpg.png", replace("jpg", "X"), "a.jpg", "a.jpg"},
    });
}

TEST_F(ReplaceRemoveAction, FromTheEndWorksOnTheReversedName)
{
    const ReplaceRemoveOptions back{.direction = fromEnd};
    expect({
        // Texts are not reversed: a longer replacement comes out backwards, and a longer
        // find text matches where the name holds it backwards.
        {"longer replacement", "a-b", replace("-", "XY", back), "aYXb"},
        {"forwards find", "abcab", replace("ab", "X", back), "abcab"},
        {"backwards find", "abcab", replace("ba", "X", back), "XcX"},
        {"first from the end", "a-b-c", replace("-", "+", occurrences(1, 1, back)), "a-b+c"},
        {"second from the end", "a-b-c", replace("-", "+", occurrences(2, 1, back)), "a+b-c"},
        {"start from the end", "abcdef", replace("b", "X", {.startFromCharacter = 3, .direction = fromEnd}),
         "aXcdef"},
        {"head from the end", "abcdef", replace("e", "X", {.startFromCharacter = 3, .direction = fromEnd}),
         "abcdef"},
        {"extension stays", "abc.txt", replace("c", "Z", back), "abZ.txt"},
        // Any other direction reverses the name but never reverses it back.
        {"direction 2", "abc.txt",
         replace("a", "A", {.caseSensitive = true, .direction = test::unknown<Direction>(2)}), "cbA.txt"},
        {"direction -1", "abc", replace("q", "", {.direction = test::unknown<Direction>(-1)}), "cba"},
    });
}

TEST_F(ReplaceRemoveAction, AnErrorLeftByTheCallerIsReportedAsFailure)
{
    FileSystemItem record = item("a.txt");
    QString error = q("earlier");
    EXPECT_FALSE(renameByReplaceRemove(record, replace("a", "b"), error));
    EXPECT_EQ(record.newFilename(), q("b.txt"));
    EXPECT_FALSE(renameByReplaceRemove(record, {.mode = Mode::None}, error));
    EXPECT_EQ(error, q("earlier"));
}

struct FromRow {
    const char* name;
    int modeIndex;  // -1: no mode switch on
    bool allOccurrences;
    ReplaceRemoveMode mode;
    int startOnOccurrence;
    int occurrenceCount;
};

TEST(ReplaceRemoveOptionsFrom, TheSwitchesPickTheModeAndTheOccurrences)
{
    const int all = replaceremoveall::OccurrenceCount;
    const FromRow rows[] = {
        {"replace, all", 0, true, Mode::Replace, replaceremoveall::StartOnOccurrence, all},
        {"replace, chosen", 0, false, Mode::Replace, 2, 1},
        {"remove, all", 1, true, Mode::Remove, replaceremoveall::StartOnOccurrence, all},
        {"remove characters", 2, false, Mode::RemoveCharacters, 2, 1},
        {"no mode", -1, false, Mode::None, 2, 1},
    };
    for (const FromRow& row : rows) {
        SCOPED_TRACE(row.name);
        Settings settings;
        settings.chooseReplaceRemoveMode(std::max(row.modeIndex, 0));
        settings.setIsReplaceRemoveReplace(row.modeIndex != -1 && settings.isReplaceRemoveReplace());
        settings.setIsReplaceRemoveAllOccurrence(row.allOccurrences);
        settings.setReplaceRemoveThis(q("-"));
        settings.setReplaceRemoveWith(q("+"));
        settings.setReplaceRemoveStartOnOccurrence(q("2nd"));
        settings.setReplaceRemoveOccuranceCount(q(" 1"));
        settings.setReplaceRemoveStartFromCharacter(q("3"));
        settings.setReplaceRemovePositionDirection(fromEnd);
        settings.setIsReplaceRemoveCaseSensitive(true);
        const auto options = test::optionsFrom<ReplaceRemoveOptions>(settings);
        EXPECT_EQ(options.mode, row.mode);
        EXPECT_EQ(options.startOnOccurrence, row.startOnOccurrence);
        EXPECT_EQ(options.occurrenceCount, row.occurrenceCount);
        EXPECT_EQ(options.find + options.replacement, q("-+"));
        EXPECT_EQ(options.startFromCharacter, 3);
        EXPECT_EQ(options.direction, fromEnd);
        EXPECT_TRUE(options.caseSensitive);
    }
}

struct LocationRow {
    const char* text;
    const char* find;
    int occurrence;
    bool caseSensitive;
    int expected;
};

TEST(FindLocationInString, AnswersTheNthNonOverlappingOccurrence)
{
    const LocationRow rows[] = {
        {"aXbXcX", "X", 2, true, 4},
        {"aXbXcX", "X", 3, true, 6},
        {"aXbXcX", "X", 4, true, 0},
        // Occurrence 1 is never asked for and answers 0; occurrence 0 answers the first.
        {"aXbXcX", "X", 1, true, 0},
        {"aXbXcX", "X", 0, true, 2},
        {"aaaa", "aa", 2, true, 3},
        {"AxA", "a", 2, false, 3},
        {"AxA", "a", 2, true, 0},
        {"abc", "", 2, true, 0},
        {"", "a", 2, true, 0},
    };
    for (const LocationRow& row : rows) {
        SCOPED_TRACE(testing::Message() << row.text << " " << row.find << " " << row.occurrence);
        EXPECT_EQ(findLocationInString({q(row.text), q(row.find), row.caseSensitive}, row.occurrence), row.expected);
    }
}

ReplaceRemoveOptions pattern(const char* find, const char* with, ReplaceRemoveOptions options = {})
{
    options.regularExpression = true;
    return replace(find, with, options);
}

TEST_F(ReplaceRemoveAction, APatternReplacesItsMatchesWithTheirGroups)
{
    const ReplaceRemoveOptions characters{.mode = Mode::RemoveCharacters};
    expect({
        {"numbered group", "IMG_0042.jpg", pattern("IMG_(\\d+)", "Holiday_$1"), "Holiday_0042.jpg"},
        {"named group", "2024-05-01 trip", pattern("(?<y>\\d{4})-(?<m>\\d\\d)-\\d\\d", "${m}.${y}"), "05.2024 trip"},
        {"groups swapped, dollar kept", "John Smith", pattern("(\\w+) (\\w+)", "$2, $1 $$5"), "Smith, John $5"},
        {"missing group gives nothing", "ab", pattern("(a)|(x)", "[$2]"), "[]b"},
        {"anchors", "aaa", pattern("^a|a$", "_"), "_a_"},
        {"an empty match inserts", "name", pattern("^", "new "), "new name"},
        {"unicode letters", "Émile-Zoë", pattern("\\p{Lu}", "*"), "*mile-*oë"},
        {"case-insensitive by default", "aAa", pattern("a", "x", occurrences(2, 1)), "axa"},
        {"case-sensitive", "aAa", pattern("a", "x", {.caseSensitive = true}), "xAx"},
        {"occurrences from the end", "a1a2a3", pattern("a\\d", "_", occurrences(1, 1, {.direction = fromEnd})),
         "a1a2_"},
        {"head kept", "x-x-x", pattern("x", "y", {.startFromCharacter = 2}), "x-y-y"},
        {"remove mode", "a1b22c", pattern("\\d+", "ignored", {.mode = Mode::Remove}), "abc"},
        {"remove characters: every match", "a1b22c", pattern("\\d", "", occurrences(2, 1, characters)), "abc"},
        {"a slash in the replacement is stored as a colon", "a-b", pattern("-", "/"), "a:b"},
        {"the extension is left alone", "a.b.txt", pattern("\\.", "_"), "a_b.txt"},
    });
}

// A pattern that cannot be used is an error, never a crash; one that backtracks without end
// is cut short by the library's match limit and changes nothing.
TEST_F(ReplaceRemoveAction, ABadOrRunawayPatternChangesNothing)
{
    FileSystemItem bad = item("a(b.txt");
    QString error;
    EXPECT_FALSE(renameByReplaceRemove(bad, pattern("a(b", "x"), error));
    EXPECT_TRUE(error.contains(u"parenthesis"_s)) << qPrintable(error);
    EXPECT_TRUE(bad.newFilename().isEmpty());

    FileSystemItem runaway = item("aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa!");
    error.clear();
    EXPECT_TRUE(renameByReplaceRemove(runaway, pattern("(a+)+$", "x"), error));
    EXPECT_EQ(runaway.newFilename(), runaway.filenameWithExtension());
}

}  // namespace
