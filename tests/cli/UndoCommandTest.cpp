#include "CliRunner.h"
#include "core/log/RenameLog.h"
#include "core/log/RenameLogFormat.h"
#include "core/platform/FileOperations.h"

#include <QJsonArray>
#include <gtest/gtest.h>

using namespace tavrin;
using namespace Qt::StringLiterals;
using test::args;
using test::CliRun;
using test::parseJson;

namespace {

class UndoCommandTest : public test::CliTest {
protected:
    // Upper-cases alpha.txt and beta.txt in the folder "d" and logs the batch.
    void applyUpperCase()
    {
        tree.file(u"d/alpha.txt"_s, "a");
        tree.file(u"d/beta.txt"_s, "b");
        const CliRun apply
            = run(args("apply --recursive --yes --tab general --set generalFileNameCase=1") << tree.path(u"d"_s));
        ASSERT_EQ(apply.exitCode, 0) << apply.err.toStdString();
        ASSERT_EQ(logs().size(), 1);
    }

    QJsonArray listedLogs() const
    {
        const CliRun listed = run(args("logs --json"));
        EXPECT_EQ(listed.exitCode, 0) << listed.err.toStdString();
        return QJsonDocument::fromJson(listed.out.toUtf8()).array();
    }
};

TEST_F(UndoCommandTest, ListsTheAppliedBatchAndUndoesIt)
{
    applyUpperCase();
    const QString logPath = QDir(logFolder()).filePath(logs().first());
    const QJsonArray listed = listedLogs();
    ASSERT_EQ(listed.size(), 1);
    const QJsonObject record = listed.first().toObject();
    EXPECT_EQ(record.value("logFileName"_L1).toString(), logs().first());
    EXPECT_EQ(record.value("filesCount"_L1).toInt(), 2);
    EXPECT_EQ(record.value("path"_L1).toString(), logPath);
    const QDateTime created = QDateTime::fromString(record.value("dateCreated"_L1).toString(), Qt::ISODate);
    EXPECT_LE(qAbs(created.secsTo(QDateTime::currentDateTime())), 60);
    EXPECT_TRUE(run(args("logs")).out.contains(u"\t2\nLogs: 1\n"_s));

    const CliRun undo = run(args("undo --json --yes"));
    ASSERT_EQ(undo.exitCode, 0) << undo.err.toStdString();
    const QJsonObject summary = parseJson(undo);
    EXPECT_EQ(summary.value("entries"_L1).toInt(), 2);
    EXPECT_EQ(summary.value("restored"_L1).toInt(), 2);
    EXPECT_EQ(summary.value("log"_L1).toString(), logPath);
    EXPECT_EQ(tree.read(u"d/alpha.txt"_s), QByteArray("a"));
    EXPECT_EQ(tree.read(u"d/beta.txt"_s), QByteArray("b"));
    EXPECT_TRUE(logs().isEmpty());
    EXPECT_TRUE(listedLogs().isEmpty());

    // Nothing left to undo: the JSON object still carries every key.
    const CliRun nothingLeft = run(args("undo --yes --json"));
    EXPECT_EQ(nothingLeft.exitCode, 1);
    const QJsonObject root = parseJson(nothingLeft);
    EXPECT_EQ(root.value("entries"_L1).toInt(-1), 0) << nothingLeft.out.toStdString();
    EXPECT_EQ(root.value("restored"_L1).toInt(-1), 0);
    EXPECT_TRUE(root.contains("log"_L1) && root.value("log"_L1).isNull());
    EXPECT_TRUE(nothingLeft.err.contains(u"no rename log"_s)) << nothingLeft.err.toStdString();
}

TEST_F(UndoCommandTest, ALogNamedByItsFileNameReportsWhatCouldNotBeRestored)
{
    applyUpperCase();
    const QString name = logs().first();
    tree.file(u"d/beta.txt"_s, "newcomer");

    const CliRun undo = run(args("undo --yes") << name);
    EXPECT_EQ(undo.exitCode, 1) << undo.err.toStdString();
    EXPECT_EQ(undo.out, u"Items in the log: 2\nItems given back their old names: 1\nItems not restored: 1\n"
                        "“%1” keeps its name: another item already has its old name “beta.txt”.\n"
                        "The log keeps the items not restored, so the undo can be tried again.\n"_s
                            .arg(tree.path(u"d/BETA.txt"_s)));
    EXPECT_EQ(tree.read(u"d/alpha.txt"_s), QByteArray("a"));
    EXPECT_EQ(tree.read(u"d/beta.txt"_s), QByteArray("newcomer"));
    EXPECT_EQ(tree.read(u"d/BETA.txt"_s), QByteArray("b"));
    EXPECT_EQ(logs(), QStringList{name}) << "kept with the entry not restored";
}

TEST_F(UndoCommandTest, RefusesBadUsageAndLogsItCannotUndo)
{
    applyUpperCase();
    const QString other = tree.file(
        u"elsewhere/old.xml"_s,
        logxml::document(u"FILES"_s, {RenameLogEntry::fromPaths(tree.path(u"d/alpha.txt"_s), tree.path(u"d/ALPHA.txt"_s))},
                         u"1.0"_s));
    const QString notALog = tree.file(u"notes.xml"_s, "<plist/>");
    const struct {
        QStringList arguments;
        int exitCode;
        const char* message;
    } rows[] = {
        {args("undo"), 2, "add --yes"},
        {args("undo --yes a b"), 2, "one LOG"},
        {args("undo --yes --sort"), 2, "unknown option"},
        {args("logs somewhere"), 2, "takes no LOG"},
        {args("undo --yes no-such-log.xml"), 1, "no such log"},
        {args("undo --yes") << other, 1, "not a rename log of this version"},
    };
    for (const auto& row : rows) {
        const CliRun refused = run(row.arguments);
        EXPECT_EQ(refused.exitCode, row.exitCode) << row.arguments.join(u' ').toStdString();
        EXPECT_TRUE(refused.err.contains(QString::fromUtf8(row.message))) << refused.err.toStdString();
    }
    EXPECT_TRUE(run(args("logs --help")).out.contains(u"tavrin-cli logs"_s));
    EXPECT_TRUE(run(args("undo --help")).out.contains(u"tavrin-cli undo"_s));
    const CliRun refusedJson = run(args("undo --yes --json") << notALog);
    EXPECT_EQ(refusedJson.exitCode, 1);
    EXPECT_TRUE(refusedJson.out.contains(u"\"entries\": 0"_s)) << refusedJson.out.toStdString();
    EXPECT_TRUE(tree.exists(u"d/ALPHA.txt"_s));
    EXPECT_TRUE(QFile::exists(other));
    EXPECT_EQ(logs().size(), 1);
}

// A batch killed half-way leaves its "#" log; the next run finishes it and can undo it.
TEST_F(UndoCommandTest, ALogLeftByAKilledBatchIsListedAndUndoneAtTheNextRun)
{
    tree.folder(u"data/Palisade Soft/Tavrin3/Logs"_s);
    {
        RenameLog killed;
        ASSERT_TRUE(killed.create(logFolder(), u"FILES"_s, QDateTime::currentDateTime()));
        for (int i = 0; i < 3; ++i) {
            const QString source = tree.file(u"d/f%1"_s.arg(i), QByteArray::number(i));
            const QString target = tree.path(u"d/F%1"_s.arg(i));
            killed.addLogEntry(source, target);
            ASSERT_TRUE(moveItemNoReplace(source, target).ok());
            killed.confirmEntry();
        }
    }
    ASSERT_TRUE(logs().first().endsWith(u"-#.xml"_s));
    const QJsonArray listed = listedLogs();
    ASSERT_EQ(listed.size(), 1);
    EXPECT_EQ(listed.first().toObject().value("filesCount"_L1).toInt(), 3);

    const CliRun undo = run(args("undo --yes --json"));
    EXPECT_EQ(undo.exitCode, 0) << undo.err.toStdString();
    EXPECT_EQ(parseJson(undo).value("restored"_L1).toInt(), 3);
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(tree.read(u"d/f%1"_s.arg(i)), QByteArray::number(i));
}

}  // namespace
