#include "ActionTestSupport.h"
#include "core/engine/actions/insertdelete.h"

#include <gtest/gtest.h>
#include <limits>

using namespace tavrin;
using test::q;

namespace {

namespace option = insertoption;
constexpr int fromEnd = insertdirection::FromEnd;

struct InsertArgs {
    const char* text = "X";
    int option = option::AtBeginning;
    int position = 1;
    int direction = insertdirection::FromStart;
    const char* before = "";
    int beforeOccurrence = 1;
    const char* after = "";
    int afterOccurrence = 1;
};

struct InsertRow {
    const char* onDisk;
    InsertArgs args;
    const char* expected;
    const char* earlierProposal = "";
};

struct DeleteRow {
    const char* onDisk;
    bool fromBackward;
    int position;
    int count;
    const char* expected;
    const char* earlierProposal = "";
};

class InsertDeleteAction : public test::ActionTest {
protected:
    void expectInserts(const std::initializer_list<InsertRow>& rows)
    {
        for (const InsertRow& row : rows) {
            FileSystemItem record = item(row.onDisk, row.earlierProposal);
            const InsertArgs& a = row.args;
            QString error;
            EXPECT_TRUE(renameByInsert(record, q(a.text), a.option, a.position, a.direction, q(a.before),
                                       a.beforeOccurrence, q(a.after), a.afterOccurrence, error))
                << row.onDisk;
            EXPECT_EQ(error, QString());
            EXPECT_EQ(record.newFilename(), q(row.expected))
                << row.onDisk << " option " << a.option << " position " << a.position << " direction " << a.direction;
        }
    }

    void expectDeletes(const std::initializer_list<DeleteRow>& rows)
    {
        for (const DeleteRow& row : rows) {
            FileSystemItem record = item(row.onDisk, row.earlierProposal);
            QString error;
            EXPECT_TRUE(renameByDelete(record, row.fromBackward, row.position, row.count, error)) << row.onDisk;
            EXPECT_EQ(error, QString());
            EXPECT_EQ(record.newFilename(), q(row.expected)) << row.onDisk << (row.fromBackward ? " backward" : "")
                                                             << " position " << row.position << " count " << row.count;
        }
    }
};

TEST_F(InsertDeleteAction, InsertsAtEitherEndOfTheName)
{
    expectInserts({
        {"name.txt", {.text = "new-"}, "new-name.txt"},
        {"name.txt", {.text = "-new", .option = option::AtEnd}, "name-new.txt"},
        {"name", {.text = "-new", .option = option::AtEnd}, "name-new"},
        {"x.tar.gz", {.text = "1", .option = option::AtEnd}, "x.tar1.gz"},
        {"a.txt", {.text = "x/y"}, "x:ya.txt"},
    });
}

TEST_F(InsertDeleteAction, InsertsAtAPositionFromTheStart)
{
    const int at = option::AtPosition;
    expectInserts({
        {"report", {.text = "-v2", .option = at, .position = 7}, "report-v2"},
        {"report", {.text = "-v2", .option = at, .position = 8}, "report"},
        {"report", {.text = "-v2", .option = at, .position = 6}, "repor-v2t"},
        {"report", {.text = "-v2", .option = at, .position = 1}, "-v2report"},
        {"report", {.text = "-v2", .option = at, .position = 2}, "r-v2eport"},
        {"report.txt", {.text = "-v2", .option = at, .position = 0}, "report.txt"},
        {"report.txt", {.text = "-v2", .option = at, .position = -1}, "report.txt"},
        {"report.txt", {.text = "-v2", .option = at, .position = 7}, "report-v2.txt"},
    });
}

TEST_F(InsertDeleteAction, InsertsAtAPositionFromTheEndReadingForwards)
{
    const int at = option::AtPosition;
    expectInserts({
        {"report", {.text = "AB", .option = at, .position = 1, .direction = fromEnd}, "reportAB"},
        {"report", {.text = "AB", .option = at, .position = 3, .direction = fromEnd}, "repoABrt"},
        {"report", {.text = "AB", .option = at, .position = 7, .direction = fromEnd}, "ABreport"},
        {"report", {.text = "AB", .option = at, .position = 8, .direction = fromEnd}, "report"},
        {"report", {.text = "AB", .option = at, .position = 0, .direction = fromEnd}, "report"},
        {"report.txt", {.text = "AB", .option = at, .position = 2, .direction = fromEnd}, "reporABt.txt"},
        // Only a direction of exactly 1 counts from the end.
        {"report", {.text = "AB", .option = at, .position = 3, .direction = 2}, "reABport"},
    });
}

TEST_F(InsertDeleteAction, InsertsBeforeOrAfterTheNthOccurrenceOfAnAnchor)
{
    const int before = option::BeforeText;
    const int after = option::AfterText;
    expectInserts({
        {"a_b_c", {.option = after, .after = "_", .afterOccurrence = 2}, "a_b_Xc"},
        {"a_b_c", {.option = before, .before = "_", .beforeOccurrence = 2}, "a_bX_c"},
        {"a_b_c", {.option = before, .before = "_", .beforeOccurrence = 1}, "aX_b_c"},
        {"a_b_c", {.option = before, .before = "_", .beforeOccurrence = 3}, "a_b_c"},
        {"a_b_c", {.option = after, .after = "_", .afterOccurrence = 0}, "a_b_c"},
        {"abab", {.option = after, .after = "ab", .afterOccurrence = 2}, "ababX"},
        {"abab", {.option = before, .before = "ab", .beforeOccurrence = 1}, "Xabab"},
        // Anchors always match with their case.
        {"abc", {.option = before, .before = "B"}, "abc"},
        {"abc", {.option = after, .after = "B"}, "abc"},
        {"abc", {.option = before, .before = ""}, "abc"},
        // Each option reads its own anchor only.
        {"a_b-c", {.option = after, .before = "_", .after = "-"}, "a_b-Xc"},
        {"a:b", {.option = before, .before = "/"}, "aX:b"},
        // The extension is never searched.
        {"ab.c_d", {.option = after, .after = "_"}, "ab.c_d"},
    });
}

TEST_F(InsertDeleteAction, AnUnknownOptionProposesNothing)
{
    expectInserts({
        {"name.txt", {.option = 5}, ""},
        {"name.txt", {.option = -1}, ""},
        {"name.txt", {.option = 7}, "", "earlier.jpg"},
    });
}

TEST_F(InsertDeleteAction, InsertsIntoTheNameAnEarlierStepProposed)
{
    expectInserts({
        {"old.txt", {.text = "_1", .option = option::AtEnd}, "new_1.md", "new.md"},
        {"old.txt", {.text = "_1", .option = option::AtEnd}, "new_1", "new"},
        {"old.txt", {.text = "_1", .option = option::AtEnd}, ".bashrc_1", ".bashrc"},
    });
}

TEST_F(InsertDeleteAction, DeletesARunOfCharacters)
{
    expectDeletes({
        {"abcdef", false, 1, 2, "cdef"},
        {"abcdef", true, 1, 2, "abcd"},
        {"abcdef", false, 5, 3, "abcd"},
        {"abcdef", false, 6, 1, "abcde"},
        {"abcdef", false, 3, 1, "abdef"},
        {"abc.txt", false, 1, 3, ".txt"},
        {"abc", false, 1, 3, ""},
        {"x.tar.gz", true, 1, 2, "x.t.gz"},
    });
}

TEST_F(InsertDeleteAction, DeleteEdgesArePartOfTheArithmetic)
{
    constexpr int largest = std::numeric_limits<int>::max();
    expectDeletes({
        // Position 0 deletes one character fewer.
        {"abcdef", false, 0, 2, "bcdef"},
        {"abcdef", false, 0, 1, "abcdef"},
        {"abcdef", true, 0, 2, "abcde"},
        // Nothing to delete.
        {"abcdef", false, 1, 0, "abcdef"},
        {"abcdef", false, 1, -1, "abcdef"},
        // Positions beyond the end, and every negative one, delete nothing.
        {"abcdef", false, 7, 1, "abcdef"},
        {"abcdef", false, 70, 1, "abcdef"},
        {"abcdef", false, -3, 2, "abcdef"},
        {"abcdef", true, 7, 3, "abcdef"},
        // A run past the end stops at the end, from either side.
        {"abcdef", false, 2, largest, "a"},
        {"abcdef", true, 5, 3, "cdef"},
        {"abcdef", true, largest, largest, "abcdef"},
        {"abc.txt", true, 1, 1, "ab.txt"},
    });
}

TEST_F(InsertDeleteAction, DeletesFromTheNameAnEarlierStepProposed)
{
    expectDeletes({
        {"old.txt", false, 1, 1, "ew.md", "new.md"},
        {"old.txt", true, 1, 1, "ne", "new"},
    });
}

}  // namespace
