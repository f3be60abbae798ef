#include "core/io/ExportList.h"
#include "core/io/ImportFiles.h"
#include "core/io/RenameFileReader.h"
#include "core/list/FileList.h"
#include "support/TempTree.h"
#include "support/TestStrings.h"

#include <QDir>
#include <gtest/gtest.h>
#include <sys/stat.h>

using namespace tavrin;
using test::str;

namespace {

class ImportExport : public ::testing::Test {
protected:
    // Lists the files of the tree with the given new names ("" for none, "!" for a status).
    void listWith(const std::vector<std::pair<const char*, const char*>>& rows)
    {
        for (const auto& [name, newName] : rows) {
            FileSystemItem item = *FileSystemItem::initWithPath(tree.file(str(name)));
            if (str(newName) == QLatin1String("!"))
                item.setStatus(RenameStatus::NoChanges);
            else
                item.setObject(str(newName), QString::fromLatin1(itemkeys::NewFilename));
            list.append(item);
        }
    }
    // The text with "@" standing for the tree's root and "~" for a NUL character.
    QString rooted(const char* text) const
    {
        return str(text).replace(QLatin1Char('@'), tree.root()).replace(QLatin1Char('~'), QChar(u'\0'));
    }

    test::TempTree tree;
    FileList list;
};

struct ExportRow {
    const char* name;
    ExportColumns columns;
    std::vector<std::pair<const char*, const char*>> items;
    const char* expected;
};

TEST_F(ImportExport, ExportWritesTabsOnlyAfterText)
{
    const ExportRow rows[] = {
        {"new names only, two lines", {false, true, false, false, false}, {{"a", "A"}, {"b", "B"}}, "A\nB\n"},
        {"include-location folds the folder in", {true, true, true, true, true}, {{"a", "A"}},
         "Filename\tNew Filename\n@/a\t@/A\n"},
        {"empty new name leaves a trailing tab", {true, true, false, false, false}, {{"a", ""}}, "a\t\n"},
        {"empty first line gets no line feed", {false, true, false, false, false}, {{"a", ""}, {"b", "B"}}, "B\n"},
        {"empty name shifts the folder left", {false, true, true, false, false}, {{"a", ""}}, "@\n"},
        {"a status exports no name", {true, true, true, false, true}, {{"a", "!"}},
         "Filename\tNew Filename\tLocation\na\t\t@\n"},
        {"a colon shows as a slash", {true, true, false, false, false}, {{"x:y", "p:q"}}, "x/y\tp/q\n"},
    };
    for (const ExportRow& row : rows) {
        list.clear();
        listWith(row.items);
        EXPECT_EQ(QString::fromUtf8(exportListText(list, row.columns)), rooted(row.expected)) << row.name;
    }
}

TEST(ExportColumnsTest, RefusesNoColumnAndAFoldedAwayLocation)
{
    EXPECT_STREQ(exportRefusal({false, false, false, false, true}), "EXPORTNOCOLUMN");
    EXPECT_STREQ(exportRefusal({false, false, true, true, true}), "EXPORTFILESFAILED");
    EXPECT_EQ(exportRefusal({false, false, true, false, true}), nullptr);
    EXPECT_EQ(exportRefusal(ExportColumns{}), nullptr);
}

TEST_F(ImportExport, ExportReplacesAFileOnlyWhenAsked)
{
    const QString path = tree.file(str("export.txt"), "old");
    QString error;
    EXPECT_FALSE(writeExportFile(path, "new", false, error));
    EXPECT_FALSE(error.isEmpty());
    EXPECT_EQ(tree.read(str("export.txt")), "old");
    EXPECT_TRUE(writeExportFile(path, "new", true, error));
    EXPECT_EQ(tree.read(str("export.txt")), "new");
}

struct ParseRow {
    const char* name;
    const char* text;
    QStringList expected;  // "path -> new name", or the refusal's key
};

TEST_F(ImportExport, ReadsEveryUsableLineAndNothingOutsideItsFolder)
{
    tree.file(str("d/a.txt"));
    tree.file(str("d/b.txt"));
    tree.symlink(tree.path(str("d")), str("link"));
    const ParseRow rows[] = {
        {"header, empty new name", "Filename\tNew Filename\tLocation\na.txt\t\t@/d\n", {"@/d/a.txt -> a.txt"}},
        {"no header", "a.txt\tc/d.txt\t@/d\nb.txt\tB.txt\t@/link\n", {"@/d/a.txt -> c:d.txt", "@/d/b.txt -> B.txt"}},
        {"first line of two fields", "a.txt\tb\nb.txt\tc\t@/d\n", {"RENAMEFROMFILEMESSAGE"}},
        {"single line without line feed", "a.txt\tx\t@/d", {"RENAMEFROMFILEMESSAGE"}},
        {"CRLF keeps a carriage return in the folder", "a.txt\tx\t@/d\r\n", {"@/d\r/a.txt -> "}},
        {"missing item gets no new name", "z.txt\tx\t@/d\n", {"@/d/z.txt -> "}},
        {"dot-dot names and relative folders are skipped",
         "..\tx\t@/d\n.\tx\t@/d\na.txt\tx\td\nq\tx\t\n", {"RENAMEFROMFILEMESSAGE"}},
        {"NUL in the name or folder is skipped", "a.txt~\tx\t@/d\na.txt\tx\t@/d~/..\n", {"RENAMEFROMFILEMESSAGE"}},
        {"absolute new name stays one component", "a.txt\t/etc/passwd\t@/d/../d\n", {"@/d/a.txt -> :etc:passwd"}},
    };
    for (const ParseRow& row : rows) {
        const QString text = rooted(row.text);
        const RenameFileRead read = parseRenameList(text, 0);
        QStringList got;
        if (read.problemKey)
            got.append(str(read.problemKey));
        for (const QString& path : read.list.paths)
            got.append(path + QStringLiteral(" -> ") + read.list.records.value(path));
        QStringList expected;
        for (const QString& line : row.expected)
            expected.append(rooted(line.toUtf8().constData()));
        EXPECT_EQ(got, expected) << row.name;
    }
}

TEST_F(ImportExport, RefusesFilesThatAreNotReadableUtf8Text)
{
    const QString invalid = tree.file(str("bad.txt"), QByteArray("a.txt\t\xff\t/x\nb\tc\td\n"));
    EXPECT_STREQ(readRenameFile(invalid, 0).problemKey, "UNABLETOOPENFILE");
    EXPECT_STREQ(readRenameFile(tree.folder(str("folder")), 0).problemKey, "UNABLETOOPENFILE");
    const QString fifo = tree.path(str("fifo"));
    ASSERT_EQ(::mkfifo(QFile::encodeName(fifo).constData(), 0600), 0);
    EXPECT_STREQ(readRenameFile(fifo, 0).problemKey, "UNABLETOOPENFILE");
}

struct ImportRow {
    const char* name;
    int importType;
    const char* newName;
    const char* shown;  // "" when the record does not join the list
};

TEST_F(ImportExport, ImportedRecordsCarryTheirNameOrStatus)
{
    tree.file(str("d/a.txt"));
    tree.file(str("d/taken.txt"));
    tree.folder(str("d/sub"));
    const ImportRow rows[] = {
        {"a new name", 0, "b.txt", "b.txt"},
        {"the same name", 0, "a.txt", "No Changes"},
        {"only the case changes", 0, "A.TXT", "A.TXT"},
        {"a taken name", 0, "taken.txt", "File Already Exists"},
        {"not one path component", 0, "..", "No Changes"},
        {"files dropped from a folders import", 1, "b.txt", ""},
    };
    for (const ImportRow& row : rows) {
        list.clear();
        const QString path = tree.path(str("d/a.txt"));
        const FileRenameItem renameList({path, path}, {{path, str(row.newName)}}, row.importType);
        const std::atomic_bool cancel = false;
        const ImportResult result = importFiles(list, renameList, cancel);
        EXPECT_EQ(result.added, str(row.shown).isEmpty() ? 0 : 1) << row.name;
        if (list.size() == 1) {
            EXPECT_EQ(list.at(0).newFilename(), str(row.shown)) << row.name;
        }
    }
}

TEST_F(ImportExport, MissingItemsTakeTheKindOfTheList)
{
    const QString gone = tree.path(str("gone"));
    const std::atomic_bool cancel = false;
    for (const int importType : {0, 1}) {
        list.clear();
        importFiles(list, FileRenameItem({gone}, {{gone, QString()}}, importType), cancel);
        ASSERT_EQ(list.size(), 1);
        EXPECT_EQ(list.at(0).isFolder(), importType == 1);
        EXPECT_EQ(list.at(0).newFilename(), str(importType == 1 ? "Folder Not Found" : "File Not Found"));
    }
}

}  // namespace
