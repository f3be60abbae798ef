#include "CliRunner.h"
#include "core/log/RenameLog.h"
#include "core/log/RenameLogFormat.h"
#include "core/platform/FileOperations.h"
#include "support/TempTree.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonObject>
#include <gtest/gtest.h>

using namespace tavrin;
using test::CliRun;
using test::parseJson;
using test::runCli;

namespace {

const QStringList kApplyUpperCase = { QStringLiteral("apply"), QStringLiteral("--recursive"),
    QStringLiteral("--yes"), QStringLiteral("--tab"), QStringLiteral("general"), QStringLiteral("--set"),
    QStringLiteral("generalOptionIndex=0"), QStringLiteral("--set"),
    QStringLiteral("generalFileNameCase=1") };

// A folder of files and a support folder of its own, so the logs are the test's.
class UndoCommandTest : public ::testing::Test {
protected:
    UndoCommandTest()
    {
        environment.insert(QStringLiteral("XDG_DATA_HOME"), tree.path(QStringLiteral("data")));
        environment.insert(QStringLiteral("LANGUAGE"), QStringLiteral("en"));
    }

    CliRun run(const QStringList& arguments) { return runCli(arguments, QString(), environment); }

    CliRun applyUpperCase()
    {
        const CliRun apply = run(kApplyUpperCase + QStringList { tree.path(QStringLiteral("d")) });
        EXPECT_EQ(apply.exitCode, 0) << apply.err.toStdString();
        return apply;
    }

    QJsonArray listedLogs()
    {
        const CliRun logs = run({ QStringLiteral("logs"), QStringLiteral("--json") });
        EXPECT_EQ(logs.exitCode, 0) << logs.err.toStdString();
        return QJsonDocument::fromJson(logs.out.toUtf8()).array();
    }

    QString logFolder() const { return tree.path(QStringLiteral("data/Palisade Soft/Tavrin3/Logs")); }
    QStringList logs() const { return QDir(logFolder()).entryList(QDir::Files); }

    test::TempTree tree;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
};

TEST_F(UndoCommandTest, ListsTheAppliedBatchAndUndoesIt)
{
    tree.file(QStringLiteral("d/alpha.txt"), "a");
    tree.file(QStringLiteral("d/beta.txt"), "b");
    applyUpperCase();
    ASSERT_EQ(logs().size(), 1);
    const QString logPath = QDir(logFolder()).filePath(logs().first());

    const QJsonArray listed = listedLogs();
    ASSERT_EQ(listed.size(), 1);
    const QJsonObject record = listed.first().toObject();
    EXPECT_EQ(record.value(QStringLiteral("logFileName")).toString(), logs().first());
    EXPECT_EQ(record.value(QStringLiteral("filesCount")).toInt(), 2);
    EXPECT_EQ(record.value(QStringLiteral("path")).toString(), logPath);
    const QDateTime created
        = QDateTime::fromString(record.value(QStringLiteral("dateCreated")).toString(), Qt::ISODate);
    EXPECT_LE(qAbs(created.secsTo(QDateTime::currentDateTime())), 60);

    const CliRun undo = run({ QStringLiteral("undo"), QStringLiteral("--json"), QStringLiteral("--yes") });
    ASSERT_EQ(undo.exitCode, 0) << undo.err.toStdString();
    const QJsonObject summary = parseJson(undo);
    EXPECT_EQ(summary.value(QStringLiteral("entries")).toInt(), 2);
    EXPECT_EQ(summary.value(QStringLiteral("restored")).toInt(), 2);
    EXPECT_EQ(summary.value(QStringLiteral("log")).toString(), logPath);
    EXPECT_EQ(tree.read(QStringLiteral("d/alpha.txt")), QByteArray("a"));
    EXPECT_EQ(tree.read(QStringLiteral("d/beta.txt")), QByteArray("b"));
    EXPECT_TRUE(logs().isEmpty());
    EXPECT_TRUE(listedLogs().isEmpty());

    const CliRun nothingLeft = run({ QStringLiteral("undo"), QStringLiteral("--yes") });
    EXPECT_EQ(nothingLeft.exitCode, 1);
    EXPECT_TRUE(nothingLeft.err.contains(QStringLiteral("no rename log"))) << nothingLeft.err.toStdString();
}

TEST_F(UndoCommandTest, ALogNamedByItsFileNameReportsWhatCouldNotBeRestored)
{
    tree.file(QStringLiteral("d/alpha.txt"), "a");
    tree.file(QStringLiteral("d/beta.txt"), "b");
    applyUpperCase();
    ASSERT_EQ(logs().size(), 1);
    const QString name = logs().first();
    tree.file(QStringLiteral("d/beta.txt"), "newcomer");

    const CliRun undo = run({ QStringLiteral("undo"), QStringLiteral("--yes"), name });
    EXPECT_EQ(undo.exitCode, 1) << undo.err.toStdString();
    EXPECT_EQ(undo.out,
        QStringLiteral("Items in the log: 2\nItems given back their old names: 1\nItems not restored: 1\n"
                       "“%1” keeps its name: another item already has its old name “beta.txt”.\n"
                       "The log keeps the items not restored, so the undo can be tried again.\n")
            .arg(tree.path(QStringLiteral("d/BETA.txt"))));
    EXPECT_EQ(tree.read(QStringLiteral("d/alpha.txt")), QByteArray("a"));
    EXPECT_EQ(tree.read(QStringLiteral("d/beta.txt")), QByteArray("newcomer"));
    EXPECT_EQ(tree.read(QStringLiteral("d/BETA.txt")), QByteArray("b"));
    EXPECT_EQ(logs(), QStringList {name}) << "kept with the entry not restored";
}

TEST_F(UndoCommandTest, RefusesBadUsageAndLogsItCannotUndo)
{
    tree.file(QStringLiteral("d/alpha.txt"), "a");
    applyUpperCase();
    const QString other = tree.file(QStringLiteral("elsewhere/old.xml"),
        logxml::document(QStringLiteral("FILES"),
            { RenameLogEntry::fromPaths(
                tree.path(QStringLiteral("d/alpha.txt")), tree.path(QStringLiteral("d/ALPHA.txt"))) },
            QStringLiteral("1.0")));

    struct Row {
        QStringList arguments;
        int exitCode;
        const char* message;
    };
    const Row rows[] = {
        { { QStringLiteral("undo") }, 2, "add --yes" },
        { { QStringLiteral("undo"), QStringLiteral("--yes"), QStringLiteral("a"), QStringLiteral("b") }, 2,
            "one LOG" },
        { { QStringLiteral("undo"), QStringLiteral("--yes"), QStringLiteral("--sort") }, 2,
            "unknown option" },
        { { QStringLiteral("logs"), QStringLiteral("somewhere") }, 2, "takes no LOG" },
        { { QStringLiteral("undo"), QStringLiteral("--yes"), QStringLiteral("no such log.xml") }, 1,
            "no such log" },
        { { QStringLiteral("undo"), QStringLiteral("--yes"), other }, 1, "not a rename log of this version" },
    };
    for (const Row& row : rows) {
        const CliRun refused = run(row.arguments);
        EXPECT_EQ(refused.exitCode, row.exitCode) << row.arguments.join(QLatin1Char(' ')).toStdString();
        EXPECT_TRUE(refused.err.contains(QString::fromUtf8(row.message))) << refused.err.toStdString();
    }
    EXPECT_TRUE(tree.exists(QStringLiteral("d/ALPHA.txt")));
    EXPECT_TRUE(QFile::exists(other));
    EXPECT_EQ(logs().size(), 1);
}

TEST_F(UndoCommandTest, JsonCarriesEveryKeyWhenThereIsNothingToUndo)
{
    const CliRun undo = run({ QStringLiteral("undo"), QStringLiteral("--yes"), QStringLiteral("--json") });
    EXPECT_EQ(undo.exitCode, 1);
    const QJsonObject root = parseJson(undo);
    EXPECT_EQ(root.value(QStringLiteral("entries")).toInt(-1), 0) << undo.out.toStdString();
    EXPECT_EQ(root.value(QStringLiteral("restored")).toInt(-1), 0);
    ASSERT_TRUE(root.contains(QStringLiteral("log")));
    EXPECT_TRUE(root.value(QStringLiteral("log")).isNull());
}

// What each command prints for people: the log table, the help texts, and the JSON object of
// an undo that was refused.
TEST_F(UndoCommandTest, TextOutputHelpAndARefusedUndoInJson)
{
    tree.file(QStringLiteral("d/alpha.txt"), "a");
    applyUpperCase();
    const QString notALog = tree.file(QStringLiteral("notes.xml"), "<plist/>");
    struct Row {
        QStringList arguments;
        int exitCode;
        const char* expected;
    };
    const Row rows[] = {
        { { QStringLiteral("logs") }, 0, "\t1\nLogs: 1\n" },
        { { QStringLiteral("logs"), QStringLiteral("--help") }, 0, "tavrin-cli logs" },
        { { QStringLiteral("undo"), QStringLiteral("--help") }, 0, "tavrin-cli undo" },
        { { QStringLiteral("undo"), QStringLiteral("--yes"), QStringLiteral("--json"), notALog }, 1, "\"entries\": 0" },
    };
    for (const Row& row : rows) {
        const CliRun result = run(row.arguments);
        EXPECT_EQ(result.exitCode, row.exitCode) << row.arguments.join(QLatin1Char(' ')).toStdString();
        EXPECT_TRUE(result.out.contains(QString::fromUtf8(row.expected))) << result.out.toStdString();
    }
}

// A batch killed half-way leaves its "#" log; the next run of either program finishes it.
TEST_F(UndoCommandTest, ALogLeftByAKilledBatchIsListedAndUndoneAtTheNextRun)
{
    tree.folder(QStringLiteral("data/Palisade Soft/Tavrin3/Logs"));
    {
        RenameLog killed;
        ASSERT_TRUE(killed.create(logFolder(), QStringLiteral("FILES"), QDateTime::currentDateTime()));
        for (int i = 0; i < 3; ++i) {
            const QString source = tree.file(QStringLiteral("d/f%1").arg(i), QByteArray::number(i));
            const QString target = tree.path(QStringLiteral("d/F%1").arg(i));
            killed.addLogEntry(source, target);
            ASSERT_TRUE(moveItemNoReplace(source, target).ok());
            killed.confirmEntry();
        }
    }
    ASSERT_TRUE(logs().first().endsWith(QStringLiteral("-#.xml")));

    const QJsonArray listed = listedLogs();
    ASSERT_EQ(listed.size(), 1);
    EXPECT_EQ(listed.first().toObject().value(QStringLiteral("filesCount")).toInt(), 3);
    EXPECT_TRUE(logs().first().endsWith(QStringLiteral("-3.xml")));

    const CliRun undo = run({ QStringLiteral("undo"), QStringLiteral("--yes"), QStringLiteral("--json") });
    EXPECT_EQ(undo.exitCode, 0) << undo.err.toStdString();
    EXPECT_EQ(parseJson(undo).value(QStringLiteral("restored")).toInt(), 3);
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(tree.read(QStringLiteral("d/f%1").arg(i)), QByteArray::number(i));
}

}  // namespace
