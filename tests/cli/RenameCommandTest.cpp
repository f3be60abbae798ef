#include "support/TempTree.h"
#include "CliRunner.h"

#include <QDir>
#include <QJsonArray>
#include <gtest/gtest.h>

using namespace tavrin;
using test::CliRun;
using test::parseJson;
using test::runCli;

namespace {

const QStringList kUpperCase = {QStringLiteral("--tab"), QStringLiteral("general"), QStringLiteral("--set"),
                                QStringLiteral("generalOptionIndex=0"), QStringLiteral("--set"),
                                QStringLiteral("generalFileNameCase=1")};

// A folder of files and a support folder of its own, so logs land where the test looks.
class RenameCommandTest : public ::testing::Test {
protected:
    RenameCommandTest()
    {
        environment.insert(QStringLiteral("XDG_DATA_HOME"), tree.path(QStringLiteral("data")));
        environment.insert(QStringLiteral("LANGUAGE"), QStringLiteral("en"));
    }

    CliRun run(const QString& command, const QStringList& options, const QStringList& paths = {})
    {
        QStringList arguments{command};
        arguments << options;
        arguments << (paths.isEmpty() ? QStringList{tree.path(QStringLiteral("d"))} : paths);
        return runCli(arguments, QString(), environment);
    }

    QString logFolder() const { return tree.path(QStringLiteral("data/Palisade Soft/Tavrin3/Logs")); }
    QStringList logs() const { return QDir(logFolder()).entryList(QDir::Files); }

    test::TempTree tree;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
};

TEST_F(RenameCommandTest, PreviewShowsNewNamesAndStatusesWithoutRenaming)
{
    tree.file(QStringLiteral("d/alpha.txt"));
    tree.file(QStringLiteral("d/BETA.txt"));
    const CliRun preview = run(QStringLiteral("preview"), QStringList{QStringLiteral("--recursive")} + kUpperCase);

    EXPECT_EQ(preview.exitCode, 0) << preview.err.toStdString();
    EXPECT_EQ(preview.out, QStringLiteral("alpha.txt\tALPHA.txt\nBETA.txt\tNo Changes\nNew names: 1, No Changes: 1\n"));
    EXPECT_TRUE(tree.exists(QStringLiteral("d/alpha.txt")));
    EXPECT_TRUE(logs().isEmpty());
}

TEST_F(RenameCommandTest, ApplyRenamesLogsAndReportsInJson)
{
    tree.file(QStringLiteral("d/alpha.txt"), "a");
    tree.file(QStringLiteral("d/re:port.txt"), "r");
    const CliRun apply = run(QStringLiteral("apply"),
                             QStringList{QStringLiteral("--recursive"), QStringLiteral("--yes"),
                                         QStringLiteral("--json")}
                                 + kUpperCase);

    ASSERT_EQ(apply.exitCode, 0) << apply.err.toStdString();
    const QJsonObject root = parseJson(apply);
    EXPECT_EQ(root.value(QStringLiteral("renamed")).toInt(), 2);
    const QJsonArray items = root.value(QStringLiteral("items")).toArray();
    ASSERT_EQ(items.size(), 2);
    EXPECT_EQ(items[0].toObject().value(QStringLiteral("newFilename")).toString(), QStringLiteral("Renaming (OK)"));
    EXPECT_EQ(items[1].toObject().value(QStringLiteral("fileWithPath")).toString(),
              tree.path(QStringLiteral("d/RE:PORT.txt")));
    EXPECT_EQ(tree.read(QStringLiteral("d/ALPHA.txt")), QByteArray("a"));
    EXPECT_EQ(tree.read(QStringLiteral("d/RE:PORT.txt")), QByteArray("r"));

    ASSERT_EQ(logs().size(), 1);
    EXPECT_TRUE(logs().first().endsWith(QStringLiteral("-2.xml")));
    EXPECT_EQ(root.value(QStringLiteral("log")).toString(), QDir(logFolder()).filePath(logs().first()));
    // The log shows the colon of the stored name as the slash the user sees.
    const QByteArray log = tree.read(QStringLiteral("data/Palisade Soft/Tavrin3/Logs/") + logs().first());
    EXPECT_TRUE(log.contains("srcfilename=\"re/port.txt\" tarfilename=\"RE/PORT.txt\"")) << log.constData();
}

TEST_F(RenameCommandTest, ApplyWithoutATerminalNeedsYes)
{
    tree.file(QStringLiteral("d/alpha.txt"));
    const CliRun apply = run(QStringLiteral("apply"), QStringList{QStringLiteral("--recursive")} + kUpperCase);
    EXPECT_EQ(apply.exitCode, 2);
    EXPECT_TRUE(apply.out.isEmpty());
    EXPECT_TRUE(apply.err.contains(QStringLiteral("--yes")));
    EXPECT_TRUE(tree.exists(QStringLiteral("d/alpha.txt")));
}

TEST_F(RenameCommandTest, FolderModeRenamesNestedFoldersInOneBatch)
{
    tree.file(QStringLiteral("d/one/two/three/file.txt"), "f");
    const CliRun apply = run(QStringLiteral("apply"),
                             QStringList{QStringLiteral("--folders"), QStringLiteral("--recursive"),
                                         QStringLiteral("--yes"), QStringLiteral("--json")}
                                 + kUpperCase);
    ASSERT_EQ(apply.exitCode, 0) << apply.err.toStdString();
    EXPECT_EQ(parseJson(apply).value(QStringLiteral("renamed")).toInt(), 3);
    EXPECT_EQ(tree.read(QStringLiteral("d/ONE/TWO/THREE/file.txt")), QByteArray("f"));
}

TEST_F(RenameCommandTest, ALogThatCannotBeWrittenStopsTheBatchUnlessToldToGoOn)
{
    tree.file(QStringLiteral("d/alpha.txt"));
    // A file where the log folder belongs: the support folder cannot hold logs.
    tree.file(QStringLiteral("data/Palisade Soft/Tavrin3/Logs"));
    const QStringList options = QStringList{QStringLiteral("--recursive"), QStringLiteral("--yes")} + kUpperCase;

    const CliRun refused = run(QStringLiteral("apply"), options);
    EXPECT_NE(refused.exitCode, 0);
    EXPECT_TRUE(tree.exists(QStringLiteral("d/alpha.txt")));

    environment.insert(QStringLiteral("XDG_DATA_HOME"), tree.folder(QStringLiteral("data2")));
    tree.file(QStringLiteral("data2/Palisade Soft/Tavrin3/preferences.plist"),
              "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
              "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n<plist version=\"1.0\"><dict>"
              "<key>defaultLogFolderPath</key><string>"
                  + tree.file(QStringLiteral("blocker")).toUtf8()
                  + "/Logs</string></dict></plist>\n");
    const CliRun noLog = run(QStringLiteral("apply"), options);
    EXPECT_EQ(noLog.exitCode, 1) << noLog.err.toStdString();
    EXPECT_TRUE(tree.exists(QStringLiteral("d/alpha.txt")));
    EXPECT_TRUE(noLog.err.contains(QStringLiteral("--continue-without-log")));

    const CliRun goOn = run(QStringLiteral("apply"), options + QStringList{QStringLiteral("--continue-without-log")});
    EXPECT_EQ(goOn.exitCode, 0) << goOn.err.toStdString();
    EXPECT_TRUE(tree.exists(QStringLiteral("d/ALPHA.txt")));
}

TEST_F(RenameCommandTest, InvalidOptionsAreRefusedWithTheirMessage)
{
    tree.file(QStringLiteral("d/alpha.txt"));
    struct Row {
        QStringList options;
        const char* expected;
    };
    const Row rows[] = {
        {{QStringLiteral("--tab"), QStringLiteral("general"), QStringLiteral("--set"),
          QStringLiteral("generalOptionIndex=8")},
         "Missing Input"},
        {{QStringLiteral("--tab"), QStringLiteral("twelve")}, "unknown tab"},
        {{QStringLiteral("--set"), QStringLiteral("noSuchOption=1")}, "noSuchOption"},
        {{QStringLiteral("--set"), QStringLiteral("generalOptionIndex=40")}, "generalOptionIndex"},
        {{QStringLiteral("--set"), QStringLiteral("novalue")}, "KEY=VALUE"},
    };
    for (const Row& row : rows) {
        const CliRun preview = run(QStringLiteral("preview"), row.options);
        EXPECT_EQ(preview.exitCode, 2) << row.expected;
        EXPECT_TRUE(preview.err.contains(QString::fromUtf8(row.expected))) << preview.err.toStdString();
    }
}

TEST_F(RenameCommandTest, ATakenNameIsReportedAndLeftAlone)
{
    tree.file(QStringLiteral("d/a.txt"), "mine");
    tree.file(QStringLiteral("d/a.md"), "theirs");
    const CliRun apply = run(QStringLiteral("apply"),
                             {QStringLiteral("--recursive"), QStringLiteral("--yes"), QStringLiteral("--tab"),
                              QStringLiteral("general"), QStringLiteral("--set"),
                              QStringLiteral("generalOptionIndex=3"), QStringLiteral("--set"),
                              QStringLiteral("generalChangeExtension=md")});
    // a.md is taken by another file: a.txt keeps its name and a.md its content.
    EXPECT_EQ(apply.exitCode, 0) << apply.out.toStdString();
    EXPECT_TRUE(apply.out.contains(QStringLiteral("a.txt\tFile Already Exists")));
    EXPECT_EQ(tree.read(QStringLiteral("d/a.md")), QByteArray("theirs"));
}

// Scripts read "renamed" and "log" after every apply, also when nothing could be applied:
// each of the two files proposes the other's name, so both are refused.
TEST_F(RenameCommandTest, ApplyJsonCarriesEveryKeyWhenNothingWasApplied)
{
    tree.file(QStringLiteral("d/a-b.txt"), "1");
    tree.file(QStringLiteral("d/b-a.txt"), "2");
    const CliRun apply = run(QStringLiteral("apply"),
                             {QStringLiteral("--recursive"), QStringLiteral("--yes"), QStringLiteral("--json"),
                              QStringLiteral("--tab"), QStringLiteral("general"), QStringLiteral("--set"),
                              QStringLiteral("generalOptionIndex=6"), QStringLiteral("--set"),
                              QStringLiteral("generalSwapSeperator=-")});
    const QJsonObject root = parseJson(apply);
    ASSERT_TRUE(root.contains(QStringLiteral("renamed"))) << apply.out.toStdString();
    ASSERT_TRUE(root.contains(QStringLiteral("log")));
    EXPECT_EQ(root.value(QStringLiteral("renamed")).toInt(-1), 0);
    EXPECT_TRUE(root.value(QStringLiteral("log")).isNull());
    EXPECT_TRUE(logs().isEmpty());

    const CliRun preview = run(QStringLiteral("preview"), {QStringLiteral("--recursive"), QStringLiteral("--json")});
    EXPECT_FALSE(parseJson(preview).contains(QStringLiteral("renamed"))) << "preview keeps its keys";
}

TEST_F(RenameCommandTest, PreviewJsonMarksProposalsThatCollide)
{
    tree.file(QStringLiteral("d/a-1.txt"));
    tree.file(QStringLiteral("d/a-2.txt"));
    tree.file(QStringLiteral("d/b.txt"));
    const CliRun preview = run(QStringLiteral("preview"),
                               {QStringLiteral("--recursive"), QStringLiteral("--json"), QStringLiteral("--tab"),
                                QStringLiteral("general"), QStringLiteral("--set"),
                                QStringLiteral("generalOptionIndex=8"), QStringLiteral("--set"),
                                QStringLiteral("generalRemoveAfterString=-")});
    const QJsonObject root = parseJson(preview);
    EXPECT_EQ(root.value(QStringLiteral("conflicts")).toInt(-1), 2) << preview.out.toStdString();
    QStringList marked;
    for (const QJsonValue& item : root.value(QStringLiteral("items")).toArray()) {
        if (item.toObject().value(QStringLiteral("conflict")).toBool())
            marked << item.toObject().value(QStringLiteral("filenameWithExtension")).toString();
    }
    EXPECT_EQ(marked, (QStringList{QStringLiteral("a-1.txt"), QStringLiteral("a-2.txt")}));
    EXPECT_TRUE(preview.err.contains(QStringLiteral("Conflicts: 2"))) << preview.err.toStdString();
}

TEST_F(RenameCommandTest, PreviewReplacesByTheOptionsOfTheReplaceRemoveTab)
{
    tree.file(QStringLiteral("d/a-b-c.txt"));
    tree.file(QStringLiteral("d/plain.txt"));
    const QStringList replaceAll = {QStringLiteral("--recursive"), QStringLiteral("--tab"),
                                    QStringLiteral("replaceremove"), QStringLiteral("--set"),
                                    QStringLiteral("replaceRemoveThis=-"), QStringLiteral("--set"),
                                    QStringLiteral("replaceRemoveWith=_"), QStringLiteral("--set"),
                                    QStringLiteral("isReplaceRemoveAllOccurrence=1")};

    const CliRun preview = run(QStringLiteral("preview"), replaceAll);
    EXPECT_EQ(preview.exitCode, 0) << preview.err.toStdString();
    EXPECT_EQ(preview.out,
              QStringLiteral("a-b-c.txt\ta_b_c.txt\nplain.txt\tNo Changes\nNew names: 1, No Changes: 1\n"));

    // From the end, the last occurrence is the first one found.
    const QStringList fromEndOnce = {QStringLiteral("--set"), QStringLiteral("isReplaceRemoveAllOccurrence=0"),
                                     QStringLiteral("--set"), QStringLiteral("replaceRemovePositionDirection=1")};
    const CliRun fromEnd = run(QStringLiteral("preview"), replaceAll + fromEndOnce);
    EXPECT_EQ(fromEnd.exitCode, 0) << fromEnd.err.toStdString();
    EXPECT_TRUE(fromEnd.out.startsWith(QStringLiteral("a-b-c.txt\ta-b_c.txt\n"))) << fromEnd.out.toStdString();

    const CliRun missing = run(QStringLiteral("preview"),
                               {QStringLiteral("--recursive"), QStringLiteral("--tab"),
                                QStringLiteral("replaceremove")});
    EXPECT_EQ(missing.exitCode, 2);
    EXPECT_TRUE(missing.err.contains(QStringLiteral("Nothing to Find"))) << missing.err.toStdString();
}

}  // namespace
