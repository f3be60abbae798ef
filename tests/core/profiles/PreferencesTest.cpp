#include "core/profiles/Preferences.h"
#include "core/text/LocalizedStrings.h"
#include "reliability/HostileFiles.h"
#include "PlistTestSupport.h"
#include "support/TempTree.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <functional>
#include <gtest/gtest.h>

#include <sys/stat.h>

using namespace tavrin;
using tavrin::test::TempTree;
using tavrin::test::plistWith;

namespace {

const QString kSupportRelative = QStringLiteral("data/Palisade Soft/Tavrin3");

// Every test gets a data folder of its own, so each one is a first start.
class PreferencesTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        m_savedDataHome = qgetenv("XDG_DATA_HOME");
        qputenv("XDG_DATA_HOME", QFile::encodeName(m_tree.folder(QStringLiteral("data"))));
    }

    void TearDown() override { qputenv("XDG_DATA_HOME", m_savedDataHome); }

    QString support() const { return m_tree.path(kSupportRelative); }
    QString preferencesFile() const { return m_tree.path(kSupportRelative + QStringLiteral("/preferences.plist")); }

    TempTree m_tree;

private:
    QByteArray m_savedDataHome;
};

TEST_F(PreferencesTest, FirstStartMakesTheFoldersAndWritesTheDefaultPreferences)
{
    EXPECT_EQ(getAppPath(), support());
    EXPECT_EQ(preferencesFilePath(), preferencesFile());
    const ApplicationSupport start = prepareApplicationSupport();
    ASSERT_TRUE(start.isReady()) << qPrintable(start.errorMessage);
    EXPECT_TRUE(start.errorTitle.isEmpty());
    EXPECT_EQ(start.preferences, Preferences::defaults());
    for (const char* folder : {"Logs", "Profiles", "Rules"})
        EXPECT_TRUE(QFileInfo(support() + QLatin1Char('/') + QLatin1String(folder)).isDir()) << folder;

    const test::PlistDocument plist = test::readPlistDocument(preferencesFile());
    ASSERT_TRUE(plist.wellFormed);
    EXPECT_EQ(plist.dtdName, QStringLiteral("plist"));
    EXPECT_EQ(plist.publicId, QStringLiteral("-//Apple//DTD PLIST 1.0//EN"));
    EXPECT_EQ(plist.systemId, QStringLiteral("http://www.apple.com/DTDs/PropertyList-1.0.dtd"));
    EXPECT_EQ(plist.rootVersion, QStringLiteral("1.0"));
    QStringList entries;
    for (const test::PlistEntry& entry : plist.entries)
        entries << entry.key + u'=' + entry.element + u':' + entry.text;
    entries.sort();
    EXPECT_EQ(entries, (QStringList{QStringLiteral("automaticSaveCurrProfile=string:0"),
                                    QStringLiteral("defaultLogFolderPath=string:") + support() + QStringLiteral("/Logs"),
                                    QStringLiteral("defaultProfileFolderPath=string:") + support() + QStringLiteral("/Profiles"),
                                    QStringLiteral("defaultRulesFolderPath=string:") + support() + QStringLiteral("/Rules")}));
}

TEST_F(PreferencesTest, SavedPreferencesAreReadBackAndKeptByTheNextStart)
{
    ASSERT_TRUE(prepareApplicationSupport().isReady());
    Preferences chosen;
    chosen.defaultRulesFolderPath = QStringLiteral("/srv/règles & <co>");
    chosen.defaultProfileFolderPath = QStringLiteral("/home/ana/Profils");
    chosen.defaultLogFolderPath = QStringLiteral("/var/tmp/logs \"x\"");
    chosen.automaticSaveCurrProfile = true;
    QString error;
    ASSERT_TRUE(savePreferences(chosen, &error)) << qPrintable(error);
    EXPECT_EQ(loadPreferences(), chosen);
    const test::PlistDocument plist = test::readPlistDocument(preferencesFile());
    ASSERT_TRUE(plist.wellFormed);
    EXPECT_EQ(plist.text(QStringLiteral("automaticSaveCurrProfile")), QStringLiteral("1"));
    EXPECT_EQ(plist.text(QStringLiteral("defaultRulesFolderPath")), chosen.defaultRulesFolderPath);

    chosen.automaticSaveCurrProfile = false;
    ASSERT_TRUE(savePreferences(chosen));
    EXPECT_EQ(prepareApplicationSupport().preferences, chosen);
}

struct FlagRow {
    const char* value;
    bool expected;
};

TEST_F(PreferencesTest, KeysMissingFromTheFileKeepTheirDefaultsAndTheFlagReadsAsABoolean)
{
    const FlagRow rows[] = {
        {"<string>1</string>", true}, {"<string>0</string>", false}, {"<string>2</string>", true},
        {"<string>no</string>", false}, {"<true/>", true}, {"<false/>", false},
        {"<integer>1</integer>", true}, {"<integer>0</integer>", false},
    };
    for (const FlagRow& row : rows) {
        m_tree.file(kSupportRelative + QStringLiteral("/preferences.plist"),
                    plistWith("<key>defaultLogFolderPath</key><string>/elsewhere/Logs</string>\n"
                              "<key>automaticSaveCurrProfile</key>"
                              + QByteArray(row.value) + "\n"));
        Preferences expected = Preferences::defaults();
        expected.defaultLogFolderPath = QStringLiteral("/elsewhere/Logs");
        expected.automaticSaveCurrProfile = row.expected;
        QString error;
        EXPECT_EQ(loadPreferences(&error), expected) << row.value;
        EXPECT_TRUE(error.isEmpty()) << qPrintable(error);
    }
}

struct DamagedRow {
    const char* name;
    QByteArray content;
};

TEST_F(PreferencesTest, ADamagedFileGivesTheDefaultsAndIsLeftAsItIs)
{
    const DamagedRow rows[] = {
        {"empty", QByteArray()},
        {"text", QByteArray("defaultLogFolderPath = /x\n")},
        {"truncated", plistWith("<key>defaultLogFolderPath</key><string>/x</string>\n").left(150)},
        {"unclosed tags", QByteArray("<plist version=\"1.0\"><dict><key>defaultLogFolderPath</key><string>/x")},
        {"array", QByteArray("<plist version=\"1.0\"><array><string>/x</string></array></plist>")},
        {"binary header only", QByteArray("bplist00\x01\x02\x03", 11)},
        {"zero bytes", QByteArray(64, '\0')},
        // Regression: libplist recursed once per level and crashed every start.
        {"100,000 nested binary arrays", test::deepBinaryPlist(100000)},
        {"100,000 nested XML arrays", test::deepXmlPlist(100000)},
        {"arrays holding each other", test::cyclicBinaryPlist()},
        {"billion laughs", test::billionLaughsPlist()},
        {"external entity", test::externalEntityPlist(QFile::encodeName(m_tree.file(QStringLiteral("secret"), "/x")))},
        {"larger than any preferences", plistWith("<key>k</key><string>" + QByteArray(2 << 20, 'x') + "</string>\n")},
    };
    for (const DamagedRow& row : rows) {
        m_tree.file(kSupportRelative + QStringLiteral("/preferences.plist"), row.content);
        QString error;
        EXPECT_EQ(loadPreferences(&error), Preferences::defaults()) << row.name;
        EXPECT_EQ(error, localized("PREFERENCESREADFAILED").arg(preferencesFile())) << row.name;
        EXPECT_EQ(m_tree.read(kSupportRelative + QStringLiteral("/preferences.plist")), row.content) << row.name;
    }
}

// Regression: a FIFO hung every command, a link to /dev/zero grew the program until it aborted.
TEST_F(PreferencesTest, ASpecialFileIsNeverReadOrWaitedFor)
{
    const QString path = preferencesFile();
    const std::function<void()> makers[] = {
        [&] { ::mkfifo(QFile::encodeName(path).constData(), 0644); },
        [&] { QFile::link(QStringLiteral("/dev/zero"), path); },
        [&] { QDir().mkpath(path); },
    };
    for (const auto& make : makers) {
        QDir().mkpath(support());
        make();
        QString error;
        EXPECT_EQ(loadPreferences(&error), Preferences::defaults());
        EXPECT_EQ(error, localized("PREFERENCESREADFAILED").arg(path));
        QFile::remove(path) || QDir(path).removeRecursively();
    }
}

// Regression: an empty log folder path put the logs in the current folder, where undo from
// anywhere else never found them.
TEST_F(PreferencesTest, AFolderPathThatCannotServeFallsBackToTheDefault)
{
    const QString notAFolder = m_tree.file(QStringLiteral("plain file"), "x");
    const QString rows[] = {QString(), QStringLiteral("relative/logs"), notAFolder};
    for (const QString& folder : rows) {
        m_tree.file(kSupportRelative + QStringLiteral("/preferences.plist"),
            plistWith("<key>defaultLogFolderPath</key><string>" + folder.toUtf8() + "</string>\n"
                      "<key>defaultRulesFolderPath</key><string>/elsewhere/rules</string>\n"));
        QString error;
        const Preferences read = loadPreferences(&error);
        EXPECT_EQ(read.defaultLogFolderPath, Preferences::defaults().defaultLogFolderPath) << qPrintable(folder);
        EXPECT_EQ(read.defaultRulesFolderPath, QStringLiteral("/elsewhere/rules")) << qPrintable(folder);
        EXPECT_EQ(error, localized("PREFERENCESFOLDERFALLBACK").arg(folder, read.defaultLogFolderPath));
    }
}

TEST_F(PreferencesTest, AnExistingFolderIsKeptAndAFileWhereOneBelongsIsReported)
{
    const QString marker = m_tree.file(kSupportRelative + QStringLiteral("/Rules/kept.tnrule"), "x");
    QString error;
    EXPECT_TRUE(createApplicationUsersFolder(QStringLiteral("Rules"), &error));
    EXPECT_TRUE(error.isEmpty());
    EXPECT_TRUE(QFile::exists(marker));

    const QString blocker = m_tree.file(kSupportRelative + QStringLiteral("/Profiles"), "not a folder");
    EXPECT_FALSE(createApplicationUsersFolder(QStringLiteral("Profiles"), &error));
    EXPECT_TRUE(error.contains(blocker)) << qPrintable(error);
    const ApplicationSupport start = prepareApplicationSupport();
    EXPECT_FALSE(start.isReady());
    EXPECT_EQ(start.errorTitle, localized("APPLICATIONINITTITLE"));
    EXPECT_EQ(start.errorMessage, localized("APPLICATIONCREATEFOLDERFAILED").arg(error));
    EXPECT_EQ(m_tree.read(kSupportRelative + QStringLiteral("/Profiles")), QByteArray("not a folder"));
}

TEST_F(PreferencesTest, ASupportFolderThatCannotBeMadeStopsTheStart)
{
    // A file where the maker's folder belongs blocks everything below it, for any user.
    m_tree.file(QStringLiteral("data/Palisade Soft"), "blocker");
    const ApplicationSupport start = prepareApplicationSupport();
    ASSERT_FALSE(start.isReady());
    EXPECT_EQ(start.errorTitle, localized("APPLICATIONINITTITLE"));
    EXPECT_NE(start.errorTitle, QStringLiteral("APPLICATIONINITTITLE")) << "the English table lacks the key";
    EXPECT_TRUE(start.errorMessage.contains(support() + QStringLiteral("/Logs"))) << qPrintable(start.errorMessage);

    QString error;
    EXPECT_FALSE(savePreferences(Preferences::defaults(), &error));
    EXPECT_TRUE(error.contains(preferencesFile())) << qPrintable(error);
}

}  // namespace
