#include "CliRunner.h"

#include <QJsonArray>
#include <gtest/gtest.h>

using namespace tavrin;
using namespace Qt::StringLiterals;
using test::args;
using test::CliRun;
using test::parseJson;

namespace {

// The general tab's upper-case conversion, over the test's folder "d".
class RenameCommandTest : public test::CliTest {
protected:
    CliRun rename(const char* command, const QStringList& options = args("--tab general --set generalFileNameCase=1"))
    {
        return run(QStringList{QString::fromUtf8(command), u"--recursive"_s} + options + QStringList{tree.path(u"d"_s)});
    }
};

TEST_F(RenameCommandTest, PreviewShowsNewNamesAndStatusesWithoutRenaming)
{
    tree.file(u"d/alpha.txt"_s);
    tree.file(u"d/BETA.txt"_s);
    const CliRun preview = rename("preview");
    EXPECT_EQ(preview.exitCode, 0) << preview.err.toStdString();
    EXPECT_EQ(preview.out, u"alpha.txt\tALPHA.txt\nBETA.txt\tNo Changes\nNew names: 1, No Changes: 1\n"_s);
    EXPECT_TRUE(tree.exists(u"d/alpha.txt"_s));
    EXPECT_TRUE(logs().isEmpty());
}

TEST_F(RenameCommandTest, ApplyRenamesLogsAndReportsInJson)
{
    tree.file(u"d/alpha.txt"_s, "a");
    tree.file(u"d/re:port.txt"_s, "r");
    const CliRun apply = rename("apply", args("--yes --json --tab general --set generalFileNameCase=1"));
    ASSERT_EQ(apply.exitCode, 0) << apply.err.toStdString();
    const QJsonObject root = parseJson(apply);
    EXPECT_EQ(root.value("renamed"_L1).toInt(), 2);
    const QJsonArray items = root.value("items"_L1).toArray();
    ASSERT_EQ(items.size(), 2);
    EXPECT_EQ(items[0].toObject().value("newFilename"_L1).toString(), u"Renaming (OK)"_s);
    EXPECT_EQ(items[1].toObject().value("fileWithPath"_L1).toString(), tree.path(u"d/RE:PORT.txt"_s));
    EXPECT_EQ(tree.read(u"d/ALPHA.txt"_s), QByteArray("a"));
    EXPECT_EQ(tree.read(u"d/RE:PORT.txt"_s), QByteArray("r"));

    ASSERT_EQ(logs().size(), 1);
    EXPECT_TRUE(logs().first().endsWith(u"-2.xml"_s));
    EXPECT_EQ(root.value("log"_L1).toString(), QDir(logFolder()).filePath(logs().first()));
    // The log shows the colon of the stored name as the slash the user sees.
    const QByteArray log = tree.read(u"data/Palisade Soft/Tavrin3/Logs/"_s + logs().first());
    EXPECT_TRUE(log.contains("srcfilename=\"re/port.txt\" tarfilename=\"RE/PORT.txt\"")) << log.constData();
}

TEST_F(RenameCommandTest, ApplyNeedsYesOrALogItCanWrite)
{
    tree.file(u"d/alpha.txt"_s);
    // The preferred log folder lies under a file: no log can be made there.
    tree.file(u"data/Palisade Soft/Tavrin3/preferences.plist"_s,
              "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\"><dict><key>defaultLogFolderPath</key>"
              "<string>" + tree.file(u"blocker"_s).toUtf8() + "/Logs</string></dict></plist>\n");
    const CliRun unconfirmed = rename("apply");
    EXPECT_EQ(unconfirmed.exitCode, 2);
    EXPECT_TRUE(unconfirmed.out.isEmpty());
    EXPECT_TRUE(unconfirmed.err.contains(u"--yes"_s));

    const QStringList options = args("--yes --tab general --set generalFileNameCase=1");
    const CliRun noLog = rename("apply", options);
    EXPECT_EQ(noLog.exitCode, 1) << noLog.err.toStdString();
    EXPECT_TRUE(noLog.err.contains(u"--continue-without-log"_s));
    EXPECT_TRUE(tree.exists(u"d/alpha.txt"_s));

    const CliRun goOn = rename("apply", options + args("--continue-without-log"));
    EXPECT_EQ(goOn.exitCode, 0) << goOn.err.toStdString();
    EXPECT_TRUE(tree.exists(u"d/ALPHA.txt"_s));
}

TEST_F(RenameCommandTest, FolderModeRenamesNestedFoldersInOneBatch)
{
    tree.file(u"d/one/two/three/file.txt"_s, "f");
    const CliRun apply = rename("apply", args("--folders --yes --json --tab general --set generalFileNameCase=1"));
    ASSERT_EQ(apply.exitCode, 0) << apply.err.toStdString();
    EXPECT_EQ(parseJson(apply).value("renamed"_L1).toInt(), 3);
    EXPECT_EQ(tree.read(u"d/ONE/TWO/THREE/file.txt"_s), QByteArray("f"));
}

TEST_F(RenameCommandTest, InvalidOptionsAreRefusedWithTheirMessage)
{
    tree.file(u"d/alpha.txt"_s);
    const struct {
        const char* options;
        const char* expected;
    } rows[] = {
        {"--tab general --set generalOptionIndex=8", "Missing Input"},
        {"--tab twelve", "unknown tab"},
        {"--set noSuchOption=1", "noSuchOption"},
        {"--set generalOptionIndex=40", "generalOptionIndex"},
        {"--set novalue", "KEY=VALUE"},
        {"--tab replaceremove", "Nothing to Find"},
    };
    for (const auto& row : rows) {
        const CliRun preview = rename("preview", args(row.options));
        EXPECT_EQ(preview.exitCode, 2) << row.options;
        EXPECT_TRUE(preview.err.contains(QString::fromUtf8(row.expected))) << preview.err.toStdString();
    }
}

TEST_F(RenameCommandTest, ATakenNameIsReportedAndLeftAlone)
{
    tree.file(u"d/a.txt"_s, "mine");
    tree.file(u"d/a.md"_s, "theirs");
    const CliRun apply
        = rename("apply", args("--yes --tab general --set generalOptionIndex=3 --set generalChangeExtension=md"));
    EXPECT_EQ(apply.exitCode, 0) << apply.out.toStdString();
    EXPECT_TRUE(apply.out.contains(u"a.txt\tFile Already Exists"_s));
    EXPECT_EQ(tree.read(u"d/a.md"_s), QByteArray("theirs"));
}

// Scripts read "renamed" and "log" after every apply, also when nothing could be applied:
// each of the two files proposes the other's name, so both are refused.
TEST_F(RenameCommandTest, ApplyJsonCarriesEveryKeyWhenNothingWasApplied)
{
    tree.file(u"d/a-b.txt"_s, "1");
    tree.file(u"d/b-a.txt"_s, "2");
    const CliRun apply
        = rename("apply", args("--yes --json --tab general --set generalOptionIndex=6 --set generalSwapSeperator=-"));
    const QJsonObject root = parseJson(apply);
    ASSERT_TRUE(root.contains("renamed"_L1) && root.contains("log"_L1)) << apply.out.toStdString();
    EXPECT_EQ(root.value("renamed"_L1).toInt(-1), 0);
    EXPECT_TRUE(root.value("log"_L1).isNull());
    EXPECT_TRUE(logs().isEmpty());
    EXPECT_FALSE(parseJson(rename("preview", args("--json"))).contains("renamed"_L1)) << "preview keeps its keys";
}

TEST_F(RenameCommandTest, PreviewJsonMarksProposalsThatCollide)
{
    for (const char* name : {"d/a-1.txt", "d/a-2.txt", "d/b.txt"})
        tree.file(QString::fromUtf8(name));
    const CliRun preview = rename(
        "preview", args("--json --tab general --set generalOptionIndex=8 --set generalRemoveAfterString=-"));
    const QJsonObject root = parseJson(preview);
    EXPECT_EQ(root.value("conflicts"_L1).toInt(-1), 2) << preview.out.toStdString();
    QStringList marked;
    for (const QJsonValue& item : root.value("items"_L1).toArray()) {
        if (item.toObject().value("conflict"_L1).toBool())
            marked << item.toObject().value("filenameWithExtension"_L1).toString();
    }
    EXPECT_EQ(marked, (QStringList{u"a-1.txt"_s, u"a-2.txt"_s}));
    EXPECT_TRUE(preview.err.contains(u"Conflicts: 2"_s)) << preview.err.toStdString();
}

TEST_F(RenameCommandTest, PreviewReplacesByTheOptionsOfTheReplaceRemoveTab)
{
    tree.file(u"d/a-b-c.txt"_s);
    tree.file(u"d/plain.txt"_s);
    const QStringList replaceAll = args(
        "--tab replaceremove --set replaceRemoveThis=- --set replaceRemoveWith=_ --set isReplaceRemoveAllOccurrence=1");
    const CliRun preview = rename("preview", replaceAll);
    EXPECT_EQ(preview.exitCode, 0) << preview.err.toStdString();
    EXPECT_EQ(preview.out, u"a-b-c.txt\ta_b_c.txt\nplain.txt\tNo Changes\nNew names: 1, No Changes: 1\n"_s);

    // From the end, the last occurrence is the first one found.
    const CliRun fromEnd = rename(
        "preview", replaceAll + args("--set isReplaceRemoveAllOccurrence=0 --set replaceRemovePositionDirection=1"));
    EXPECT_TRUE(fromEnd.out.startsWith(u"a-b-c.txt\ta-b_c.txt\n"_s)) << fromEnd.out.toStdString();
}

}  // namespace
