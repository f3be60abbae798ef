#include "ActionTestSupport.h"
#include "core/engine/actions/replaceremove.h"

#include <gtest/gtest.h>

using namespace tavrin;
using test::q;

namespace {

constexpr int fromEnd = replaceremovedirection::FromEnd;

// The action's arguments; the defaults replace every occurrence from the first character.
struct Args {
    const char* find = "";
    const char* with = "";
    bool caseSensitive = false;
    bool removeCharacters = false;
    int start = 1;
    int occurrence = replaceremoveall::StartOnOccurrence;
    int count = replaceremoveall::OccurrenceCount;
    int direction = replaceremovedirection::FromStart;
};

struct Row {
    const char* onDisk;
    Args args;
    const char* expected;
    const char* earlierProposal = "";
};

class ReplaceRemoveAction : public test::ActionTest {
protected:
    void expectRows(const std::initializer_list<Row>& rows)
    {
        for (const Row& row : rows) {
            FileSystemItem record = item(row.onDisk, row.earlierProposal);
            const Args& a = row.args;
            QString error;
            EXPECT_TRUE(renameByReplaceRemove(record, q(a.find), q(a.with), a.caseSensitive, a.removeCharacters,
                                              a.start, a.occurrence, a.count, a.direction, error))
                << row.onDisk;
            EXPECT_EQ(error, QString());
            EXPECT_EQ(record.newFilename(), q(row.expected))
                << row.onDisk << " find '" << a.find << "' start " << a.start << " occurrence " << a.occurrence
                << " count " << a.count << " direction " << a.direction;
        }
    }
};

TEST_F(ReplaceRemoveAction, TheStartPositionKeepsTheHeadOutOfTheSearch)
{
    expectRows({
        {"abcabc", {.find = "b", .with = "X", .start = 3}, "abcaXc"},
        {"abcabc", {.find = "b", .with = "X", .start = 2}, "aXcaXc"},
        // A start at or beyond the length, or below 2, searches the whole name.
        {"abc", {.find = "b", .with = "X", .start = 3}, "aXc"},
        {"abc", {.find = "b", .with = "X", .start = 4}, "aXc"},
        {"abc", {.find = "b", .with = "X", .start = 1}, "aXc"},
        {"abc", {.find = "b", .with = "X", .start = 0}, "aXc"},
        {"abc", {.find = "b", .with = "X", .start = -2}, "aXc"},
        // A match that straddles the start is not found.
        {"abcd", {.find = "bc", .with = "X", .start = 3}, "abcd"},
    });
}

TEST_F(ReplaceRemoveAction, ChangesChosenOccurrences)
{
    expectRows({
        {"aXbXcX", {.find = "X", .with = "-", .occurrence = 2, .count = 1}, "aXb-cX"},
        {"aXbXcX", {.find = "X", .with = "-", .occurrence = 2, .count = -1}, "aXb-c-"},
        {"a1a2a3a4", {.find = "a", .with = "_", .occurrence = 2, .count = 2}, "a1_2_3a4"},
        {"aXbXcX", {.find = "X", .with = "-", .occurrence = 3, .count = 5}, "aXbXc-"},
        // An occurrence that does not exist leaves the name; so does a count of 0 or below -1.
        {"aXbX", {.find = "X", .with = "-", .occurrence = 5, .count = 1}, "aXbX"},
        {"aXbX", {.find = "X", .with = "-", .count = 0}, "aXbX"},
        {"aXbX", {.find = "X", .with = "-", .count = -3}, "aXbX"},
        // Occurrence 0 and 1 both start at the first character.
        {"aXbX", {.find = "X", .with = "-", .occurrence = 0, .count = 1}, "a-bX"},
        // Occurrences do not overlap.
        {"aaaa", {.find = "aa", .with = "X", .occurrence = 2, .count = 1}, "aaX"},
        {"aaa", {.find = "aa", .with = "X", .occurrence = 2, .count = 1}, "aaa"},
        // The occurrence is counted from the start position on.
        {"XaXbX", {.find = "X", .with = "-", .start = 2, .occurrence = 2, .count = 1}, "XaXb-"},
    });
}

TEST_F(ReplaceRemoveAction, CaseSensitivityAppliesToSearchAndOccurrences)
{
    expectRows({
        {"aAa", {.find = "a", .with = "x", .caseSensitive = true}, "xAx"},
        {"aAa", {.find = "a", .with = "x"}, "xxx"},
        {"xAxa", {.find = "a", .with = "_", .occurrence = 2, .count = 1}, "xAx_"},
        {"xAxa", {.find = "a", .with = "_", .caseSensitive = true, .occurrence = 2, .count = 1}, "xAxa"},
    });
}

TEST_F(ReplaceRemoveAction, RemovesWithAnEmptyReplacement)
{
    expectRows({
        {"a-b-c.txt", {.find = "-"}, "abc.txt"},
        {"a-b-c.txt", {.find = "-", .occurrence = 2, .count = 1}, "a-bc.txt"},
        {"a--b", {.find = "--"}, "ab"},
        // Removing the whole name leaves nothing for the pipeline to propose.
        {"abc", {.find = "ABC"}, ""},
        // An empty find text is never found.
        {"abc.txt", {.find = "", .with = "X"}, "abc.txt"},
    });
}

TEST_F(ReplaceRemoveAction, RemovesEverySingleCharacterOfTheText)
{
    expectRows({
        {"Alpha Beta", {.find = "ae", .removeCharacters = true}, "lph Bt"},
        {"Alpha Beta", {.find = "ae", .caseSensitive = true, .removeCharacters = true}, "Alph Bt"},
        // The occurrence arguments play no part here.
        {"a-b-c", {.find = "-", .removeCharacters = true, .occurrence = 2, .count = 1}, "abc"},
        {"aaaa", {.find = "a", .removeCharacters = true, .start = 3}, "aa"},
        {"abc.xyz", {.find = "z", .removeCharacters = true}, "abc.xyz"},
        {"a:b:c", {.find = "/", .removeCharacters = true}, "abc"},
    });
}

TEST_F(ReplaceRemoveAction, ATypedSlashStandsForTheStoredColon)
{
    expectRows({
        {"a:b", {.find = "/", .with = "-"}, "a-b"},
        {"a-b", {.find = "-", .with = "x/y"}, "ax:yb"},
    });
}

TEST_F(ReplaceRemoveAction, TheExtensionIsNeverSearched)
{
    expectRows({
        {"a.b.txt", {.find = "txt", .with = "X"}, "a.b.txt"},
        {"a.b.txt", {.find = ".", .with = "_"}, "a_b.txt"},
        {"x.tar.gz", {.find = "tar", .with = "t"}, "x.t.gz"},
    });
}

TEST_F(ReplaceRemoveAction, FromTheEndWorksOnTheReversedName)
{
    expectRows({
        // Texts are not reversed: a longer replacement comes out backwards.
        {"a-b", {.find = "-", .with = "XY", .direction = fromEnd}, "aYXb"},
        // ...and a longer find text matches where the name holds it backwards.
        {"abcab", {.find = "ab", .with = "X", .direction = fromEnd}, "abcab"},
        {"abcab", {.find = "ba", .with = "X", .direction = fromEnd}, "XcX"},
        // Occurrences and the start position count from the end.
        {"a-b-c", {.find = "-", .with = "+", .count = 1, .direction = fromEnd}, "a-b+c"},
        {"a-b-c", {.find = "-", .with = "+", .occurrence = 2, .count = 1, .direction = fromEnd}, "a+b-c"},
        {"abcdef", {.find = "b", .with = "X", .start = 3, .direction = fromEnd}, "aXcdef"},
        {"abcdef", {.find = "e", .with = "X", .start = 3, .direction = fromEnd}, "abcdef"},
        {"abc.txt", {.find = "c", .with = "Z", .direction = fromEnd}, "abZ.txt"},
        // Any other direction reverses the name but never reverses it back.
        {"abc.txt", {.find = "a", .with = "A", .caseSensitive = true, .direction = 2}, "cbA.txt"},
        {"abc", {.find = "q", .direction = -1}, "cba"},
    });
}

TEST_F(ReplaceRemoveAction, WorksOnTheNameAnEarlierStepProposed)
{
    expectRows({
        {"old.png", {.find = "x", .with = "y"}, "y.jpg", "x.jpg"},
        {"old.png", {.find = "x", .with = "y"}, "y", "x"},
        {"old", {.find = "x", .with = "y"}, "y.tar.gz", "x.tar.gz"},
        {"old.txt", {.find = "bash", .with = "zsh"}, ".zshrc", ".bashrc"},
        // "jpg" belongs to the proposal's extension.
        {"jpg.png", {.find = "jpg", .with = "X"}, "a.jpg", "a.jpg"},
    });
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
        {"aaa", "aa", 2, true, 0},
        {"AxA", "a", 2, false, 3},
        {"AxA", "a", 2, true, 0},
        {"abc", "", 2, true, 0},
        {"", "a", 2, true, 0},
    };
    for (const LocationRow& row : rows) {
        EXPECT_EQ(findLocationInString(q(row.text), q(row.find), row.occurrence, row.caseSensitive), row.expected)
            << row.text << " " << row.find << " " << row.occurrence;
    }
}

}  // namespace
