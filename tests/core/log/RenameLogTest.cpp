#include "core/log/RenameLog.h"
#include "core/log/RenameLogFormat.h"
#include "core/log/RenameLogReader.h"
#include "core/platform/FaultInjection.h"
#include "support/TempTree.h"

#include <QDir>
#include <QFile>
#include <QXmlStreamWriter>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace tavrin;

namespace {

const QDateTime batchStart(QDate(2026, 11, 15), QTime(9, 5, 7));

QStringList filesIn(const QString& folder)
{
    return QDir(folder).entryList(QDir::Files | QDir::Hidden | QDir::System, QDir::Name);
}

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// One rename that happened: logged, then confirmed.
void logRename(RenameLog& log, const QString& source, const QString& target)
{
    log.addLogEntry(source, target);
    log.confirmEntry();
}

TEST(GetNewLogFileName, DayMonthYearThenTwentyFourHourTime)
{
    struct Row {
        QDateTime when;
        const char* name;
    };
    const Row rows[] = {
        {batchStart, "Log 15-11-2026 09-05-07-#.xml"},
        {QDateTime(QDate(2027, 1, 2), QTime(0, 0, 0)), "Log 02-01-2027 00-00-00-#.xml"},
        {QDateTime(QDate(2026, 12, 31), QTime(23, 59, 59)), "Log 31-12-2026 23-59-59-#.xml"},
        {QDateTime(QDate(987, 3, 4), QTime(13, 1, 2)), "Log 04-03-0987 13-01-02-#.xml"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(getNewLogFileName(row.when), QString::fromUtf8(row.name));
}

// Confirmed entries and entries nobody confirmed or dropped (they may stand for a rename that
// happened) are logged; a dropped one (a rename that failed) is not, nor counted.
TEST(RenameLog, ABatchLeavesOneLogNamedWithTheCountOfItsEntries)
{
    test::TempTree tree;
    const QString folder = tree.folder(QStringLiteral("Logs"));
    RenameLog log;
    ASSERT_TRUE(log.create(folder, QStringLiteral("FILES"), batchStart));
    EXPECT_EQ(log.currLogFile(), folder + QStringLiteral("/Log 15-11-2026 09-05-07-#.xml"));
    for (int i = 0; i < 12; ++i)
        logRename(log, QStringLiteral("/p/old%1").arg(i), QStringLiteral("/p/new%1").arg(i));
    ASSERT_TRUE(log.addLogEntry(QStringLiteral("/p/failed"), QStringLiteral("/p/F")));
    log.dropLastEntry();
    log.addLogEntry(QStringLiteral("/p/unresolved"), QStringLiteral("/p/U"));
    EXPECT_EQ(log.renamedCount(), 12);

    // Finishing counts the unresolved entry with the others.
    const QString path = log.finish();
    EXPECT_EQ(path, folder + QStringLiteral("/Log 15-11-2026 09-05-07-13.xml"));
    EXPECT_EQ(filesIn(folder), QStringList {QStringLiteral("Log 15-11-2026 09-05-07-13.xml")});
    const auto contents = readLogEntries(path);
    ASSERT_TRUE(contents.has_value());
    ASSERT_EQ(contents->entries.size(), 13);
    EXPECT_EQ(contents->entries.first().sourceName, QStringLiteral("old0"));
    EXPECT_EQ(contents->entries[11].targetName, QStringLiteral("new11"));
    EXPECT_EQ(contents->entries.last().sourceName, QStringLiteral("unresolved"));
}

TEST(RenameLog, WritesTheFinishedDocumentByteForByte)
{
    test::TempTree tree;
    RenameLog log;
    ASSERT_TRUE(log.create(tree.root(), QStringLiteral("FILES"), batchStart));
    logRename(log, QStringLiteral("/photos/trip/IMG_0001.JPG"), QStringLiteral("/photos/trip/Rome 1.jpg"));
    logRename(
        log, QStringLiteral("/photos/trip/a:b & <c>.txt"), QStringLiteral("/photos/trip/\"quoted\" 'x'.txt"));

    const QByteArray expected
        = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
          "<files appversion=\"" TAVRIN_VERSION "\" type=\"FILES\">\n"
          "    <file srclocation=\"/photos/trip\" tarlocation=\"/photos/trip\" "
          "srcfilename=\"IMG_0001.JPG\" tarfilename=\"Rome 1.jpg\"/>\n"
          "    <file srclocation=\"/photos/trip\" tarlocation=\"/photos/trip\" "
          "srcfilename=\"a/b &amp; &lt;c&gt;.txt\" tarfilename=\"&quot;quoted&quot; 'x'.txt\"/>\n"
          "</files>\n";
    EXPECT_EQ(contentOf(log.finish()), expected);
}

// Entry lines are written by hand for speed; they must stay what Qt's XML writer makes of
// the same element, whatever the names hold. A name with a character XML cannot hold gets,
// after the attributes the writer makes, its exact form in Base64.
TEST(RenameLogFormat, EntryLinesEscapeNamesAsQtsXmlWriterDoes)
{
    const QString awkward[] = {
        QStringLiteral("plain name.txt"),
        QStringLiteral("a&b <c> \"d\" 'e'"),
        QStringLiteral("tab\there\nnewline\rreturn"),
        QString::fromUtf8("bell\x07 and \x01 gone"),
        QString::fromUtf8("caf\xC3\xA9 \xF0\x9F\x93\xB7 \xEF\xBF\xBE end"),
    };
    for (const QString& name : awkward) {
        RenameLogEntry entry{QStringLiteral("/folder"), QStringLiteral("/folder"), name, name + QStringLiteral("2"), true};
        QByteArray expected;
        {
            QXmlStreamWriter writer(&expected);
            writer.writeEmptyElement(QStringLiteral("file"));
            writer.writeAttribute(QStringLiteral("srclocation"), entry.sourceLocation);
            writer.writeAttribute(QStringLiteral("tarlocation"), entry.targetLocation);
            writer.writeAttribute(QStringLiteral("srcfilename"), entry.sourceName);
            writer.writeAttribute(QStringLiteral("tarfilename"), entry.targetName);
            writer.writeCharacters(QString());
        }
        const QByteArray line = logxml::entryLine(entry);
        if (logxml::isXmlText(name)) {
            EXPECT_EQ(line, "    " + expected + "\n") << name.toStdString();
            continue;
        }
        EXPECT_TRUE(line.startsWith("    " + expected.chopped(2) + " srcfilenamebase64=\"" + name.toUtf8().toBase64()))
            << line.toStdString();
    }
}

TEST(RenameLog, AnEmptyBatchLeavesALogCountingZero)
{
    test::TempTree tree;
    RenameLog log;
    ASSERT_TRUE(log.create(tree.root(), QStringLiteral("FOLDERS"), batchStart));
    const QString path = log.finish();
    EXPECT_EQ(path, tree.path(QStringLiteral("Log 15-11-2026 09-05-07-0.xml")));
    EXPECT_EQ(contentOf(path),
        QByteArray("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                   "<files appversion=\"" TAVRIN_VERSION "\" type=\"FOLDERS\"/>\n"));
    EXPECT_EQ(filesIn(tree.root()).size(), 1);
}

TEST(RenameLog, ShowsStoredColonsAsSlashesInNamesOnly)
{
    test::TempTree tree;
    RenameLog log;
    ASSERT_TRUE(log.create(tree.root(), QStringLiteral("FOLDERS"), batchStart));
    logRename(
        log, QStringLiteral("/data/in:box/10:30 call"), QStringLiteral("/data/in:box/10:30 call:notes"));
    const auto contents = readLogEntries(log.finish());
    ASSERT_TRUE(contents.has_value());
    EXPECT_EQ(contents->type, QStringLiteral("FOLDERS"));
    EXPECT_EQ(contents->appVersion, QStringLiteral(TAVRIN_VERSION));
    ASSERT_EQ(contents->entries.size(), 1);
    const RenameLogEntry& entry = contents->entries.first();
    EXPECT_EQ(entry.sourceLocation, QStringLiteral("/data/in:box"));
    EXPECT_EQ(entry.targetLocation, QStringLiteral("/data/in:box"));
    EXPECT_EQ(entry.sourceName, QStringLiteral("10/30 call"));
    EXPECT_EQ(entry.targetName, QStringLiteral("10/30 call/notes"));
    EXPECT_EQ(entry.sourcePath(), QStringLiteral("/data/in:box/10:30 call"));
    EXPECT_EQ(entry.targetPath(), QStringLiteral("/data/in:box/10:30 call:notes"));
}

TEST(RenameLog, ReplacesEveryHashOfThePathWithTheCount)
{
    test::TempTree tree;
    const QString folder = tree.folder(QStringLiteral("logs#"));
    tree.folder(QStringLiteral("logs3"));
    RenameLog log;
    ASSERT_TRUE(log.create(folder, QStringLiteral("FILES"), batchStart));
    for (int i = 0; i < 3; ++i)
        logRename(log, QStringLiteral("/x/%1").arg(i), QStringLiteral("/x/y%1").arg(i));

    const QString path = log.finish();
    EXPECT_EQ(path, tree.path(QStringLiteral("logs3/Log 15-11-2026 09-05-07-3.xml")));
    EXPECT_EQ(filesIn(tree.path(QStringLiteral("logs3"))).size(), 1);
    EXPECT_TRUE(filesIn(folder).isEmpty());
}

// Regression: the second batch of a second with the same count replaced the first one's log.
TEST(RenameLog, NeverReplacesALogOfTheSameSecondAndCount)
{
    test::TempTree tree;
    QStringList paths;
    for (const char* name : {"first", "second", "third"}) {
        RenameLog log;
        ASSERT_TRUE(log.create(tree.root(), QStringLiteral("FILES"), batchStart));
        logRename(log, QStringLiteral("/d/") + QLatin1String(name), QStringLiteral("/d/1"));
        paths.append(log.finish());
    }
    EXPECT_EQ(paths, QStringList({tree.path(QStringLiteral("Log 15-11-2026 09-05-07-1.xml")),
                         tree.path(QStringLiteral("Log 15-11-2026 09-05-08-1.xml")),
                         tree.path(QStringLiteral("Log 15-11-2026 09-05-09-1.xml"))}));
    for (qsizetype i = 0; i < paths.size(); ++i)
        EXPECT_EQ(readLogEntries(paths[i])->entries.first().sourceName,
            QStringList({"first", "second", "third"})[i]);
}

// Without a log file (a missing folder; one that refuses, as it does to any user but root, here
// through the system-call table) the entries are still collected for the batch's report.
TEST(RenameLog, CollectsEntriesWithoutAUsableFile)
{
    test::TempTree tree;
    const QString locked = tree.folder(QStringLiteral("locked"));
    const struct {
        const char* name;
        QString folder;
        std::vector<test::Fault> faults;
    } rows[] = {
        {"missing folder", tree.path(QStringLiteral("no-such-folder")), {}},
        {"folder refusing writes", locked, {{test::Call::Open, 0, EACCES}}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        test::InjectedFaults faults(row.faults);
        RenameLog log;
        EXPECT_FALSE(log.create(row.folder, QStringLiteral("FILES"), batchStart));
        EXPECT_FALSE(log.hasUsableFile());
        EXPECT_FALSE(log.addLogEntry(QStringLiteral("/d/a"), QStringLiteral("/d/b")));
        log.confirmEntry();
        log.addLogEntry(QStringLiteral("/d/c"), QStringLiteral("/d/e"));
        log.dropLastEntry();
        logRename(log, QStringLiteral("/d/f"), QStringLiteral("/d/g"));
        EXPECT_EQ(log.renamedCount(), 2);
        ASSERT_EQ(log.entries().size(), 2);
        EXPECT_EQ(log.entries()[1], RenameLogEntry::fromPaths(QStringLiteral("/d/f"), QStringLiteral("/d/g")));
        EXPECT_TRUE(log.finish().isEmpty());
        EXPECT_TRUE(log.finishError().isEmpty());
    }
    EXPECT_TRUE(filesIn(tree.root()).isEmpty() && filesIn(locked).isEmpty());
}

TEST(DeleteLogFile, RemovesAFileAndReportsAMissingOne)
{
    test::TempTree tree;
    const QString path = tree.file(QStringLiteral("Log 01-01-2026 00-00-00-1.xml"), "x");
    EXPECT_TRUE(deleteLogFile(path));
    EXPECT_FALSE(tree.exists(QStringLiteral("Log 01-01-2026 00-00-00-1.xml")));
    EXPECT_FALSE(deleteLogFile(path));
}

}  // namespace
