#include "core/log/LogRecovery.h"
#include "LogFixtures.h"
#include "core/log/LogListing.h"
#include "core/log/RenameLog.h"
#include "core/log/RenameLogReader.h"
#include "core/text/NameParts.h"

#include <QDir>
#include <QFile>
#include <gtest/gtest.h>
#include <sys/stat.h>

using namespace tavrin;

namespace {

const QDateTime batchStart(QDate(2026, 11, 15), QTime(9, 5, 7));
const QString interimName = QStringLiteral("Log 15-11-2026 09-05-07-#.xml");

unsigned long long inodeOf(const QString& path)
{
    struct stat info { };
    return ::stat(QFile::encodeName(path).constData(), &info) == 0 ? info.st_ino : 0;
}

class LogRecoveryTest : public ::testing::Test {
protected:
    LogRecoveryTest()
        : logs(tree.folder(QStringLiteral("logs")))
    {
    }

    // What a batch killed after `count` renames leaves: its "#" log, root still open.
    QList<RenameLogEntry> killedBatch(int count)
    {
        RenameLog log;
        EXPECT_TRUE(log.create(logs, QStringLiteral("FOLDERS"), batchStart));
        for (int i = 0; i < count; ++i) {
            log.addLogEntry(QStringLiteral("/d/old %1").arg(i), QStringLiteral("/d/new %1").arg(i));
            log.confirmEntry();
        }
        return log.entries();
    }

    QStringList logNames() const { return QDir(logs).entryList(QDir::Files, QDir::Name); }

    test::TempTree tree;
    QString logs;
};

TEST_F(LogRecoveryTest, FinishesAKilledBatchsLogUnderItsCount)
{
    const QList<RenameLogEntry> entries = killedBatch(3);
    const QString interim = joinPath(logs, interimName);
    const unsigned long long inode = inodeOf(interim);

    const LogRecoveryReport report = recoverInterruptedLogs(logs);
    const QString finished = joinPath(logs, QStringLiteral("Log 15-11-2026 09-05-07-3.xml"));
    EXPECT_EQ(report.finished, QStringList { finished });
    EXPECT_TRUE(report.leftAlone.isEmpty());
    EXPECT_EQ(logNames(), QStringList { QStringLiteral("Log 15-11-2026 09-05-07-3.xml") });
    const auto contents = readLogEntries(finished);
    ASSERT_TRUE(contents.has_value());
    EXPECT_TRUE(contents->rootClosed);
    EXPECT_EQ(contents->entries, entries);
    EXPECT_EQ(contents->type, QStringLiteral("FOLDERS"));
    EXPECT_EQ(tree.read(QStringLiteral("logs/Log 15-11-2026 09-05-07-3.xml")),
        logxml::document(QStringLiteral("FOLDERS"), entries));
    // Finished in place: the creation date it is listed by is the batch's.
    EXPECT_EQ(inodeOf(finished), inode);
    EXPECT_EQ(loadUserLogFiles(logs).size(), 1);
}

TEST_F(LogRecoveryTest, NeverReplacesALogThatHasTheName)
{
    killedBatch(2);
    const RenameLogEntry other = RenameLogEntry::fromPaths(QStringLiteral("/x/1"), QStringLiteral("/x/2"));
    const QString taken
        = test::writeLog(tree, QStringLiteral("logs/Log 15-11-2026 09-05-07-2.xml"), { other });
    const QByteArray before = tree.read(QStringLiteral("logs/Log 15-11-2026 09-05-07-2.xml"));
    test::writeLog(tree, QStringLiteral("logs/Log 15-11-2026 09-05-08-2.xml"), { other });

    const LogRecoveryReport report = recoverInterruptedLogs(logs);
    EXPECT_EQ(
        report.finished, QStringList { joinPath(logs, QStringLiteral("Log 15-11-2026 09-05-09-2.xml")) });
    EXPECT_EQ(tree.read(QStringLiteral("logs/Log 15-11-2026 09-05-07-2.xml")), before);
    EXPECT_EQ(logNames().size(), 3);
    EXPECT_TRUE(QFile::exists(taken));
}

// A batch killed after writing its finished log but before removing its "#" file leaves one log
// twice; recovery must not turn that into two logs of one batch.
TEST_F(LogRecoveryTest, DropsTheCopyOfALogAlreadyFinished)
{
    const QList<RenameLogEntry> entries = killedBatch(2);
    tree.file(QStringLiteral("logs/Log 15-11-2026 09-05-07-2.xml"),
        logxml::document(QStringLiteral("FOLDERS"), entries));
    const LogRecoveryReport report = recoverInterruptedLogs(logs);
    EXPECT_EQ(report.finished.size(), 1);
    EXPECT_EQ(logNames(), QStringList { QStringLiteral("Log 15-11-2026 09-05-07-2.xml") });
}

TEST_F(LogRecoveryTest, LeavesRunningBatchesAndUnreadableLogsAlone)
{
    RenameLog running;
    ASSERT_TRUE(running.create(logs, QStringLiteral("FILES"), batchStart));
    running.addLogEntry(QStringLiteral("/d/a"), QStringLiteral("/d/b"));
    running.confirmEntry();
    const QString garbled
        = tree.file(QStringLiteral("logs/Log 16-11-2026 09-05-07-#.xml"), "<files><file/><<");
    tree.file(QStringLiteral("logs/Log 17-11-2026 09-05-07-#.xml"));

    const LogRecoveryReport report = recoverInterruptedLogs(logs);
    EXPECT_TRUE(report.finished.isEmpty());
    EXPECT_EQ(report.leftAlone, QStringList { garbled });
    EXPECT_EQ(logNames().size(), 3);
    EXPECT_TRUE(QFile::exists(running.currLogFile()));

    EXPECT_EQ(running.finish(), joinPath(logs, QStringLiteral("Log 15-11-2026 09-05-07-1.xml")));
}

}  // namespace
