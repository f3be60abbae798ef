#include "CliRunner.h"

#include <QDirIterator>
#include <QJsonArray>
#include <gtest/gtest.h>

using namespace tavrin;
using namespace Qt::StringLiterals;
using test::args;
using test::CliRun;
using test::parseJson;

namespace {

class ExportImportCommandTest : public test::CliTest {
protected:
    // d/a.txt, d/b.txt, d/c.txt and a folder beside d that no list may touch.
    void SetUp() override
    {
        for (const QString& name : {u"d/a.txt"_s, u"d/b.txt"_s, u"d/c.txt"_s, u"outside/keep.txt"_s})
            tree.file(name, name.toUtf8());
    }
    // The text with "@" standing for the folder d.
    QString inD(const char* text) const { return QString::fromUtf8(text).replace(u'@', tree.path(u"d"_s)); }
    QString listFile(const QByteArray& text) { return tree.file(u"list.txt"_s, text); }
    QStringList allFiles() const
    {
        QStringList files;
        QDirIterator it(tree.root(), QDir::Files | QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
        while (it.hasNext())
            files << QDir(tree.root()).relativeFilePath(it.next());
        files.removeIf([](const QString& path) { return path.startsWith(u"data"_s); });
        files.sort();
        return files;
    }
};

TEST_F(ExportImportCommandTest, RoundTripExportEditImportApplyUndo)
{
    const QString list = tree.path(u"list.txt"_s);
    const CliRun exported = run(args("export --upper -r --output") << list << tree.path(u"d"_s));
    ASSERT_EQ(exported.exitCode, 0) << exported.err.toStdString();
    QByteArray text = tree.read(u"list.txt"_s);
    ASSERT_EQ(text, inD("Filename\tNew Filename\tLocation\na.txt\tA.txt\t@\nb.txt\tB.txt\t@\nc.txt\tC.txt\t@\n").toUtf8());
    text.replace("\tA.txt\t", "\tfirst.txt\t").replace("\tC.txt\t", "\tthird/part.txt\t");
    listFile(text);

    const QJsonArray items = parseJson(run(args("import --json") << list)).value("items"_L1).toArray();
    QStringList proposed;
    for (const QJsonValue& item : items)
        proposed << item.toObject().value("newFilename"_L1).toString();
    EXPECT_EQ(proposed, QStringList({u"first.txt"_s, u"B.txt"_s, u"third:part.txt"_s}));

    const CliRun applied = run(args("import --apply --yes") << list);
    ASSERT_EQ(applied.exitCode, 0) << applied.err.toStdString();
    EXPECT_EQ(tree.read(u"d/third:part.txt"_s), "d/c.txt");
    EXPECT_EQ(allFiles(), QStringList({u"d"_s, u"d/B.txt"_s, u"d/first.txt"_s, u"d/third:part.txt"_s, u"list.txt"_s,
                                       u"outside"_s, u"outside/keep.txt"_s}));
    ASSERT_EQ(run(args("undo --yes")).exitCode, 0);
    EXPECT_EQ(tree.read(u"d/a.txt"_s), "d/a.txt");
    EXPECT_EQ(tree.read(u"d/c.txt"_s), "d/c.txt");

    // Loaded back unchanged, the exported list changes nothing.
    ASSERT_EQ(run(args("export -r --tab fromfile --output") << tree.path(u"again.txt"_s) << tree.path(u"d"_s)).exitCode, 0);
    EXPECT_TRUE(run(args("import") << tree.path(u"again.txt"_s)).out.endsWith(u"New names: 0, No Changes: 3\n"_s));
}

struct ExportRow {
    const char* name;
    const char* options;
    int exitCode;
    const char* written;  // null when nothing may be written
};

TEST_F(ExportImportCommandTest, ExportFlagsChooseTheColumns)
{
    const ExportRow rows[] = {
        {"new names only", "--columns new --no-header --set generalFileNameCase=1 --tab general", 0, "A.txt\nB.txt\nC.txt\n"},
        {"include-location", "--columns name,location --include-location --no-header", 0, "@/a.txt\n@/b.txt\n@/c.txt\n"},
        {"location folded away", "--columns location --include-location", 2, nullptr},
        {"unknown column", "--columns name,size", 2, nullptr},
        {"no column", "--columns ,", 2, nullptr},
    };
    for (const ExportRow& row : rows) {
        const QString output = tree.path(QString::fromUtf8(row.name));
        const CliRun exported = run(QStringList{u"export"_s, u"-r"_s, u"--output"_s, output}
                                    + args(row.options) << tree.path(u"d"_s));
        EXPECT_EQ(exported.exitCode, row.exitCode) << row.name << exported.err.toStdString();
        EXPECT_EQ(QFile::exists(output), row.written != nullptr) << row.name;
        if (row.written) {
            EXPECT_EQ(tree.read(QString::fromUtf8(row.name)), inD(row.written).toUtf8()) << row.name;
        }
    }
    EXPECT_EQ(run(args("export -r") << tree.path(u"d"_s)).exitCode, 2);
    // An existing file is never replaced.
    EXPECT_EQ(run(args("export -r --output") << tree.path(u"d/a.txt"_s) << tree.path(u"d"_s)).exitCode, 1);
    EXPECT_EQ(tree.read(u"d/a.txt"_s), "d/a.txt");
}

struct ImportRow {
    const char* name;
    const char* list;
    const char* options;
    int exitCode;
    const char* report;  // the end of the standard output, or of the error output on failure
};

TEST_F(ExportImportCommandTest, ImportReportsWhatEachLineDoes)
{
    tree.folder(u"d/sub"_s);
    const ImportRow rows[] = {
        {"first line of two fields", "a.txt\tx\na.txt\tx\t@\n", "", 1, "no usable line. Each line needs three fields "
                                                                          "separated by tabs: the current name, the new "
                                                                          "name and the folder.\n"},
        {"single line without line feed", "a.txt\tx\t@", "", 1, "the folder.\n"},
        {"CRLF finds nothing", "a.txt\tx\t@\r\nb.txt\ty\t@\r\n", "", 0, "New names: 0, File Not Found: 2\n"},
        {"case-only rename and a taken name", "a.txt\tA.TXT\t@\nb.txt\tc.txt\t@\n", "", 0,
         "a.txt\tA.TXT\nb.txt\tFile Already Exists\nNew names: 1, File Already Exists: 1\n"},
        {"folders import drops files", "a.txt\tx\t@\nsub\tSUB\t@\n", "--folders", 0, "sub\tSUB\nNew names: 1\n"},
        {"invalid UTF-8", "a.txt\t\xff\t@\n", "", 1, "It must be a readable UTF-8 text file.\n"},
    };
    for (const ImportRow& row : rows) {
        const QString list = listFile(QByteArray(row.list).replace('@', tree.path(u"d"_s).toUtf8()));
        const CliRun imported = run(QStringList{u"import"_s, list} + args(row.options));
        EXPECT_EQ(imported.exitCode, row.exitCode) << row.name << imported.err.toStdString();
        EXPECT_TRUE((row.exitCode == 0 ? imported.out : imported.err).endsWith(QString::fromUtf8(row.report)))
            << row.name << "\n" << imported.out.toStdString() << imported.err.toStdString();
    }
}

TEST_F(ExportImportCommandTest, HostileListsMoveNothingOutsideTheirFolders)
{
    QByteArray hostile("..\tx\t@\n"
                       "../outside\tstolen\t@\n"
                       "a.txt\t/tmp/escaped\t@\n"
                       "b.txt\t..\t@\n"
                       "c.txt\t../outside/c.txt\t@/../d\n"
                       "keep.txt\tk#\t@/../outside\n"
                       "b.txt\tlong\t@\n");
    hostile.replace('#', QByteArray(1, '\0')).replace("long", QByteArray(100000, 'x'));
    listFile(hostile.replace('@', tree.path(u"d"_s).toUtf8()));
    const CliRun applied = run(args("import --apply --yes") << tree.path(u"list.txt"_s));
    EXPECT_EQ(applied.exitCode, 0) << applied.err.toStdString();
    EXPECT_EQ(allFiles(), QStringList({u"d"_s, u"d/..:outside:c.txt"_s, u"d/:tmp:escaped"_s, u"d/b.txt"_s,
                                       u"list.txt"_s, u"outside"_s, u"outside/keep.txt"_s}));
    EXPECT_FALSE(QFile::exists(u"/tmp/escaped"_s));
}

}  // namespace
