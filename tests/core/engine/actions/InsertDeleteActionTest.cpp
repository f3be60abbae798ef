#include "ActionTestSupport.h"
#include "core/engine/actions/insertdelete.h"

#include <gtest/gtest.h>
#include <limits>

using namespace tavrin;
using test::q;

namespace {

using InsertRow = test::ActionRow<InsertOptions>;
using DeleteRow = test::ActionRow<DeleteOptions>;
using namespace insertoption;
constexpr auto fromEnd = insertdirection::FromEnd;
constexpr int largest = std::numeric_limits<int>::max();

class InsertDeleteAction : public test::ActionTest {
protected:
    void expectInserts(std::initializer_list<InsertRow> rows) { expectRows<InsertOptions>(rows, renameByInsert); }
    void expectDeletes(std::initializer_list<DeleteRow> rows) { expectRows<DeleteOptions>(rows, renameByDelete); }
};

TEST_F(InsertDeleteAction, InsertsAtEitherEndOfTheName)
{
    expectInserts({
        {"beginning", "name.txt", {.text = "new-"}, "new-name.txt"},
        {"end", "name.txt", {.text = "-new", .place = AtEnd}, "name-new.txt"},
        {"end, double extension", "x.tar.gz", {.text = "1", .place = AtEnd}, "x.tar1.gz"},
        {"typed slash", "a.txt", {.text = "x/y"}, "x:ya.txt"},
        {"earlier proposal", "old.txt", {.text = "_1", .place = AtEnd}, "new_1.md", "new.md"},
        {"earlier dot file", "old.txt", {.text = "_1", .place = AtEnd}, ".bashrc_1", ".bashrc"},
    });
}

TEST_F(InsertDeleteAction, InsertsAtAPosition)
{
    const InsertOptions at{.text = "-v2", .place = AtPosition};
    const InsertOptions atEnd{.text = "AB", .place = AtPosition, .direction = fromEnd};
    const auto with = [](InsertOptions options, int position) {
        options.position = position;
        return options;
    };
    expectInserts({
        {"append", "report", with(at, 7), "report-v2"},
        {"beyond the end", "report", with(at, 8), "report"},
        {"before the last", "report", with(at, 6), "repor-v2t"},
        {"first", "report", with(at, 1), "-v2report"},
        {"second", "report", with(at, 2), "r-v2eport"},
        {"zero", "report.txt", with(at, 0), "report.txt"},
        {"before the extension", "report.txt", with(at, 7), "report-v2.txt"},
        {"end, reading forwards", "report", with(atEnd, 1), "reportAB"},
        {"end, third", "report", with(atEnd, 3), "repoABrt"},
        {"end, at the start", "report", with(atEnd, 7), "ABreport"},
        {"end, beyond", "report", with(atEnd, 8), "report"},
        {"end, extension stays", "report.txt", with(atEnd, 2), "reporABt.txt"},
        // Only FromEnd counts from the end.
        {"direction 2", "report",
         {.text = "AB", .place = AtPosition, .position = 3,
          .direction = test::unknown<insertdirection::InsertDirection>(2)},
         "reABport"},
    });
}

TEST_F(InsertDeleteAction, InsertsBeforeOrAfterTheNthOccurrenceOfAnAnchor)
{
    expectInserts({
        {"after the second", "a_b_c", {.text = "X", .place = AfterText, .afterText = "_", .afterOccurrence = 2},
         "a_b_Xc"},
        {"before the second", "a_b_c", {.text = "X", .place = BeforeText, .beforeText = "_", .beforeOccurrence = 2},
         "a_bX_c"},
        {"before the first", "a_b_c", {.text = "X", .place = BeforeText, .beforeText = "_"}, "aX_b_c"},
        {"missing occurrence", "a_b_c", {.text = "X", .place = BeforeText, .beforeText = "_", .beforeOccurrence = 3},
         "a_b_c"},
        {"occurrence 0", "a_b_c", {.text = "X", .place = AfterText, .afterText = "_", .afterOccurrence = 0},
         "a_b_c"},
        {"longer anchor", "abab", {.text = "X", .place = AfterText, .afterText = "ab", .afterOccurrence = 2},
         "ababX"},
        {"anchor at the start", "abab", {.text = "X", .place = BeforeText, .beforeText = "ab"}, "Xabab"},
        {"case before", "abc", {.text = "X", .place = BeforeText, .beforeText = "B"}, "abc"},
        {"empty anchor", "abc", {.text = "X", .place = BeforeText, .beforeText = ""}, "abc"},
        {"own anchor only", "a_b-c", {.text = "X", .place = AfterText, .beforeText = "_", .afterText = "-"},
         "a_b-Xc"},
        {"typed slash anchor", "a:b", {.text = "X", .place = BeforeText, .beforeText = "/"}, "aX:b"},
        {"extension never searched", "ab.c_d", {.text = "X", .place = AfterText, .afterText = "_"}, "ab.c_d"},
    });
}

TEST_F(InsertDeleteAction, AnUnknownPlaceProposesNothing)
{
    expectInserts({
        {"5", "name.txt", {.place = test::unknown<InsertPlace>(5)}, ""},
        {"over an earlier proposal", "name.txt", {.place = test::unknown<InsertPlace>(7)}, "", "earlier.jpg"},
    });
}

TEST_F(InsertDeleteAction, DeletesARunOfCharacters)
{
    expectDeletes({
        {"first two", "abcdef", {.fromPosition = 1, .count = 2}, "cdef"},
        {"last two", "abcdef", {.fromBackward = true, .fromPosition = 1, .count = 2}, "abcd"},
        {"run past the end", "abcdef", {.fromPosition = 5, .count = 3}, "abcd"},
        {"whole name, extension stays", "abc.txt", {.fromPosition = 1, .count = 3}, ".txt"},
        {"whole name", "abc", {.fromPosition = 1, .count = 3}, ""},
        {"double extension", "x.tar.gz", {.fromBackward = true, .fromPosition = 1, .count = 2}, "x.t.gz"},
        {"earlier proposal", "old.txt", {.fromPosition = 1, .count = 1}, "ew.md", "new.md"},
        {"earlier proposal, backward", "old.txt", {.fromBackward = true, .fromPosition = 1, .count = 1}, "ne", "new"},
    });
}

TEST_F(InsertDeleteAction, DeleteEdgesArePartOfTheArithmetic)
{
    expectDeletes({
        // Position 0 deletes one character fewer.
        {"position 0", "abcdef", {.fromPosition = 0, .count = 2}, "bcdef"},
        {"position 0, one", "abcdef", {.fromPosition = 0, .count = 1}, "abcdef"},
        {"position 0, backward", "abcdef", {.fromBackward = true, .fromPosition = 0, .count = 2}, "abcde"},
        {"count 0", "abcdef", {.fromPosition = 1, .count = 0}, "abcdef"},
        {"negative count", "abcdef", {.fromPosition = 1, .count = -1}, "abcdef"},
        {"just beyond the end", "abcdef", {.fromPosition = 7, .count = 1}, "abcdef"},
        {"negative position", "abcdef", {.fromPosition = -3, .count = 2}, "abcdef"},
        {"beyond, backward", "abcdef", {.fromBackward = true, .fromPosition = 7, .count = 3}, "abcdef"},
        {"largest count", "abcdef", {.fromPosition = 2, .count = largest}, "a"},
        {"past the start, backward", "abcdef", {.fromBackward = true, .fromPosition = 5, .count = 3}, "cdef"},
        {"largest both", "abcdef", {.fromBackward = true, .fromPosition = largest, .count = largest}, "abcdef"},
        {"backward, extension stays", "abc.txt", {.fromBackward = true, .fromPosition = 1, .count = 1}, "ab.txt"},
    });
}

TEST_F(InsertDeleteAction, AnErrorLeftByTheCallerIsReportedAsFailure)
{
    FileSystemItem record = item("ab.txt");
    QString error = q("earlier");
    EXPECT_FALSE(renameByInsert(record, {.text = "x"}, error));
    EXPECT_FALSE(renameByDelete(record, {.count = 2}, error));
    EXPECT_EQ(record.newFilename(), q("b.txt")) << "the delete works on the insert's proposal";
    EXPECT_EQ(error, q("earlier"));
}

TEST(InsertDeleteOptionsFrom, TextsAndNumbersAreReadByKey)
{
    Settings settings;
    settings.chooseInsertPosition(AfterText);
    settings.setInsertDeleteInsert(q("x/y"));
    settings.setInsertDeleteAtCharacterPositions(q("3rd"));
    settings.setInsertDeleteInsertAtPostionDirection(fromEnd);
    settings.setInsertDeleteInsertAtBeforeText(q("b"));
    settings.setInsertDeleteInsertAtBeforeOccurrence(q("2"));
    settings.setInsertDeleteInsertAtAfterText(q("a"));
    settings.setInsertDeleteInsertAtAfterOccurrence(q("-1"));
    const auto insert = test::optionsFrom<InsertOptions>(settings);
    EXPECT_EQ(insert.text + insert.beforeText + insert.afterText, q("x/yba"));
    EXPECT_EQ(insert.place, AfterText);
    EXPECT_EQ(insert.direction, fromEnd);
    EXPECT_EQ(QList<int>({insert.position, insert.beforeOccurrence, insert.afterOccurrence}), QList<int>({3, 2, -1}));

    settings.setIsInsertDeleteDeleteFromBackWard(true);
    settings.setInsertDeleteFromCharacterPosition(q(" 4"));
    settings.setInsertDeleteNumberOfCharacters(q("x"));
    const auto removal = test::optionsFrom<DeleteOptions>(settings);
    EXPECT_TRUE(removal.fromBackward);
    EXPECT_EQ(removal.fromPosition, 4);
    EXPECT_EQ(removal.count, 0);
}

}  // namespace
