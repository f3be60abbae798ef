#include "core/log/LogListing.h"
#include "LogFixtures.h"
#include "core/log/LogFileName.h"
#include "core/formats/VersionStamp.h"

#include <gtest/gtest.h>

using namespace tavrin;

namespace {

const QString major = appVersion().section(QLatin1Char('.'), 0, 0);

struct VersionRow {
    std::optional<QString> fileVersion;
    QString applicationVersion;
    bool matches;
};

TEST(IsFileVersionMatch, ComparesTheTextsBeforeTheFirstDot)
{
    const VersionRow rows[] = {
        { QStringLiteral("2.1"), QStringLiteral("2.5"), true },
        { QStringLiteral("2"), QStringLiteral("2.5"), true },
        { QStringLiteral("2.1"), QStringLiteral("3.0"), false },
        // Compared as texts, not numbers.
        { QStringLiteral("30.0"), QStringLiteral("3.0"), false },
        { QStringLiteral("03.0"), QStringLiteral("3.0"), false },
        { QString(), QStringLiteral("3.0"), false },
        { QStringLiteral(".3"), QStringLiteral("3.0"), false },
        { std::nullopt, QStringLiteral("3.0"), false },
    };
    for (const VersionRow& row : rows)
        EXPECT_EQ(isFileVersionMatch(row.fileVersion, row.applicationVersion), row.matches)
            << row.fileVersion.value_or(QStringLiteral("<none>")).toStdString() << " in "
            << row.applicationVersion.toStdString();
    EXPECT_TRUE(isFileVersionMatch(major + QStringLiteral(".99")));
    EXPECT_FALSE(isFileVersionMatch(test::otherMajorVersion()));
}

struct StampRow {
    const char* content;
    std::optional<QString> version;
};

TEST(AppVersionInPlist, ReadsTheRootsStamp)
{
    const StampRow rows[] = {
        { "<?xml version=\"1.0\"?>\n<files appversion=\"3.2.1\" type=\"FILES\"></files>",
            QStringLiteral("3.2.1") },
        { "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST "
          "1.0//EN\" "
          "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n<plist version=\"1.0\" "
          "appversion=\"2.0\"><array/></plist>",
            QStringLiteral("2.0") },
        // A killed batch's log, cut short after its first entry, still shows its stamp.
        { "<files appversion=\"3.0.0\" type=\"FILES\">\n    <file srclocation=\"/a\"",
            QStringLiteral("3.0.0") },
        { "<files appversion=\"\"/>", QString() },
        { "<files type=\"FILES\"/>", std::nullopt },
        { "not xml at all", std::nullopt },
        { "", std::nullopt },
    };
    test::TempTree tree;
    for (const StampRow& row : rows) {
        const QString path = tree.file(QStringLiteral("stamped.xml"), row.content);
        EXPECT_EQ(appVersionInPlist(path), row.version) << row.content;
    }
    EXPECT_EQ(appVersionInPlist(tree.path(QStringLiteral("missing.xml"))), std::nullopt);
}

struct NameRow {
    const char* name;
    std::optional<int> count;
    bool interim;
};

TEST(LogFileName, SixDashPiecesWithTheCountLast)
{
    const NameRow rows[] = {
        { "Log 15-11-2026 09-05-07-12.xml", 12, false },
        { "Log 15-11-2026 09-05-07-0.XML", 0, false },
        // The count is read as option texts are.
        { "Log 15-11-2026 09-05-07-7 copy.xml", 7, false },
        { "Log 15-11-2026 09-05-07-x.xml", 0, false },
        { "Log 15-11-2026 09-05-07-#.xml", std::nullopt, true },
        { "Log 15-11-2026 09-05-07.xml", std::nullopt, false },
        { "Log 15-11-2026 09-05-07-1-2.xml", std::nullopt, false },
        { "Log 15-11-2026 09-05-07-12.txt", std::nullopt, false },
        { "Log 15-11-2026 09-05-07-12", std::nullopt, false },
    };
    for (const NameRow& row : rows) {
        EXPECT_EQ(logfilename::countFromFileName(QString::fromUtf8(row.name)), row.count) << row.name;
        EXPECT_EQ(logfilename::isInterimFileName(QString::fromUtf8(row.name)), row.interim) << row.name;
    }
}

TEST(LogFileName, AFinishedNameMovesItsTimeOnToStayFree)
{
    const QString interim = QStringLiteral("Log 31-12-2026 23-59-59-#.xml");
    EXPECT_EQ(logfilename::finishedFileName(interim, 4), QStringLiteral("Log 31-12-2026 23-59-59-4.xml"));
    EXPECT_EQ(logfilename::finishedFileName(interim, 4, 2), QStringLiteral("Log 01-01-2027 00-00-01-4.xml"));
    EXPECT_EQ(logfilename::countFromFileName(logfilename::finishedFileName(interim, 4, 2)), 4);
    // A name without a readable time keeps its name or nothing: it is never made up.
    EXPECT_EQ(logfilename::finishedFileName(QStringLiteral("Log a-b-c-d-e-#.xml"), 1),
        QStringLiteral("Log a-b-c-d-e-1.xml"));
    EXPECT_EQ(logfilename::finishedFileName(QStringLiteral("Log a-b-c-d-e-#.xml"), 1, 1), QString());
    EXPECT_EQ(logfilename::finishedFileName(QStringLiteral("Log 15-11-2026 09-05-07-3.xml"), 1), QString());
}

TEST(LoadUserLogFiles, ListsOnlyFinishedLogsOfThisMajorVersion)
{
    test::TempTree tree;
    const RenameLogEntry entry = RenameLogEntry::fromPaths(QStringLiteral("/d/a"), QStringLiteral("/d/b"));
    const QString logs = tree.folder(QStringLiteral("logs"));
    const QString listed
        = test::writeLog(tree, QStringLiteral("logs/Log 15-11-2026 09-05-07-12.xml"), { entry });
    test::writeLog(
        tree, QStringLiteral("logs/Log 16-11-2026 10-00-00-1.XML"), { entry }, major + QStringLiteral(".7"));
    test::writeLog(tree, QStringLiteral("logs/Log 15-11-2026 09-05-3.xml"), { entry });
    test::writeLog(tree, QStringLiteral("logs/Log 15-11-2026 09-05-08-#.xml"), { entry });
    test::writeLog(
        tree, QStringLiteral("logs/Log 15-11-2026 09-05-09-1.xml"), { entry }, test::otherMajorVersion());
    test::writeLog(tree, QStringLiteral("logs/Log 15-11-2026 09-05-10-1.txt"), { entry });
    tree.file(QStringLiteral("logs/Log 15-11-2026 09-05-11-1.xml"), "not a log");
    tree.folder(QStringLiteral("logs/Log 15-11-2026 09-05-12-1.xml"));

    const QList<LogFileRecord> records = loadUserLogFiles(logs);
    ASSERT_EQ(records.size(), 2);
    QStringList names;
    for (const LogFileRecord& record : records)
        names << record.logFileName;
    EXPECT_TRUE(names.contains(QStringLiteral("Log 16-11-2026 10-00-00-1.XML")))
        << names.join(QLatin1Char(',')).toStdString();
    const LogFileRecord& record = records[names.indexOf(QStringLiteral("Log 15-11-2026 09-05-07-12.xml"))];
    // The count comes from the name, not from the entries.
    EXPECT_EQ(record.filesCount, 12);
    EXPECT_EQ(record.path, listed);
    EXPECT_LE(qAbs(record.dateCreated.secsTo(QDateTime::currentDateTime())), 60);
    EXPECT_TRUE(loadUserLogFiles(tree.path(QStringLiteral("no such folder"))).isEmpty());
}

TEST(SortNewestFirst, OrdersByCreationThenByNameDescending)
{
    const QDateTime noon(QDate(2026, 11, 15), QTime(12, 0));
    QList<LogFileRecord> records {
        { QStringLiteral("a"), noon, 1, QString() },
        { QStringLiteral("b"), noon.addSecs(-1), 2, QString() },
        { QStringLiteral("c"), noon.addMSecs(1), 3, QString() },
        { QStringLiteral("d"), noon, 4, QString() },
    };
    sortNewestFirst(records);
    QStringList order;
    for (const LogFileRecord& record : records)
        order << record.logFileName;
    EXPECT_EQ(order,
        (QStringList { QStringLiteral("c"), QStringLiteral("d"), QStringLiteral("a"), QStringLiteral("b") }));
}

}  // namespace
