#include "ActionTestSupport.h"
#include "core/engine/actions/replaceremove.h"

#include <gtest/gtest.h>

using namespace tavrin;
using test::q;

namespace {

using Row = test::ActionRow<ReplaceRemoveOptions>;
using Mode = ReplaceRemoveMode;
constexpr auto fromEnd = replaceremovedirection::FromEnd;

// The default options replace every occurrence from the first character.
class ReplaceRemoveAction : public test::ActionTest {
protected:
    void expect(std::initializer_list<Row> rows) { expectRows<ReplaceRemoveOptions>(rows, renameByReplaceRemove); }
};

TEST_F(ReplaceRemoveAction, TheStartPositionKeepsTheHeadOutOfTheSearch)
{
    expect({
        {"head kept", "abcabc", {.find = "b", .replacement = "X", .startFromCharacter = 3}, "abcaXc"},
        {"start 2", "abcabc", {.find = "b", .replacement = "X", .startFromCharacter = 2}, "aXcaXc"},
        // A start at or beyond the length, or below 2, searches the whole name.
        {"at the length", "abc", {.find = "b", .replacement = "X", .startFromCharacter = 3}, "aXc"},
        {"beyond", "abc", {.find = "b", .replacement = "X", .startFromCharacter = 4}, "aXc"},
        {"zero", "abc", {.find = "b", .replacement = "X", .startFromCharacter = 0}, "aXc"},
        {"negative", "abc", {.find = "b", .replacement = "X", .startFromCharacter = -2}, "aXc"},
        {"straddling match", "abcd", {.find = "bc", .replacement = "X", .startFromCharacter = 3}, "abcd"},
    });
}

TEST_F(ReplaceRemoveAction, ChangesChosenOccurrences)
{
    expect({
        {"second only", "aXbXcX", {.find = "X", .replacement = "-", .startOnOccurrence = 2, .occurrenceCount = 1},
         "aXb-cX"},
        {"second on", "aXbXcX", {.find = "X", .replacement = "-", .startOnOccurrence = 2}, "aXb-c-"},
        {"two from the second", "a1a2a3a4",
         {.find = "a", .replacement = "_", .startOnOccurrence = 2, .occurrenceCount = 2}, "a1_2_3a4"},
        {"count beyond", "aXbXcX", {.find = "X", .replacement = "-", .startOnOccurrence = 3, .occurrenceCount = 5},
         "aXbXc-"},
        {"missing occurrence", "aXbX", {.find = "X", .replacement = "-", .startOnOccurrence = 5}, "aXbX"},
        {"count 0", "aXbX", {.find = "X", .replacement = "-", .occurrenceCount = 0}, "aXbX"},
        {"count below -1", "aXbX", {.find = "X", .replacement = "-", .occurrenceCount = -3}, "aXbX"},
        {"occurrence 0 is the first", "aXbX",
         {.find = "X", .replacement = "-", .startOnOccurrence = 0, .occurrenceCount = 1}, "a-bX"},
        {"no overlap", "aaaa", {.find = "aa", .replacement = "X", .startOnOccurrence = 2, .occurrenceCount = 1},
         "aaX"},
        {"no overlap, too few", "aaa", {.find = "aa", .replacement = "X", .startOnOccurrence = 2}, "aaa"},
        {"counted from the start position", "XaXbX",
         {.find = "X", .replacement = "-", .startFromCharacter = 2, .startOnOccurrence = 2, .occurrenceCount = 1},
         "XaXb-"},
        {"case-insensitive occurrences", "xAxa",
         {.find = "a", .replacement = "_", .startOnOccurrence = 2, .occurrenceCount = 1}, "xAx_"},
        {"case-sensitive occurrences", "xAxa",
         {.find = "a", .replacement = "_", .caseSensitive = true, .startOnOccurrence = 2}, "xAxa"},
        {"case-sensitive", "aAa", {.find = "a", .replacement = "x", .caseSensitive = true}, "xAx"},
        {"case-insensitive", "aAa", {.find = "a", .replacement = "x"}, "xxx"},
    });
}

TEST_F(ReplaceRemoveAction, TheModesDecideWhatReplacesAMatch)
{
    expect({
        {"remove ignores the replacement", "a-b-c.txt", {.mode = Mode::Remove, .find = "-", .replacement = "+"},
         "abc.txt"},
        {"remove the second", "a-b-c.txt", {.mode = Mode::Remove, .find = "-", .startOnOccurrence = 2}, "a-bc.txt"},
        {"remove the whole name", "abc", {.mode = Mode::Remove, .find = "ABC"}, ""},
        {"empty find text", "abc.txt", {.find = "", .replacement = "X"}, "abc.txt"},
        {"characters", "Alpha Beta", {.mode = Mode::RemoveCharacters, .find = "ae"}, "lph Bt"},
        {"characters with case", "Alpha Beta", {.mode = Mode::RemoveCharacters, .find = "ae", .caseSensitive = true},
         "Alph Bt"},
        {"characters ignore occurrences", "a-b-c",
         {.mode = Mode::RemoveCharacters, .find = "-", .startOnOccurrence = 2, .occurrenceCount = 1}, "abc"},
        {"characters after the start", "aaaa", {.mode = Mode::RemoveCharacters, .find = "a", .startFromCharacter = 3},
         "aa"},
        {"characters, not the extension", "abc.xyz", {.mode = Mode::RemoveCharacters, .find = "z"}, "abc.xyz"},
        {"characters, typed slash", "a:b:c", {.mode = Mode::RemoveCharacters, .find = "/"}, "abc"},
        {"no mode proposes nothing", "abc.txt", {.mode = Mode::None, .find = "a"}, ""},
        {"no mode keeps an earlier proposal", "abc.txt", {.mode = Mode::None, .find = "x"}, "x.md", "x.md"},
    });
}

TEST_F(ReplaceRemoveAction, OnlyTheNameIsSearchedAndATypedSlashIsAColon)
{
    expect({
        {"find a slash", "a:b", {.find = "/", .replacement = "-"}, "a-b"},
        {"replace with a slash", "a-b", {.find = "-", .replacement = "x/y"}, "ax:yb"},
        {"extension", "a.b.txt", {.find = "txt", .replacement = "X"}, "a.b.txt"},
        {"inner dot", "a.b.txt", {.find = ".", .replacement = "_"}, "a_b.txt"},
        {"double extension", "x.tar.gz", {.find = "tar", .replacement = "t"}, "x.t.gz"},
        {"earlier proposal", "old.png", {.find = "x", .replacement = "y"}, "y.jpg", "x.jpg"},
        {"earlier proposal without extension", "old.png", {.find = "x", .replacement = "y"}, "y", "x"},
        {"earlier dot file", "old.txt", {.find = "bash", .replacement = "zsh"}, ".zshrc", ".bashrc"},
        {"earlier extension", "jpg.png", {.find = "jpg", .replacement = "X"}, "a.jpg", "a.jpg"},
    });
}

TEST_F(ReplaceRemoveAction, FromTheEndWorksOnTheReversedName)
{
    expect({
        // Texts are not reversed: a longer replacement comes out backwards, and a longer
        // find text matches where the name holds it backwards.
        {"longer replacement", "a-b", {.find = "-", .replacement = "XY", .direction = fromEnd}, "aYXb"},
        {"forwards find", "abcab", {.find = "ab", .replacement = "X", .direction = fromEnd}, "abcab"},
        {"backwards find", "abcab", {.find = "ba", .replacement = "X", .direction = fromEnd}, "XcX"},
        {"first from the end", "a-b-c", {.find = "-", .replacement = "+", .occurrenceCount = 1, .direction = fromEnd},
         "a-b+c"},
        {"second from the end", "a-b-c",
         {.find = "-", .replacement = "+", .startOnOccurrence = 2, .occurrenceCount = 1, .direction = fromEnd},
         "a+b-c"},
        {"start from the end", "abcdef",
         {.find = "b", .replacement = "X", .startFromCharacter = 3, .direction = fromEnd}, "aXcdef"},
        {"head from the end", "abcdef",
         {.find = "e", .replacement = "X", .startFromCharacter = 3, .direction = fromEnd}, "abcdef"},
        {"extension stays", "abc.txt", {.find = "c", .replacement = "Z", .direction = fromEnd}, "abZ.txt"},
        // Any other direction reverses the name but never reverses it back.
        {"direction 2", "abc.txt",
         {.find = "a", .replacement = "A", .caseSensitive = true,
          .direction = test::unknown<replaceremovedirection::ReplaceRemoveDirection>(2)},
         "cbA.txt"},
        {"direction -1", "abc",
         {.find = "q", .direction = test::unknown<replaceremovedirection::ReplaceRemoveDirection>(-1)}, "cba"},
    });
}

TEST_F(ReplaceRemoveAction, AnErrorLeftByTheCallerIsReportedAsFailure)
{
    FileSystemItem record = item("a.txt");
    QString error = q("earlier");
    EXPECT_FALSE(renameByReplaceRemove(record, {.find = "a", .replacement = "b"}, error));
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
    const FromRow rows[] = {
        {"replace, all", 0, true, Mode::Replace, replaceremoveall::StartOnOccurrence,
         replaceremoveall::OccurrenceCount},
        {"replace, chosen", 0, false, Mode::Replace, 2, 1},
        {"remove, all", 1, true, Mode::Remove, replaceremoveall::StartOnOccurrence,
         replaceremoveall::OccurrenceCount},
        {"remove characters", 2, false, Mode::RemoveCharacters, 2, 1},
        {"no mode", -1, false, Mode::None, 2, 1},
    };
    for (const FromRow& row : rows) {
        SCOPED_TRACE(row.name);
        Settings settings;
        settings.chooseReplaceRemoveMode(row.modeIndex < 0 ? 0 : row.modeIndex);
        if (row.modeIndex < 0)
            settings.setIsReplaceRemoveReplace(false);
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
        EXPECT_EQ(options.find, q("-"));
        EXPECT_EQ(options.replacement, q("+"));
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

}  // namespace
