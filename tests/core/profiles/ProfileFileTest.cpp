#include "core/formats/VersionStamp.h"
#include "core/profiles/ProfileFile.h"
#include "core/profiles/Settings.h"
#include "core/profiles/SettingsRecord.h"
#include "core/formats/KeyedArchive.h"
#include "PlistTestSupport.h"
#include "support/TempTree.h"

#include <QFile>
#include <QTimeZone>
#include <gtest/gtest.h>

using namespace tavrin;
using tavrin::test::TempTree;
using tavrin::test::differentValue;

namespace {

QByteArray entry(const char* key, const char* value)
{
    return test::stringEntry(key, value);
}

}  // namespace

TEST(ProfileFile, SavedProfileLoadsBackEveryOption)
{
    TempTree tree;
    Settings saved;
    for (const QString& key : Settings::optionKeys())
        ASSERT_TRUE(saved.setOptionFromString(key, differentValue(saved, key))) << qPrintable(key);
    const QString path = tree.path(QStringLiteral("all options.tnprofile"));
    QString error;
    ASSERT_TRUE(saveProfileFile(saved, path, &error)) << qPrintable(error);

    Settings loaded;
    ASSERT_EQ(loadProfileFile(loaded, path, &error), ProfileLoadResult::Loaded) << qPrintable(error);
    for (const QString& key : Settings::optionKeys())
        EXPECT_EQ(loaded.optionToString(key), saved.optionToString(key)) << qPrintable(key);
}

TEST(ProfileFile, IsAnXmlPropertyListOfTheRecordInOrder)
{
    TempTree tree;
    Settings settings;
    settings.chooseFilesOrFolders(1);
    settings.setPhotoExtensions({QStringLiteral(".JPG"), QStringLiteral(".heic")});
    settings.setDateTimeCustomDate(QDateTime(QDate(2021, 7, 4), QTime(9, 30, 15), QTimeZone(2 * 3600)));
    const QString path = tree.path(QStringLiteral("layout.tnprofile"));
    ASSERT_TRUE(saveProfileFile(settings, path));

    const test::PlistDocument document = test::readPlistDocument(path);
    ASSERT_TRUE(document.wellFormed);
    EXPECT_EQ(document.publicId, QStringLiteral("-//Apple//DTD PLIST 1.0//EN"));
    QStringList keys;
    QHash<QString, test::PlistEntry> byKey;
    for (const test::PlistEntry& item : document.entries) {
        keys.append(item.key);
        byKey.insert(item.key, item);
    }
    ASSERT_EQ(keys, settingsRecordKeys());
    EXPECT_EQ(byKey.value(QStringLiteral("appVersion")).text, appVersion());
    EXPECT_EQ(byKey.value(QStringLiteral("isFiles")).text, QStringLiteral("0"));
    EXPECT_EQ(byKey.value(QStringLiteral("isFolders")).text, QStringLiteral("1"));
    EXPECT_EQ(byKey.value(QStringLiteral("fileFolderIndex")).text, QStringLiteral("1"));
    EXPECT_EQ(byKey.value(QStringLiteral("dateTimeCustomDate")).text, QStringLiteral("2021-07-04 07:30:15 +0000"));
    for (const char* list : {"photoMetaDataList", "id3RenamingTagsList", "photoExtensions", "id3Extensions"})
        EXPECT_EQ(byKey.value(QLatin1String(list)).element, QStringLiteral("data")) << list;
    const QByteArray archive = QByteArray::fromBase64(byKey.value(QStringLiteral("photoExtensions")).text.toLatin1());
    EXPECT_EQ(keyedUnarchive(archive), QVariant(QVariantList {QStringLiteral(".JPG"), QStringLiteral(".heic")}));
}

TEST(ProfileFile, VersionAndValuesDecideWhatLoads)
{
    const QByteArray current = entry("appVersion", "3.0.0");
    const struct {
        const char* name;
        QByteArray body;
        ProfileLoadResult result;
        const char* selectedTab;  // after loading; it is 0 before
        const char* pathComponentsSuffix;  // an option after pathComponentsLevelNo in the record
    } rows[] = {
        {"older major version", entry("appVersion", "2.3") + entry("selectedTab", "4"),
         ProfileLoadResult::Incompatible, "0", ""},
        {"no version", entry("selectedTab", "4"), ProfileLoadResult::Incompatible, "0", ""},
        {"same major version, a key of a newer version",
         entry("appVersion", "3.9") + entry("selectedTab", "4") + entry("optionOfVersion39", "x")
             + entry("pathComponentsSuffix", "a"),
         ProfileLoadResult::Loaded, "4", "a"},
        {"malformed integer stops after the options before it",
         current + entry("selectedTab", "4") + entry("pathComponentsLevelNo", "two") + entry("pathComponentsSuffix", "a"),
         ProfileLoadResult::Failed, "4", ""},
        {"list that is not an archive",
         current + entry("selectedTab", "4") + "<key>photoExtensions</key><data>AAEC</data>\n",
         ProfileLoadResult::Failed, "4", ""},
        {"list archive of something else than texts",
         current + "<key>id3Extensions</key><data>" + keyedArchive(QVariantList {1, 2}).toBase64() + "</data>\n",
         ProfileLoadResult::Failed, "0", ""},
    };
    for (const auto& row : rows) {
        TempTree tree;
        const QString path = tree.file(QStringLiteral("p.tnprofile"), test::plistWith(row.body));
        Settings settings;
        QString error;
        EXPECT_EQ(loadProfileFile(settings, path, &error), row.result) << row.name;
        EXPECT_EQ(error.isEmpty(), row.result == ProfileLoadResult::Loaded) << row.name;
        EXPECT_EQ(settings.optionToString(QStringLiteral("selectedTab")), QLatin1String(row.selectedTab)) << row.name;
        EXPECT_EQ(settings.pathComponentsSuffix(), QLatin1String(row.pathComponentsSuffix)) << row.name;
    }
}

TEST(ProfileFile, UnreadableFilesFailWithAMessage)
{
    TempTree tree;
    const QString paths[] = {
        tree.path(QStringLiteral("missing.tnprofile")),
        tree.file(QStringLiteral("empty.tnprofile")),
        tree.file(QStringLiteral("garbage.tnprofile"), QByteArray("bplist00\x01\x02garbage", 17)),
        tree.file(QStringLiteral("array.tnprofile"),
                  "<plist version=\"1.0\"><array><string>appVersion</string></array></plist>"),
    };
    for (const QString& path : paths) {
        Settings settings;
        QString error;
        EXPECT_EQ(loadProfileFile(settings, path, &error), ProfileLoadResult::Failed) << qPrintable(path);
        EXPECT_TRUE(error.contains(path)) << qPrintable(error);
    }
}

TEST(SettingsRecord, ReadsDatesWithAnyOffsetAndInIsoForm)
{
    const struct {
        const char* text;
        QDateTime instant;
    } rows[] = {
        {"2020-01-02 03:04:05 +0000", QDateTime(QDate(2020, 1, 2), QTime(3, 4, 5), QTimeZone::utc())},
        {"2020-01-02 03:04:05 +0130", QDateTime(QDate(2020, 1, 2), QTime(1, 34, 5), QTimeZone::utc())},
        {"2020-01-02 03:04:05 -0800", QDateTime(QDate(2020, 1, 2), QTime(11, 4, 5), QTimeZone::utc())},
        {"2020-01-02T03:04:05Z", QDateTime(QDate(2020, 1, 2), QTime(3, 4, 5), QTimeZone::utc())},
    };
    for (const auto& row : rows) {
        Settings settings;
        QString error;
        ASSERT_TRUE(setSettings(settings, {{QStringLiteral("dateTimeCustomDate"), QString::fromLatin1(row.text)}}, &error))
            << row.text << ": " << qPrintable(error);
        EXPECT_EQ(settings.dateTimeCustomDate().toUTC(), row.instant) << row.text;
    }
    Settings settings;
    EXPECT_FALSE(setSettings(settings, {{QStringLiteral("dateTimeCustomDate"), QStringLiteral("2020-13-02 03:04:05 +0000")}}));
}
