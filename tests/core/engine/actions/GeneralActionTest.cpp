#include "core/engine/actions/general.h"
#include "core/list/FileSystemItem.h"
#include "support/TempTree.h"

#include <gtest/gtest.h>

using namespace tavrin;

namespace {

namespace option = generaloption;

// The general tab's settings as the pipeline hands them over; the defaults are those of a
// fresh settings record.
struct GeneralSettings {
    int optionIndex = option::ConvertFilenameCase;
    int fileNameCase = 0;
    int extensionCase = 0;
    QString changeExtension{};
    QString swapSeperator{};
    QString swapPosition = QStringLiteral("1");
    QString removeAfterString{};
    QString removeFromString{};
    QString removeAfterOccurrence{};
    QString removeFromOccurrence{};
    QString windowsCompatible{};
    QString filenameMask{};
};

enum class Kind { File, Folder };

struct Row {
    const char* onDisk;
    GeneralSettings settings;
    const char* expected;
    Kind kind = Kind::File;
    const char* earlierProposal = "";
};

QString q(const char* utf8)
{
    return QString::fromUtf8(utf8);
}

class GeneralAction : public ::testing::Test {
protected:
    FileSystemItem item(const QString& relative, Kind kind = Kind::File)
    {
        const QString path = kind == Kind::File ? tree.file(relative) : tree.folder(relative);
        std::optional<FileSystemItem> made = FileSystemItem::initWithPath(path);
        EXPECT_TRUE(made.has_value()) << qPrintable(relative);
        return made.value_or(FileSystemItem());
    }

    static bool run(FileSystemItem& record, const GeneralSettings& s, QString& error)
    {
        return renameByGeneral(record, s.optionIndex, s.fileNameCase, s.extensionCase, s.changeExtension,
                               s.swapSeperator, s.swapPosition, s.removeAfterString, s.removeFromString,
                               s.removeAfterOccurrence, s.removeFromOccurrence, s.windowsCompatible, s.filenameMask,
                               error);
    }

    // Each row's item lives in a folder of its own, so rows may reuse names.
    void expectRows(const std::initializer_list<Row>& rows)
    {
        int number = 0;
        for (const Row& row : rows) {
            const QString relative = QStringLiteral("row%1/").arg(++number) + q(row.onDisk);
            FileSystemItem record = item(relative, row.kind);
            record.setObject(q(row.earlierProposal), QStringLiteral("newFilename"));
            QString error;
            EXPECT_TRUE(run(record, row.settings, error)) << row.onDisk;
            EXPECT_EQ(error, QString()) << row.onDisk;
            EXPECT_EQ(record.newFilename(), q(row.expected))
                << row.onDisk << " option " << row.settings.optionIndex << " earlier '" << row.earlierProposal << "'";
        }
    }

    test::TempTree tree;
};

TEST_F(GeneralAction, ConvertsTheLetterCaseOfTheName)
{
    expectRows({
        {"hello World.txt", {.fileNameCase = lettercase::Upper}, "HELLO WORLD.txt"},
        {"Hello World.TXT", {.fileNameCase = lettercase::Lower}, "hello world.TXT"},
        {"hELLO wORLD.txt", {.fileNameCase = lettercase::Proper}, "Hello World.txt"},
        {"hello", {.fileNameCase = lettercase::Upper}, "HELLO"},
        {"Hello.txt", {.fileNameCase = 0}, "Hello.txt"},
        {"Hello.txt", {.fileNameCase = 4}, "Hello.txt"},
        {"stra\xc3\x9f" "e.txt", {.fileNameCase = lettercase::Upper}, "STRASSE.txt"},
        {"\xc3\x89T\xc3\x89.txt", {.fileNameCase = lettercase::Lower}, "\xc3\xa9t\xc3\xa9.txt"},
        {"docs", {.fileNameCase = lettercase::Upper}, "DOCS", Kind::Folder},
    });
}

TEST_F(GeneralAction, ProperCaseSplitsWordsAtWhiteSpaceOnly)
{
    expectRows({
        {"the QUICK  brown.txt", {.fileNameCase = lettercase::Proper}, "The Quick  Brown.txt"},
        {"o'neil-SMITH.txt", {.fileNameCase = lettercase::Proper}, "O'neil-smith.txt"},
        {"2nd TRY.txt", {.fileNameCase = lettercase::Proper}, "2nd Try.txt"},
        {" lead.txt", {.fileNameCase = lettercase::Proper}, " Lead.txt"},
        {"a\tb.txt", {.fileNameCase = lettercase::Proper}, "A\tB.txt"},
        {"\xc3\xa9" "cole \xc3\x89T\xc3\x89.txt", {.fileNameCase = lettercase::Proper},
         "\xc3\x89" "cole \xc3\x89t\xc3\xa9.txt"},
        // A word starting outside the Basic Multilingual Plane (Deseret small long I).
        {"\xf0\x90\x90\xa8X.txt", {.fileNameCase = lettercase::Proper}, "\xf0\x90\x90\x80x.txt"},
    });
}

TEST_F(GeneralAction, ConvertsTheLetterCaseOfTheExtension)
{
    const int upper = lettercase::Upper;
    expectRows({
        {"photo.jpg", {.optionIndex = option::ConvertExtensionCase, .extensionCase = upper}, "photo.JPG"},
        {"Photo.JPG", {.optionIndex = option::ConvertExtensionCase, .extensionCase = lettercase::Lower},
         "Photo.jpg"},
        {"Photo.tAR", {.optionIndex = option::ConvertExtensionCase, .extensionCase = lettercase::Proper},
         "Photo.Tar"},
        {"README", {.optionIndex = option::ConvertExtensionCase, .extensionCase = upper}, "README"},
        {"archive.tar.gz", {.optionIndex = option::ConvertExtensionCase, .extensionCase = upper}, "archive.tar.GZ"},
        // The name's case code has no say here.
        {"name.txt", {.optionIndex = option::ConvertExtensionCase, .fileNameCase = upper}, "name.txt"},
    });
}

TEST_F(GeneralAction, RemovesOrChangesTheExtension)
{
    expectRows({
        {"a.txt", {.optionIndex = option::RemoveExtension}, "a"},
        {"a.tar.gz", {.optionIndex = option::RemoveExtension}, "a.tar"},
        {"noext", {.optionIndex = option::RemoveExtension}, "noext"},
        {"x.y", {.optionIndex = option::RemoveExtension}, "x", Kind::Folder},
        {"a.txt", {.optionIndex = option::ChangeExtension, .changeExtension = q("md")}, "a.md"},
        {"noext", {.optionIndex = option::ChangeExtension, .changeExtension = q("md")}, "noext.md"},
        {"a.txt", {.optionIndex = option::ChangeExtension}, "a."},
        {"a.txt", {.optionIndex = option::ChangeExtension, .changeExtension = q("tar.gz")}, "a.tar.gz"},
        // A typed slash is stored as a colon.
        {"a.txt", {.optionIndex = option::ChangeExtension, .changeExtension = q("x/y")}, "a.x:y"},
    });
}

TEST_F(GeneralAction, ChangingTheExtensionOfAFolderOnlyDropsTheOldOne)
{
    expectRows({
        {"x.y", {.optionIndex = option::ChangeExtension, .changeExtension = q("md")}, "x", Kind::Folder},
        {"plain", {.optionIndex = option::ChangeExtension, .changeExtension = q("md")}, "plain", Kind::Folder},
    });
}

TEST_F(GeneralAction, ChangingTheExtensionOfALinkOnlyDropsTheOldOne)
{
    const QString target = tree.file(q("target.txt"));
    std::optional<FileSystemItem> link = FileSystemItem::initWithPath(tree.symlink(target, q("link.txt")));
    ASSERT_TRUE(link.has_value());
    ASSERT_EQ(link->itemType(), ItemType::Alias);
    QString error;
    EXPECT_TRUE(run(*link, {.optionIndex = option::ChangeExtension, .changeExtension = q("md")}, error));
    EXPECT_EQ(link->newFilename(), q("link"));
}

TEST_F(GeneralAction, ReversesAndRemovesSpacesInTheNameOnly)
{
    expectRows({
        {"abc.txt", {.optionIndex = option::ReverseFilename}, "cba.txt"},
        {"abc", {.optionIndex = option::ReverseFilename}, "cba"},
        {"a b.c d.txt", {.optionIndex = option::ReverseFilename}, "d c.b a.txt"},
        {" a b  c .txt", {.optionIndex = option::RemoveSpaces}, "abc.txt"},
        {"a b", {.optionIndex = option::RemoveSpaces}, "ab"},
        {"a\tb.txt", {.optionIndex = option::RemoveSpaces}, "a\tb.txt"},
        {"ab.t xt", {.optionIndex = option::RemoveSpaces}, "ab.t xt"},
    });
}

TEST_F(GeneralAction, SwapsAroundASeparatorOrAPosition)
{
    expectRows({
        {"John-Smith.txt", {.optionIndex = option::SwapBySeperator, .swapSeperator = q("-")}, "Smith-John.txt"},
        {"A_B.txt", {.optionIndex = option::SwapBySeperator, .swapSeperator = q("-")}, "A_B.txt"},
        {"a and b.txt", {.optionIndex = option::SwapBySeperator, .swapSeperator = q(" AND ")}, "b and a.txt"},
        {"a:b.txt", {.optionIndex = option::SwapBySeperator, .swapSeperator = q("/")}, "b:a.txt"},
        {"ab.txt", {.optionIndex = option::SwapBySeperator}, "ab.txt"},
        {"abcdef.txt", {.optionIndex = option::SwapByPosition, .swapPosition = q("3")}, "defcab.txt"},
        {"abcdef.txt", {.optionIndex = option::SwapByPosition, .swapPosition = q("1")}, "bcdefa.txt"},
        {"abcdef.txt", {.optionIndex = option::SwapByPosition, .swapPosition = q("3rd")}, "defcab.txt"},
        {"abcdef.txt", {.optionIndex = option::SwapByPosition, .swapPosition = q("7")}, "abcdef.txt"},
        {"abcdef.txt", {.optionIndex = option::SwapByPosition, .swapPosition = q("")}, "abcdef.txt"},
        {"abcdef.txt", {.optionIndex = option::SwapByPosition, .swapPosition = q("-2")}, "abcdef.txt"},
    });
}

TEST_F(GeneralAction, CutsAfterOrFromTheNthOccurrence)
{
    const int after = option::RemoveAfterString;
    const int from = option::RemoveFromString;
    expectRows({
        {"a-b-c.txt", {.optionIndex = after, .removeAfterString = q("-"), .removeAfterOccurrence = q("2")},
         "a-b-.txt"},
        {"a-b-c.txt", {.optionIndex = from, .removeFromString = q("-"), .removeFromOccurrence = q("2")},
         "a-b.txt"},
        {"a-b-c.txt", {.optionIndex = after, .removeAfterString = q("-"), .removeAfterOccurrence = q("3")},
         "a-b-c.txt"},
        {"a-b-c.txt", {.optionIndex = from, .removeFromString = q("-"), .removeFromOccurrence = q("3")},
         "a-b-c.txt"},
        {"a-b-c.txt", {.optionIndex = after, .removeAfterString = q("-"), .removeAfterOccurrence = q("1")}, "a-.txt"},
        {"a-b-c.txt", {.optionIndex = from, .removeFromString = q("-"), .removeFromOccurrence = q("-1")},
         "a-b-c.txt"},
        {"a-b-c.txt", {.optionIndex = from, .removeFromString = q("-"), .removeFromOccurrence = q("0")},
         "a-b-c.txt"},
        // Always case-sensitive.
        {"aXbxc.txt", {.optionIndex = from, .removeFromString = q("x"), .removeFromOccurrence = q("1")}, "aXb.txt"},
        // Cutting from an occurrence at the very start keeps what follows it.
        {"ab-cd.txt", {.optionIndex = from, .removeFromString = q("ab"), .removeFromOccurrence = q("1")},
         "-cd.txt"},
        // The extension is never searched.
        {"ab.c-d", {.optionIndex = from, .removeFromString = q("-"), .removeFromOccurrence = q("1")}, "ab.c-d"},
        {"a:b:c.txt", {.optionIndex = from, .removeFromString = q("/"), .removeFromOccurrence = q("2")},
         "a:b.txt"},
    });
}

TEST_F(GeneralAction, TheMaskRightAlignsTheName)
{
    const int mask = option::FilenameMask;
    expectRows({
        {"5.txt", {.optionIndex = mask, .filenameMask = q("000")}, "005.txt"},
        {"12345.txt", {.optionIndex = mask, .filenameMask = q("000")}, "345.txt"},
        {"123.txt", {.optionIndex = mask, .filenameMask = q("000")}, "123.txt"},
        {"7", {.optionIndex = mask, .filenameMask = q("0000")}, "0007"},
        {"7.txt", {.optionIndex = mask, .filenameMask = q("abcd")}, "abc7.txt"},
        {"7.txt", {.optionIndex = mask, .filenameMask = q("")}, "7.txt"},
        {"7.txt", {.optionIndex = mask, .filenameMask = q("a/b")}, "a:7.txt"},
    });
}

TEST_F(GeneralAction, ReplacesCharactersWindowsForbids)
{
    const int windows = option::ConvertWindowsCompatible;
    expectRows({
        // Shown as "a/b": the stored name holds a colon.
        {"a:b.txt", {.optionIndex = windows, .windowsCompatible = q("_")}, "a_b.txt"},
        {"a\\b*c?d\"e<f>g|h.txt", {.optionIndex = windows, .windowsCompatible = q("_")}, "a_b_c_d_e_f_g_h.txt"},
        {"a*b?c.txt", {.optionIndex = windows}, "abc.txt"},
        {"plain.txt", {.optionIndex = windows, .windowsCompatible = q("_")}, "plain.txt"},
        // In order: the "\" becomes ":x", and then that ":" is replaced as well.
        {"a\\b.txt", {.optionIndex = windows, .windowsCompatible = q(":x")}, "a:xxb.txt"},
        // The replacement is not converted like the typed name texts are.
        {"a*b.txt", {.optionIndex = windows, .windowsCompatible = q("/")}, "a/b.txt"},
    });
}

TEST_F(GeneralAction, AnUnknownOptionLeavesTheName)
{
    expectRows({
        {"Name.txt", {.optionIndex = 12, .fileNameCase = lettercase::Upper}, "Name.txt"},
        {"Name.txt", {.optionIndex = -1, .fileNameCase = lettercase::Upper}, "Name.txt"},
    });
}

TEST_F(GeneralAction, WorksOnTheNameAnEarlierStepProposed)
{
    expectRows({
        {"old.md", {.fileNameCase = lettercase::Upper}, "NEW.txt", Kind::File, "New.txt"},
        {"old.md", {.optionIndex = option::RemoveExtension}, "New", Kind::File, "New.txt"},
        {"old.md", {.optionIndex = option::ConvertExtensionCase, .extensionCase = lettercase::Upper}, "New",
         Kind::File, "New"},
        {"old", {.optionIndex = option::ReverseFilename}, "cba.d", Kind::File, "abc.d"},
        // A proposal whose only dot comes first has no extension.
        {"old.md", {.optionIndex = option::ReverseFilename}, "crhsab.", Kind::File, ".bashrc"},
        {"old.md", {.optionIndex = option::ChangeExtension, .changeExtension = q("jpg")}, "x:y.jpg", Kind::File,
         "x:y.png"},
    });
}

TEST_F(GeneralAction, ANameEndingInADotHasNoExtension)
{
    // "a." keeps its dot as part of the name, so no second dot is added.
    expectRows({
        {"a.", {.fileNameCase = lettercase::Upper}, "A."},
        {"a.", {.optionIndex = option::RemoveExtension}, "a."},
    });
}

TEST_F(GeneralAction, AnswersTrueAndLeavesTheErrorEmpty)
{
    FileSystemItem record = item(q("a.txt"));
    QString error;
    EXPECT_TRUE(run(record, {.fileNameCase = lettercase::Upper}, error));
    EXPECT_TRUE(error.isEmpty());
    EXPECT_EQ(record.newFilename(), q("A.txt"));
    // The disk is not touched: only the proposal changes.
    EXPECT_TRUE(tree.exists(q("a.txt")));
    EXPECT_EQ(record.filenameWithExtension(), q("a.txt"));
}

TEST_F(GeneralAction, AnErrorLeftByTheCallerIsReportedAsFailure)
{
    FileSystemItem record = item(q("a.txt"));
    QString error = q("earlier");
    EXPECT_FALSE(run(record, {.fileNameCase = lettercase::Upper}, error));
    EXPECT_EQ(error, q("earlier"));
}

struct CaseRow {
    const char* text;
    int code;
    const char* expected;
};

TEST(ConvertLetterCase, CodesOneToThreeAndEverythingElse)
{
    const CaseRow rows[] = {
        {"mIxEd cAsE", lettercase::Upper, "MIXED CASE"},
        {"mIxEd cAsE", lettercase::Lower, "mixed case"},
        {"mIxEd cAsE", lettercase::Proper, "Mixed Case"},
        {"mIxEd cAsE", 0, "mIxEd cAsE"},
        {"mIxEd cAsE", -1, "mIxEd cAsE"},
        {"", lettercase::Proper, ""},
        {"   ", lettercase::Proper, "   "},
        {"x", lettercase::Proper, "X"},
    };
    for (const CaseRow& row : rows)
        EXPECT_EQ(convertLetterCase(q(row.text), row.code), q(row.expected)) << row.text << " " << row.code;
}

}  // namespace
