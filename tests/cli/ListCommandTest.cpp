#include "cli/CommonOptions.h"
#include "core/text/LocalizedStrings.h"
#include "support/TempTree.h"
#include "support/TestStrings.h"
#include "CliRunner.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <gtest/gtest.h>

using namespace tavrin;
using tavrin::test::CliRun;
using tavrin::test::parseJson;
using tavrin::test::runCli;

namespace {

using test::str;
using test::strs;

class ListCommand : public ::testing::Test {
protected:
    void SetUp() override
    {
        for (const char* file : { "docs/b.txt", "docs/A10.txt", "docs/a9.txt", "docs/.hidden",
                 "docs/.git/config", "docs/sub/c:d.txt", "docs/sub/deeper/e.md" })
            tree.file(str(file));
    }

    QString at(const char* relative) const { return tree.path(str(relative)); }

    // The items' paths relative to the tree, in output order.
    QStringList itemRows(const QJsonObject& json) const
    {
        const QDir root(tree.root());
        QStringList rows;
        for (const QJsonValue& item : json.value(str("items")).toArray())
            rows.append(root.relativeFilePath(item.toObject().value(str("fileWithPath")).toString()));
        return rows;
    }

    QStringList listJson(QStringList arguments)
    {
        arguments.prepend(str("--json"));
        arguments.prepend(str("list"));
        const CliRun run = runCli(arguments);
        EXPECT_EQ(run.exitCode, 0) << run.err.toStdString();
        return itemRows(parseJson(run));
    }

    test::TempTree tree;
};

TEST_F(ListCommand, JsonHoldsTheStoredValuesOfEveryItemInListOrder)
{
    const CliRun run = runCli({ str("list"), str("--json"), str("--recursive"), at("docs") });
    ASSERT_EQ(run.exitCode, 0) << run.err.toStdString();
    const QJsonObject json = parseJson(run);
    EXPECT_EQ(itemRows(json),
        strs({ "docs/a9.txt", "docs/A10.txt", "docs/b.txt", "docs/sub/c:d.txt", "docs/sub/deeper/e.md" }));
    EXPECT_EQ(json.value(str("skipped")).toArray(), QJsonArray());

    const QJsonObject item = json.value(str("items")).toArray().at(3).toObject();
    EXPECT_EQ(item.value(str("fileWithPath")).toString(), at("docs/sub/c:d.txt"));
    EXPECT_EQ(item.value(str("filenameWithExtension")).toString(), str("c:d.txt"));
    EXPECT_EQ(item.value(str("filename")).toString(), str("c:d"));
    EXPECT_EQ(item.value(str("fileExtension")).toString(), str("txt"));
    EXPECT_EQ(item.value(str("fileLocation")).toString(), at("docs/sub"));
    EXPECT_EQ(item.value(str("fileType")).toString(), str("FILE"));
    ASSERT_TRUE(item.contains(str("newFilename")));
    EXPECT_EQ(item.value(str("newFilename")).toString(), QString());
}

TEST_F(ListCommand, FoldersAreOnlyEnteredWithRecursive)
{
    EXPECT_EQ(listJson({ at("docs") }), QStringList());
    EXPECT_EQ(listJson({ at("docs/sub"), at("docs/b.txt") }), strs({ "docs/b.txt" }));
    EXPECT_EQ(listJson({ str("--recursive"), at("docs/sub"), at("docs/b.txt") }),
        strs({ "docs/sub/c:d.txt", "docs/sub/deeper/e.md", "docs/b.txt" }));
}

TEST_F(ListCommand, HiddenItemsAndDuplicatesAreLeftOut)
{
    EXPECT_EQ(listJson({ str("--recursive"), at("docs/.hidden"), at("docs/.git"), at("docs/sub"),
                  at("docs/sub/c:d.txt"), at("docs/sub/") }),
        strs({ "docs/sub/c:d.txt", "docs/sub/deeper/e.md" }));
}

TEST_F(ListCommand, FolderModeListsFoldersAndWithRecursiveNotTheChosenOnes)
{
    EXPECT_EQ(listJson({ str("--folders"), at("docs/sub"), at("docs/b.txt") }), strs({ "docs/sub" }));
    EXPECT_EQ(listJson({ str("--folders"), str("--recursive"), at("docs") }),
        strs({ "docs/sub", "docs/sub/deeper" }));
}

TEST_F(ListCommand, TheFirstSortKeyIsThePrimaryOne)
{
    EXPECT_EQ(listJson({ str("--recursive"), str("--sort"), str("fileExtension"), str("--sort=fileLocation"),
                  at("docs/sub"), at("docs/b.txt") }),
        strs({ "docs/sub/deeper/e.md", "docs/b.txt", "docs/sub/c:d.txt" }));
    EXPECT_EQ(listJson({ str("--recursive"), str("--sort"), str("fileLocation"), str("--sort"),
                  str("fileExtension"), at("docs/sub"), at("docs/b.txt") }),
        strs({ "docs/b.txt", "docs/sub/c:d.txt", "docs/sub/deeper/e.md" }));
}

TEST_F(ListCommand, NamesSortNumericallyWithoutCaseAlsoInTheCLocale)
{
    tree.file(str("n/file11"));
    tree.file(str("n/File2"));
    tree.file(str("n/file10"));
    tree.file(str("n/FILE1"));
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(str("LC_ALL"), str("C"));
    environment.insert(str("LANG"), str("C"));
    const QStringList arguments = { str("list"), str("--json"), str("--sort"), str("filename"),
        at("n/file11"), at("n/file10"), at("n/File2"), at("n/FILE1") };
    const CliRun run = runCli(arguments, QString(), environment);
    ASSERT_EQ(run.exitCode, 0) << run.err.toStdString();
    EXPECT_EQ(itemRows(parseJson(run)), strs({ "n/FILE1", "n/File2", "n/file10", "n/file11" }));
}

TEST_F(ListCommand, NamesThatAreNotUtf8AreReportedAsSkipped)
{
    tree.rawFile(str("raw"), QByteArray("caf\xe9.txt"));
    tree.file(str("raw/ok.txt"));
    const CliRun json = runCli({ str("list"), str("--json"), str("--recursive"), at("raw") });
    ASSERT_EQ(json.exitCode, 0) << json.err.toStdString();
    const QJsonObject object = parseJson(json);
    EXPECT_EQ(itemRows(object), strs({ "raw/ok.txt" }));
    EXPECT_EQ(object.value(str("skipped")).toArray(),
        QJsonArray { at("raw/caf") + QChar(QChar::ReplacementCharacter) + str(".txt") });

    const CliRun text = runCli({ str("list"), str("--recursive"), at("raw") });
    EXPECT_EQ(text.exitCode, 0);
    EXPECT_TRUE(text.err.contains(at("raw/caf"))) << text.err.toStdString();
}

TEST_F(ListCommand, TextShowsTheDisplayNameAndLocationThenTheCount)
{
    const CliRun run = runCli({ str("list"), at("docs/sub/c:d.txt"), at("docs/b.txt") });
    ASSERT_EQ(run.exitCode, 0) << run.err.toStdString();
    const QString expected = str("c/d.txt\t") + at("docs/sub") + str("\nb.txt\t") + at("docs") + str("\n")
        + localized("CLIFILESLISTED").arg(2) + str("\n");
    EXPECT_EQ(run.out, expected);

    const CliRun folders = runCli({ str("list"), str("--folders"), at("docs/sub") });
    EXPECT_TRUE(folders.out.endsWith(localized("CLIFOLDERSLISTED").arg(1) + str("\n")))
        << folders.out.toStdString();
}

TEST_F(ListCommand, RelativePathsAndPathsAfterTheEndOfOptions)
{
    tree.file(str("docs/-dash.txt"));
    const CliRun run
        = runCli({ str("list"), str("--json"), str("--"), str("-dash.txt"), str("b.txt") }, at("docs"));
    ASSERT_EQ(run.exitCode, 0) << run.err.toStdString();
    EXPECT_EQ(itemRows(parseJson(run)), strs({ "docs/-dash.txt", "docs/b.txt" }));
}

TEST_F(ListCommand, AMissingPathIsReportedAndTheRestListed)
{
    const CliRun run = runCli({ str("list"), str("--json"), at("docs/b.txt"), at("docs/gone.txt") });
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(itemRows(parseJson(run)), strs({ "docs/b.txt" }));
    EXPECT_TRUE(run.err.contains(localized("CLIPATHNOTFOUND").arg(at("docs/gone.txt"))))
        << run.err.toStdString();
}

struct UsageRow {
    const char* name;
    QStringList arguments;
    QString message; // what stderr must hold
};

QString unknownSortKey(const QString& key)
{
    return localized("CLIUNKNOWNSORTKEY").arg(key, cli::sortKeyNames().join(str(", ")));
}

TEST(ListCommandUsage, BadUsageExitsWithTwoAndSaysWhy)
{
    const UsageRow rows[] = {
        { "no command", {}, str("tavrin-cli COMMAND") },
        { "unknown command", strs({ "lsit", "x" }), localized("CLIUNKNOWNCOMMAND").arg(str("lsit")) },
        { "no path", strs({ "list", "--recursive" }), localized("CLINOPATHS") },
        { "unknown option", strs({ "list", "--recurse", "x" }),
            localized("CLIUNKNOWNOPTION").arg(str("--recurse")) },
        { "unknown sort key", strs({ "list", "--sort", "size", "x" }), unknownSortKey(str("size")) },
        { "sort key in the wrong case", strs({ "list", "--sort=FILENAME", "x" }),
            unknownSortKey(str("FILENAME")) },
        { "sort without a key", strs({ "list", "x", "--sort" }),
            localized("CLIMISSINGVALUE").arg(str("--sort")) },
        { "flag with a value", strs({ "list", "--json=yes", "x" }),
            localized("CLIUNEXPECTEDVALUE").arg(str("--json")) },
    };
    for (const UsageRow& row : rows) {
        const CliRun run = runCli(row.arguments);
        EXPECT_EQ(run.exitCode, 2) << row.name;
        EXPECT_TRUE(run.out.isEmpty()) << row.name;
        EXPECT_TRUE(run.err.contains(row.message)) << row.name << ": " << run.err.toStdString();
    }
}

TEST(ListCommandUsage, HelpPrintsTheUsageAndSucceeds)
{
    for (const QStringList& arguments :
        { strs({ "--help" }), strs({ "list", "--help" }), strs({ "list", "x", "-h" }) }) {
        const CliRun run = runCli(arguments);
        EXPECT_EQ(run.exitCode, 0) << arguments.join(' ').toStdString();
        EXPECT_TRUE(run.out.contains(str("tavrin-cli"))) << arguments.join(' ').toStdString();
        EXPECT_TRUE(run.err.isEmpty()) << arguments.join(' ').toStdString();
    }
    EXPECT_EQ(runCli(strs({ "list", "--help" })).out, localized("CLILISTUSAGE") + str("\n"));
}

} // namespace
