#include "ActionTestSupport.h"
#include "core/engine/actions/general.h"

#include <gtest/gtest.h>

using namespace tavrin;
using test::q;

namespace {

using Row = test::ActionRow<GeneralOptions>;
using namespace generaloption;
using namespace lettercase;

class GeneralAction : public test::ActionTest {
protected:
    void expect(std::initializer_list<Row> rows) { expectRows<GeneralOptions>(rows, renameByGeneral); }

    // The same options on a folder or a link of that name, which take no new extension.
    void expectOnNonFile(const QString& path, const GeneralOptions& options, const char* expected)
    {
        std::optional<FileSystemItem> record = FileSystemItem::initWithPath(path);
        ASSERT_TRUE(record.has_value());
        ASSERT_NE(record->itemType(), ItemType::File);
        QString error;
        EXPECT_TRUE(renameByGeneral(*record, options, error));
        EXPECT_EQ(record->newFilename(), q(expected)) << qPrintable(path);
    }
};

TEST_F(GeneralAction, ConvertsTheLetterCaseOfTheNameOrTheExtension)
{
    expect({
        {"upper", "hello World.txt", {.fileNameCase = Upper}, "HELLO WORLD.txt"},
        {"lower", "Hello World.TXT", {.fileNameCase = Lower}, "hello world.TXT"},
        {"proper", "hELLO wORLD.txt", {.fileNameCase = Proper}, "Hello World.txt"},
        {"unknown code", "Hello.txt", {.fileNameCase = test::unknown<LetterCase>(4)}, "Hello.txt"},
        {"sharp s", "stra\xc3\x9f" "e.txt", {.fileNameCase = Upper}, "STRASSE.txt"},
        {"dot at the end", "a.", {.fileNameCase = Upper}, "A."},
        {"earlier proposal", "old.md", {.fileNameCase = Upper}, "NEW.txt", "New.txt"},
        {"extension upper", "photo.jpg", {.option = ConvertExtensionCase, .extensionCase = Upper}, "photo.JPG"},
        {"extension proper", "Photo.tAR", {.option = ConvertExtensionCase, .extensionCase = Proper}, "Photo.Tar"},
        {"no extension to convert", "README", {.option = ConvertExtensionCase, .extensionCase = Upper}, "README"},
        {"last extension only", "archive.tar.gz", {.option = ConvertExtensionCase, .extensionCase = Upper},
         "archive.tar.GZ"},
        {"the name's code has no say", "name.txt", {.option = ConvertExtensionCase, .fileNameCase = Upper},
         "name.txt"},
    });
}

TEST_F(GeneralAction, RemovesOrChangesTheExtension)
{
    expect({
        {"remove", "a.txt", {.option = RemoveExtension}, "a"},
        {"nothing to remove", "noext", {.option = RemoveExtension}, "noext"},
        {"a dot at the end is no extension", "a.", {.option = RemoveExtension}, "a."},
        {"remove from a proposal", "old.md", {.option = RemoveExtension}, "New", "New.txt"},
        {"change", "a.txt", {.option = ChangeExtension, .changeExtension = "md"}, "a.md"},
        {"add", "noext", {.option = ChangeExtension, .changeExtension = "md"}, "noext.md"},
        {"change to nothing", "a.txt", {.option = ChangeExtension}, "a."},
        {"typed slash", "a.txt", {.option = ChangeExtension, .changeExtension = "x/y"}, "a.x:y"},
        {"change a proposal", "old.md", {.option = ChangeExtension, .changeExtension = "jpg"}, "x:y.jpg", "x:y.png"},
    });
}

TEST_F(GeneralAction, FoldersAndLinksOnlyLoseTheirExtension)
{
    const GeneralOptions change{.option = ChangeExtension, .changeExtension = "md"};
    expectOnNonFile(tree.folder(q("x.y")), change, "x");
    expectOnNonFile(tree.folder(q("plain")), change, "plain");
    expectOnNonFile(tree.folder(q("f/x.y")), {.option = RemoveExtension}, "x");
    expectOnNonFile(tree.folder(q("docs")), {.fileNameCase = Upper}, "DOCS");
    expectOnNonFile(tree.symlink(tree.file(q("target.txt")), q("link.txt")), change, "link");
}

TEST_F(GeneralAction, ReversesSwapsAndRemovesSpacesInTheNameOnly)
{
    expect({
        {"reverse", "abc.txt", {.option = ReverseFilename}, "cba.txt"},
        {"reverse, inner dots", "a b.c d.txt", {.option = ReverseFilename}, "d c.b a.txt"},
        {"reverse a proposal", "old", {.option = ReverseFilename}, "cba.d", "abc.d"},
        {"reverse a dot file", "old.md", {.option = ReverseFilename}, "crhsab.", ".bashrc"},
        {"spaces", " a b  c .txt", {.option = RemoveSpaces}, "abc.txt"},
        {"tabs stay", "a\tb.txt", {.option = RemoveSpaces}, "a\tb.txt"},
        {"spaces in the extension stay", "ab.t xt", {.option = RemoveSpaces}, "ab.t xt"},
        {"swap", "John-Smith.txt", {.option = SwapBySeperator, .swapSeperator = "-"}, "Smith-John.txt"},
        {"no separator", "A_B.txt", {.option = SwapBySeperator, .swapSeperator = "-"}, "A_B.txt"},
        {"case-insensitive separator", "a and b.txt", {.option = SwapBySeperator, .swapSeperator = " AND "},
         "b and a.txt"},
        {"typed slash separator", "a:b.txt", {.option = SwapBySeperator, .swapSeperator = "/"}, "b:a.txt"},
        {"empty separator", "ab.txt", {.option = SwapBySeperator}, "ab.txt"},
        {"position 3", "abcdef.txt", {.option = SwapByPosition, .swapPosition = 3}, "defcab.txt"},
        {"position 1", "abcdef.txt", {.option = SwapByPosition, .swapPosition = 1}, "bcdefa.txt"},
        {"position beyond", "abcdef.txt", {.option = SwapByPosition, .swapPosition = 7}, "abcdef.txt"},
        {"position 0", "abcdef.txt", {.option = SwapByPosition, .swapPosition = 0}, "abcdef.txt"},
    });
}

TEST_F(GeneralAction, CutsAfterOrFromTheNthOccurrence)
{
    const auto after = [](const char* text, int nth) {
        return GeneralOptions{.option = RemoveAfterString, .removeAfterString = text, .removeAfterOccurrence = nth};
    };
    const auto from = [](const char* text, int nth) {
        return GeneralOptions{.option = RemoveFromString, .removeFromString = text, .removeFromOccurrence = nth};
    };
    expect({
        {"after the second", "a-b-c.txt", after("-", 2), "a-b-.txt"},
        {"from the second", "a-b-c.txt", from("-", 2), "a-b.txt"},
        {"after a missing one", "a-b-c.txt", after("-", 3), "a-b-c.txt"},
        {"from a missing one", "a-b-c.txt", from("-", 3), "a-b-c.txt"},
        {"after the first", "a-b-c.txt", after("-", 1), "a-.txt"},
        {"from occurrence -1", "a-b-c.txt", from("-", -1), "a-b-c.txt"},
        {"from occurrence 0", "a-b-c.txt", from("-", 0), "a-b-c.txt"},
        {"always case-sensitive", "aXbxc.txt", from("x", 1), "aXb.txt"},
        // Cutting from an occurrence at the very start keeps what follows it.
        {"from the start", "ab-cd.txt", from("ab", 1), "-cd.txt"},
        {"extension never searched", "ab.c-d", from("-", 1), "ab.c-d"},
        {"typed slash", "a:b:c.txt", from("/", 2), "a:b.txt"},
    });
}

TEST_F(GeneralAction, TheMaskRightAlignsTheName)
{
    const auto mask = [](const char* text) { return GeneralOptions{.option = FilenameMask, .filenameMask = text}; };
    expect({
        {"padded", "5.txt", mask("000"), "005.txt"},
        {"cut on the left", "12345.txt", mask("000"), "345.txt"},
        {"as wide", "123.txt", mask("000"), "123.txt"},
        {"the mask's own characters", "7.txt", mask("abcd"), "abc7.txt"},
        {"empty mask", "7.txt", mask(""), "7.txt"},
        {"typed slash", "7.txt", mask("a/b"), "a:7.txt"},
    });
}

TEST_F(GeneralAction, ReplacesCharactersWindowsForbids)
{
    const auto windows = [](const char* replacement) {
        return GeneralOptions{.option = ConvertWindowsCompatible, .windowsReplacement = replacement};
    };
    expect({
        // Shown as "a/b": the stored name holds a colon.
        {"colon", "a:b.txt", windows("_"), "a_b.txt"},
        {"every one", "a\\b*c?d\"e<f>g|h.txt", windows("_"), "a_b_c_d_e_f_g_h.txt"},
        {"removed", "a*b?c.txt", windows(""), "abc.txt"},
        {"none", "plain.txt", windows("_"), "plain.txt"},
        // In order: the "\" becomes ":x", and then that ":" is replaced as well.
        {"replaced in order", "a\\b.txt", windows(":x"), "a:xxb.txt"},
        {"replacement as typed", "a*b.txt", windows("/"), "a/b.txt"},
    });
}

TEST_F(GeneralAction, AnUnknownOptionLeavesTheName)
{
    expect({
        {"12", "Name.txt", {.option = test::unknown<GeneralOption>(12), .fileNameCase = Upper}, "Name.txt"},
    });
}

TEST_F(GeneralAction, AnErrorLeftByTheCallerIsReportedAsFailure)
{
    FileSystemItem record = item("a.txt");
    QString error = q("earlier");
    EXPECT_FALSE(renameByGeneral(record, {.fileNameCase = Upper}, error));
    EXPECT_EQ(error, q("earlier"));
    // Only the proposal changes, never the disk.
    EXPECT_EQ(record.newFilename(), q("A.txt"));
    EXPECT_EQ(record.filenameWithExtension(), q("a.txt"));
}

TEST(GeneralOptionsFrom, IndexesAndTextsAreReadByKey)
{
    Settings settings;
    settings.chooseGeneralOption(SwapByPosition);
    settings.setGeneralFileNameCase(Lower);
    settings.setGeneralExtensionCase(Proper);
    settings.setGeneralChangeExtension(q("md"));
    settings.setGeneralSwapSeperator(q("-"));
    settings.setGeneralSwapPosition(q("3rd"));
    settings.setGeneralRemoveAfterString(q("a"));
    settings.setGeneralRemoveAfterStringOccurrence(q("2"));
    settings.setGeneralRemoveFromString(q("b"));
    settings.setGeneralRemoveFromStringOccurrence(q("-1"));
    settings.setGeneralConvertWindowsCompatibleString(q("_"));
    settings.setGeneralFilenameMask(q("000"));
    const auto o = test::optionsFrom<GeneralOptions>(settings);
    EXPECT_EQ(QList<int>({o.option, o.fileNameCase, o.extensionCase}), QList<int>({SwapByPosition, Lower, Proper}));
    EXPECT_EQ(QList<int>({o.swapPosition, o.removeAfterOccurrence, o.removeFromOccurrence}), QList<int>({3, 2, -1}));
    EXPECT_EQ(QStringList({o.changeExtension, o.swapSeperator, o.removeAfterString, o.removeFromString,
                           o.windowsReplacement, o.filenameMask}),
              QStringList({q("md"), q("-"), q("a"), q("b"), q("_"), q("000")}));
}

struct CaseRow {
    const char* text;
    LetterCase letterCase;
    const char* expected;
};

TEST(ConvertLetterCase, ProperCaseSplitsWordsAtWhiteSpaceOnly)
{
    const CaseRow rows[] = {
        {"mIxEd cAsE", Upper, "MIXED CASE"},
        {"mIxEd cAsE", Lower, "mixed case"},
        {"mIxEd cAsE", Unchanged, "mIxEd cAsE"},
        {"mIxEd cAsE", test::unknown<LetterCase>(-1), "mIxEd cAsE"},
        {"the QUICK  brown", Proper, "The Quick  Brown"},
        {"o'neil-SMITH", Proper, "O'neil-smith"},
        {"2nd TRY", Proper, "2nd Try"},
        {" lead", Proper, " Lead"},
        {"a\tb", Proper, "A\tB"},
        {"", Proper, ""},
        {"   ", Proper, "   "},
        {"\xc3\xa9" "cole \xc3\x89T\xc3\x89", Proper, "\xc3\x89" "cole \xc3\x89t\xc3\xa9"},
        // A word starting outside the Basic Multilingual Plane (Deseret small long I).
        {"\xf0\x90\x90\xa8X", Proper, "\xf0\x90\x90\x80x"},
    };
    for (const CaseRow& row : rows) {
        SCOPED_TRACE(testing::Message() << row.text << " " << row.letterCase);
        EXPECT_EQ(convertLetterCase(q(row.text), row.letterCase), q(row.expected));
    }
}

}  // namespace
