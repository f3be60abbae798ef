#include "ActionTestSupport.h"
#include "core/engine/actions/pathcomponents.h"

#include <gtest/gtest.h>

using namespace tavrin;
using test::q;

namespace {

TEST(FolderText, TakesTheLastFoldersOutermostFirstButNeverTheRoot)
{
    const struct {
        const char* path;
        int level;
        const char* expected;
    } rows[] = {
        {"/Users/me/Trips/Rome", 0, ""},
        {"/Users/me/Trips/Rome", 1, "Rome"},
        {"/Users/me/Trips/Rome", 2, "Trips-Rome"},
        {"/Users/me/Trips/Rome", 10, "Users-me-Trips-Rome"},
        {"/Users/me/Trips/Rome", -1, "Users-me-Trips-Rome"},
        {"/", 1, ""},
        {"/a//b:c", 2, "a-b:c"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(folderText(q(row.path), row.level, q("-")), q(row.expected)) << row.path << " " << row.level;
}

PathComponentsOptions options(int level, insertoption::InsertPlace place, const char* separator = "",
                              const char* prefix = "", const char* suffix = "")
{
    PathComponentsOptions made{.level = level, .separator = q(separator), .prefix = q(prefix), .suffix = q(suffix)};
    made.placement.place = place;
    made.placement.afterText = q("_");
    return made;
}

class PathComponentsAction : public test::ActionTest {};

// Each row's file lies in "rowN/Trips/Rome" below the temporary folder.
TEST_F(PathComponentsAction, PutsTheFolderNamesIntoTheName)
{
    using namespace insertoption;
    expectRows<PathComponentsOptions>(
        {
            {"level 1 at the beginning", "Trips/Rome/IMG_1.jpg", options(1, AtBeginning), "RomeIMG_1.jpg"},
            {"two levels, separator and suffix", "Trips/Rome/IMG_1.jpg", options(2, AtBeginning, "-", "", " "),
             "Trips-Rome IMG_1.jpg"},
            {"level 0: prefix and suffix only", "Trips/Rome/IMG_1.jpg", options(0, AtBeginning, "-", "[", "]"),
             "[]IMG_1.jpg"},
            {"after the anchor", "Trips/Rome/IMG_1.jpg", options(1, AfterText), "IMG_Rome1.jpg"},
            {"typed slashes", "Trips/Rome/IMG_1.jpg", options(2, AtEnd, "/", "/", "/"), "IMG_1:Trips:Rome:.jpg"},
        },
        renameByPathComponents);
}

TEST_F(PathComponentsAction, ALevelDeeperThanTheTreeTakesEveryFolderBelowTheRoot)
{
    FileSystemItem record = item("Trips/Rome/IMG_1.jpg");
    QString error;
    ASSERT_TRUE(renameByPathComponents(record, options(1000, insertoption::AtBeginning, "|"), error));
    EXPECT_EQ(record.newFilename(), record.fileLocation().mid(1).replace(u'/', u'|') + q("IMG_1.jpg"));
}

}  // namespace
