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
        {"/Users/me/Trips/Rome", 4, "Users-me-Trips-Rome"},
        {"/Users/me/Trips/Rome", 10, "Users-me-Trips-Rome"},
        {"/Users/me/Trips/Rome", -1, "Users-me-Trips-Rome"},
        {"/", 1, ""},
        {"/a", 5, "a"},
        {"/a//b:c", 2, "a-b:c"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(folderText(q(row.path), row.level, q("-")), q(row.expected)) << row.path << " " << row.level;
}

PathComponentsOptions levels(int level, insertoption::InsertPlace place = insertoption::AtBeginning)
{
    PathComponentsOptions options;
    options.level = level;
    options.placement.place = place;
    return options;
}

PathComponentsOptions wrapped(PathComponentsOptions options, const char* separator, const char* prefix,
                              const char* suffix)
{
    options.separator = q(separator);
    options.prefix = q(prefix);
    options.suffix = q(suffix);
    return options;
}

class PathComponentsAction : public test::ActionTest {};

TEST_F(PathComponentsAction, PutsTheFolderNamesIntoTheName)
{
    PathComponentsOptions afterUnderscore = levels(1, insertoption::AfterText);
    afterUnderscore.placement.afterText = q("_");
    PathComponentsOptions atPosition = levels(1, insertoption::AtPosition);
    atPosition.placement.position = 2;
    // Each row's file lies in "rowN/Trips/Rome" below the temporary folder.
    expectRows<PathComponentsOptions>(
        {
            {"level 1 at the beginning", "Trips/Rome/IMG_1.jpg", levels(1), "RomeIMG_1.jpg"},
            {"two levels, separator and suffix", "Trips/Rome/IMG_1.jpg", wrapped(levels(2), "-", "", " "),
             "Trips-Rome IMG_1.jpg"},
            {"level 0: prefix and suffix only", "Trips/Rome/IMG_1.jpg", wrapped(levels(0), "-", "[", "]"),
             "[]IMG_1.jpg"},
            {"at the end", "Trips/Rome/IMG_1.jpg", wrapped(levels(1, insertoption::AtEnd), "", "_", ""),
             "IMG_1_Rome.jpg"},
            {"after the anchor", "Trips/Rome/IMG_1.jpg", afterUnderscore, "IMG_Rome1.jpg"},
            {"at a position", "Trips/Rome/IMG_1.jpg", atPosition, "IRomeMG_1.jpg"},
            {"typed slashes", "Trips/Rome/IMG_1.jpg", wrapped(levels(2), "/", "/", "/"), ":Trips:Rome:IMG_1.jpg"},
            {"a colon of a folder stays", "a:b/IMG_1.jpg", levels(1), "a:bIMG_1.jpg"},
            {"earlier proposal", "Trips/Rome/IMG_1.jpg", levels(1), "Romeb.MP3", "b.MP3"},
        },
        renameByPathComponents);
}

TEST_F(PathComponentsAction, ALevelDeeperThanTheTreeTakesEveryFolderBelowTheRoot)
{
    const FileSystemItem record = item("Trips/Rome/IMG_1.jpg");
    FileSystemItem renamed = record;
    QString error;
    ASSERT_TRUE(renameByPathComponents(renamed, wrapped(levels(1000), "|", "", ""), error));
    QString folders = record.fileLocation().mid(1);
    EXPECT_EQ(renamed.newFilename(), folders.replace(u'/', u'|') + q("IMG_1.jpg"));
}

TEST_F(PathComponentsAction, TheTabsOptionsAreReadByKey)
{
    Settings settings;
    settings.setPathComponentsLevelNo(2);
    settings.choosePathComponentsPlacement(insertoption::BeforeText);
    settings.setPathComponentsAtBeforeText(q("_"));
    settings.setPathComponentsAtBeforeOccurrence(q("2"));
    settings.setPathComponentsSeparator(q("+"));
    settings.setPathComponentsPrefix(q("("));
    settings.setPathComponentsSuffix(q(")"));
    expectRows<PathComponentsOptions>(
        {{"before text", "Trips/Rome/a_b_c.jpg", test::optionsFrom<PathComponentsOptions>(settings),
          "a_b(Trips+Rome)_c.jpg"}},
        renameByPathComponents);

    settings.choosePathComponentsPlacement(insertoption::AtPosition);
    settings.setPathComponentsAtPositionNo(q("2"));
    settings.setPathComponentsAtPositionDirection(insertdirection::FromEnd);
    expectRows<PathComponentsOptions>(
        {{"position from the end", "Trips/Rome/abc.jpg", test::optionsFrom<PathComponentsOptions>(settings),
          "ab(Trips+Rome)c.jpg"}},
        renameByPathComponents);
    settings.choosePathComponentsPlacement(insertoption::AfterText);
    settings.setPathComponentsAtAfterText(q("a"));
    settings.setPathComponentsAtAfterOccurrence(q("2"));
    expectRows<PathComponentsOptions>(
        {{"after text", "Trips/Rome/abca.jpg", test::optionsFrom<PathComponentsOptions>(settings),
          "abca(Trips+Rome).jpg"}},
        renameByPathComponents);
}

}  // namespace
