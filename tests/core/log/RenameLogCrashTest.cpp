#include "core/log/LogRecovery.h"
#include "core/log/RenameLog.h"
#include "core/log/RenameLogReader.h"
#include "core/platform/FaultInjection.h"
#include "core/text/NameParts.h"
#include "support/TempTree.h"

#include <QDir>
#include <QFile>
#include <gtest/gtest.h>
#include <optional>

using namespace tavrin;

// A batch may be killed at any moment. What is on disk at that moment must name every rename
// made so far, readable without the closing tag the batch never wrote.
namespace {

const QDateTime batchStart(QDate(2026, 11, 15), QTime(9, 5, 7));

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QList<RenameLogEntry> entriesOnDisk(const QString& path)
{
    const auto contents = readLogEntries(path);
    EXPECT_TRUE(contents.has_value()) << path.toStdString();
    EXPECT_FALSE(contents && contents->rootClosed);
    return contents ? contents->entries : QList<RenameLogEntry>();
}

TEST(RenameLogInterimFile, HoldsEachEntryBeforeItsRenameIsAttempted)
{
    test::TempTree tree;
    RenameLog log;
    ASSERT_TRUE(log.create(tree.root(), QStringLiteral("FILES"), batchStart));
    EXPECT_TRUE(entriesOnDisk(log.currLogFile()).isEmpty());

    QList<RenameLogEntry> expected;
    for (int i = 0; i < 4; ++i) {
        const QString source = QStringLiteral("/d/old %1").arg(i);
        const QString target = QStringLiteral("/d/new:%1").arg(i);
        ASSERT_TRUE(log.addLogEntry(source, target));
        expected.append(RenameLogEntry::fromPaths(source, target));
        EXPECT_EQ(entriesOnDisk(log.currLogFile()), expected) << "after adding entry " << i;
        if (i == 2) {
            log.dropLastEntry();
            expected.removeLast();
            EXPECT_EQ(entriesOnDisk(log.currLogFile()), expected) << "after dropping entry " << i;
        } else {
            log.confirmEntry();
        }
    }
}

TEST(RenameLogInterimFile, StaysWhenTheBatchNeverFinishes)
{
    test::TempTree tree;
    QString interim;
    {
        RenameLog log;
        ASSERT_TRUE(log.create(tree.root(), QStringLiteral("FOLDERS"), batchStart));
        log.addLogEntry(QStringLiteral("/d/a"), QStringLiteral("/d/b"));
        log.confirmEntry();
        log.addLogEntry(QStringLiteral("/d/c"), QStringLiteral("/d/e"));
        interim = log.currLogFile();
    }
    const auto contents = readLogEntries(interim);
    ASSERT_TRUE(contents.has_value());
    EXPECT_EQ(contents->type, QStringLiteral("FOLDERS"));
    EXPECT_EQ(contents->appVersion, QStringLiteral(TAVRIN_VERSION));
    EXPECT_FALSE(contents->rootClosed);
    ASSERT_EQ(contents->entries.size(), 2);
    EXPECT_EQ(contents->entries[1].targetName, QStringLiteral("e"));
}

// The interim entries are the finished document's lines, so one reader serves both and a
// recovered log looks like any other.
TEST(RenameLogInterimFile, IsTheFinishedDocumentWithoutItsClosingTag)
{
    test::TempTree tree;
    RenameLog log;
    ASSERT_TRUE(log.create(tree.root(), QStringLiteral("FILES"), batchStart));
    const QString names[]
        = {QStringLiteral("plain"), QStringLiteral("tab\there"), QStringLiteral("line\nbreak\r"),
            QStringLiteral("a&b<c>\"d\"'e'"), QStringLiteral("caf\u00e9 \U0001F600"), QStringLiteral("x:y")};
    for (const QString& name : names) {
        log.addLogEntry(QStringLiteral("/in/") + name, QStringLiteral("/out/") + name + QStringLiteral(" 2"));
        log.confirmEntry();
    }
    const QByteArray interim = contentOf(log.currLogFile());
    const QString path = log.finish();
    EXPECT_EQ(interim + "</files>\n", contentOf(path));
    EXPECT_FALSE(QFile::exists(log.currLogFile()));
}

TEST(RenameLogInterimFile, ALogLeftByAnotherBatchIsNeverOverwritten)
{
    test::TempTree tree;
    const QByteArray leftover = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<files appversion=\"3.0.0\" "
                                "type=\"FILES\">\n    <file srclocation=\"/a\" tarlocation=\"/a\" "
                                "srcfilename=\"x\" tarfilename=\"y\"/>\n";
    const QString interim = tree.file(QStringLiteral("Log 15-11-2026 09-05-07-#.xml"), leftover);

    RenameLog log;
    EXPECT_FALSE(log.create(tree.root(), QStringLiteral("FILES"), batchStart));
    log.addLogEntry(QStringLiteral("/d/a"), QStringLiteral("/d/b"));
    log.confirmEntry();
    EXPECT_EQ(contentOf(interim), leftover);
    const QString path = log.finish();
    EXPECT_EQ(path, tree.path(QStringLiteral("Log 15-11-2026 09-05-07-1.xml")));
    EXPECT_EQ(contentOf(interim), leftover);
}

// Regression: nothing was synced, so after a power cut the renames could be on disk and the
// log not. The head, the file and its folder entry, is on the disk before the first rename, and
// a log that cannot be synced counts as one that cannot be made.
TEST(RenameLogInterimFile, IsSyncedBeforeTheFirstRename)
{
    test::TempTree tree;
    {
        RenameLog log;
        test::InjectedFaults counting({});
        ASSERT_TRUE(log.create(tree.root(), QStringLiteral("FILES"), batchStart));
        EXPECT_EQ(test::InjectedFaults::calls(test::Call::Sync), 2);
    }
    for (int nth : {1, 2}) {
        test::TempTree other;
        RenameLog log;
        test::InjectedFaults failing({{test::Call::Sync, nth, EIO}});
        EXPECT_FALSE(log.create(other.root(), QStringLiteral("FILES"), batchStart)) << "sync " << nth;
        EXPECT_FALSE(QFile::exists(log.currLogFile())) << "sync " << nth;
    }
}

// Regression: a final log that could not be written (ENOSPC) was reported as saved, and the
// "#" log was deleted with the only record of the batch. It stays, complete, until the
// finished log is on disk; the next start finishes it.
TEST(RenameLogInterimFile, StaysWhenTheFinishedLogCannotBeMade)
{
    const test::Fault faults[] = {
        {test::Call::Write, 0, ENOSPC},
        {test::Call::Sync, 0, EIO},
        {test::Call::RenameNoReplace, 0, EACCES},
    };
    for (const test::Fault& fault : faults) {
        test::TempTree tree;
        RenameLog log;
        ASSERT_TRUE(log.create(tree.root(), QStringLiteral("FILES"), batchStart));
        for (const char* name : {"a", "b"}) {
            log.addLogEntry(QStringLiteral("/d/") + QLatin1String(name), QStringLiteral("/d/x") + QLatin1String(name));
            log.confirmEntry();
        }
        QString path;
        {
            test::InjectedFaults injected({fault});
            path = log.finish();
        }
        EXPECT_TRUE(path.isEmpty()) << int(fault.call);
        EXPECT_TRUE(log.finishError().contains(log.currLogFile())) << int(fault.call);
        EXPECT_EQ(QDir(tree.root()).entryList(QDir::Files), QStringList {lastPathComponent(log.currLogFile())});
        EXPECT_EQ(readLogEntries(log.currLogFile())->entries, log.entries()) << int(fault.call);
        const LogRecoveryReport report = recoverInterruptedLogs(tree.root());
        ASSERT_EQ(report.finished.size(), 1) << int(fault.call);
        EXPECT_EQ(readLogEntries(report.finished[0])->entries, log.entries()) << int(fault.call);
    }
}

// When the "#" file cannot take its finished name in place (another file system) or could not
// be written to the end, the whole document is written again beside it, and the "#" file goes.
TEST(RenameLogInterimFile, IsReplacedByAWholeDocumentWhenItCannotBeFinishedInPlace)
{
    const struct {
        const char* name;
        test::Fault fault;
        bool whileLogging;
    } rows[] = {
        {"rename across file systems", {test::Call::RenameNoReplace, 1, EXDEV}, false},
        {"an entry that could not be written", {test::Call::Write, 1, ENOSPC}, true},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        test::TempTree tree;
        RenameLog log;
        ASSERT_TRUE(log.create(tree.root(), QStringLiteral("FILES"), batchStart));
        QString path;
        {
            std::optional<test::InjectedFaults> injected;
            if (row.whileLogging)
                injected.emplace(std::vector<test::Fault>{row.fault});
            for (const char* name : {"a", "b"}) {
                log.addLogEntry(QStringLiteral("/d/") + QLatin1String(name), QStringLiteral("/d/x") + QLatin1String(name));
                log.confirmEntry();
            }
            injected.reset();
            if (!row.whileLogging)
                injected.emplace(std::vector<test::Fault>{row.fault});
            path = log.finish();
        }
        EXPECT_EQ(path, tree.path(QStringLiteral("Log 15-11-2026 09-05-07-2.xml")));
        EXPECT_EQ(QDir(tree.root()).entryList(QDir::Files), QStringList {lastPathComponent(path)});
        EXPECT_EQ(readLogEntries(path)->entries, log.entries());
        EXPECT_TRUE(log.finishError().isEmpty());
    }
}

}  // namespace
