#include "core/profiles/Settings.h"
#include "core/profiles/Tabs.h"
#include "core/text/LocalizedStrings.h"
#include "PlistTestSupport.h"

#include <QMetaProperty>
#include <QSignalSpy>
#include <gtest/gtest.h>

#include <QFile>
#include <memory>
#include <optional>
#include <vector>

using namespace tavrin;
using tavrin::test::differentValue;

namespace {

struct OptionRow {
    QByteArray key;
    char type;                       // b boolean, i integer, t text, l list, d date
    std::optional<QString> defaultText;  // none where the default is not fixed
};

// The settings record as checked in beside this test: a change to the record's keys, their
// order, types or the empty profile's values shows up as a difference from this file.
const std::vector<OptionRow>& recordRows()
{
    static const std::vector<OptionRow> rows = [] {
        std::vector<OptionRow> read;
        QFile file(QStringLiteral(TAVRIN_SETTINGS_RECORD));
        if (!file.open(QIODevice::ReadOnly))
            return read;
        for (const QByteArray& line : file.readAll().split('\n')) {
            if (line.isEmpty() || line.startsWith('#'))
                continue;
            const QList<QByteArray> fields = line.split('\t');
            const QString value = QString::fromUtf8(fields.value(2));
            read.push_back({fields.value(0), fields.value(1).isEmpty() ? '?' : fields.value(1).at(0),
                            value == QLatin1String("-") ? std::nullopt : std::optional<QString>(value)});
        }
        return read;
    }();
    return rows;
}

QString text(const char* utf8)
{
    return QString::fromUtf8(utf8);
}

QMetaType metaTypeFor(char type)
{
    switch (type) {
    case 'b':
        return QMetaType::fromType<bool>();
    case 'i':
        return QMetaType::fromType<int>();
    case 'l':
        return QMetaType::fromType<QStringList>();
    case 'd':
        return QMetaType::fromType<QDateTime>();
    default:
        return QMetaType::fromType<QString>();
    }
}

QMetaProperty propertyOf(const QString& key)
{
    const QMetaObject& meta = Settings::staticMetaObject;
    return meta.property(meta.indexOfProperty(key.toUtf8().constData()));
}

// Every option in its text form, to compare whole settings.
QMap<QString, QString> snapshot(const Settings& settings)
{
    QMap<QString, QString> values;
    for (const QString& key : Settings::optionKeys())
        values.insert(key, settings.optionToString(key));
    return values;
}

TEST(SettingsRecord, HasEveryKeyOfTheRecordInItsOrderAndNothingElse)
{
    QStringList expected;
    for (const OptionRow& row : recordRows())
        expected.append(QString::fromUtf8(row.key));
    EXPECT_EQ(Settings::optionKeys(), expected);
    EXPECT_FALSE(Settings::hasOption(QStringLiteral("objectName")));
}

TEST(SettingsRecord, EachOptionHasItsTypeAndAChangeSignal)
{
    for (const OptionRow& row : recordRows()) {
        const QMetaProperty property = propertyOf(QString::fromUtf8(row.key));
        ASSERT_TRUE(property.isValid()) << row.key.constData();
        EXPECT_EQ(property.metaType(), metaTypeFor(row.type)) << row.key.constData();
        EXPECT_TRUE(property.hasNotifySignal()) << row.key.constData();
        EXPECT_EQ(property.notifySignal().name(), row.key + "Changed") << row.key.constData();
        EXPECT_TRUE(property.isWritable()) << row.key.constData();
    }
}

TEST(SettingsDefaults, NewSettingsHoldTheEmptyProfile)
{
    const Settings settings;
    for (const OptionRow& row : recordRows()) {
        if (row.defaultText) {
            EXPECT_EQ(settings.optionToString(QString::fromUtf8(row.key)), *row.defaultText) << row.key.constData();
        }
    }
}

TEST(SettingsDefaults, CustomDateIsNowToTheSecond)
{
    const QDateTime before = QDateTime::currentDateTime().addSecs(-1);
    const Settings settings;
    const QDateTime after = QDateTime::currentDateTime().addSecs(1);
    EXPECT_TRUE(settings.dateTimeCustomDate().isValid());
    EXPECT_GE(settings.dateTimeCustomDate(), before);
    EXPECT_LE(settings.dateTimeCustomDate(), after);
    EXPECT_EQ(settings.dateTimeCustomDate().time().msec(), 0);
}

TEST(SettingsDefaults, ResetRestoresEveryOptionAndStartValuesLeaveOutSubFolders)
{
    Settings settings;
    const QMap<QString, QString> defaults = snapshot(settings);
    for (const QString& key : Settings::optionKeys())
        ASSERT_TRUE(settings.setOptionFromString(key, differentValue(settings, key))) << qPrintable(key);
    settings.resetToDefaults();
    QMap<QString, QString> afterReset = snapshot(settings);
    afterReset.remove(QStringLiteral("dateTimeCustomDate"));
    QMap<QString, QString> expected = defaults;
    expected.remove(QStringLiteral("dateTimeCustomDate"));
    EXPECT_EQ(afterReset, expected);

    settings.resetToStartValues();
    EXPECT_FALSE(settings.isIncludeSubFolders());
    QMap<QString, QString> startValues = snapshot(settings);
    startValues.remove(QStringLiteral("dateTimeCustomDate"));
    expected.insert(QStringLiteral("isIncludeSubFolders"), QStringLiteral("0"));
    EXPECT_EQ(startValues, expected);
}

struct ParseRow {
    const char* key;
    const char* input;
    bool accepted;
    const char* stored;  // the option's text form afterwards, when accepted
};

TEST(SettingsFromString, SetsEachTypeFromItsTextForm)
{
    const ParseRow rows[] = {
        // booleans: "%d", with blanks, or true/false
        {"isReplaceRemoveCaseSensitive", "1", true, "1"},
        {"isFiles", "0", true, "0"},
        {"isAlphaNumericSufix", " 1 ", true, "1"},
        {"hasDateFormat", "FALSE", true, "0"},
        {"isGeneralRemoveSpaces", "true", true, "1"},
        {"isAlphaNumericPrefix", "yes", false, nullptr},
        {"isAlphaNumericPrefix", "", false, nullptr},
        {"isAlphaNumericPrefix", "1x", false, nullptr},
        // indexes
        {"generalOptionIndex", "7", true, "7"},
        {"replaceRemovePositionDirection", "-1", true, "-1"},
        {"selectedTab", " 3", true, "3"},
        {"generalFileNameCase", "abc", false, nullptr},
        {"generalFileNameCase", "1.5", false, nullptr},
        {"generalFileNameCase", "", false, nullptr},
        {"generalFileNameCase", "99999999999", false, nullptr},
        // texts and numbers typed as text are kept exactly
        {"replaceRemoveThis", " a/b: ", true, " a/b: "},
        {"replaceRemoveOccuranceCount", "-1", true, "-1"},
        {"alphaNumericIncrementBy", "12ab", true, "12ab"},
        {"renameFile", "/tmp/list.txt", true, "/tmp/list.txt"},
        {"insertDeleteInsertAtPostionDirection", "1", true, "1"},
        // lists: comma-separated, blanks and empty items dropped
        {"photoExtensions", ".JPG, .PNG", true, ".JPG,.PNG"},
        {"id3Extensions", "", true, ""},
        {"id3RenamingTagsList", ",<Artist>,,<Title>,", true, "<Artist>,<Title>"},
        // the custom date in ISO 8601
        {"dateTimeCustomDate", "2024-03-05T14:30:00", true, "2024-03-05T14:30:00"},
        {"dateTimeCustomDate", "2024-13-05T14:30:00", false, nullptr},
        {"dateTimeCustomDate", "yesterday", false, nullptr},
    };
    for (const ParseRow& row : rows) {
        Settings settings;
        const QString key = text(row.key);
        const QString before = settings.optionToString(key);
        QString error;
        EXPECT_EQ(settings.setOptionFromString(key, text(row.input), &error), row.accepted)
            << row.key << " = '" << row.input << "'";
        if (row.accepted) {
            EXPECT_TRUE(error.isEmpty()) << row.key;
            EXPECT_EQ(settings.optionToString(key), text(row.stored)) << row.key << " = '" << row.input << "'";
        } else {
            EXPECT_EQ(settings.optionToString(key), before) << row.key << " changed on a refused value";
            EXPECT_TRUE(error.contains(key)) << qPrintable(error);
            EXPECT_TRUE(error.contains(text(row.input))) << qPrintable(error);
        }
    }
}

TEST(SettingsFromString, RefusesKeysThatNameNoOption)
{
    // The record's own misspellings are the keys; the dictionary spellings are not.
    const char* keys[] = {"replaceRemoveOccurrenceCount", "isAlphaNumericSuffix", "objectName",
                          "appVersion", "", "isfiles"};
    for (const char* key : keys) {
        Settings settings;
        const QMap<QString, QString> before = snapshot(settings);
        QSignalSpy changed(&settings, &Settings::settingsChanged);
        QString error;
        EXPECT_FALSE(settings.setOptionFromString(text(key), QStringLiteral("1"), &error)) << key;
        EXPECT_EQ(error, localized("UNKNOWNOPTIONKEY").arg(text(key)));
        EXPECT_NE(error, QStringLiteral("UNKNOWNOPTIONKEY")) << "the English table lacks the key";
        EXPECT_EQ(snapshot(settings), before);
        EXPECT_EQ(changed.count(), 0);
        EXPECT_TRUE(settings.optionToString(text(key)).isNull()) << key;
    }
}

TEST(SettingsFromString, MalformedValueMessageComesFromTheStringTable)
{
    Settings settings;
    QString error;
    ASSERT_FALSE(settings.setOptionFromString(QStringLiteral("selectedTab"), QStringLiteral("two"), &error));
    EXPECT_EQ(error, localized("INVALIDOPTIONVALUE")
                         .arg(QStringLiteral("two"), QStringLiteral("selectedTab"), localized("OPTIONFORMINTEGER")));
}

TEST(SettingsFromString, EveryOptionSurvivesARoundTripThroughItsTextForm)
{
    Settings source;
    for (const QString& key : Settings::optionKeys())
        ASSERT_TRUE(source.setOptionFromString(key, differentValue(source, key))) << qPrintable(key);
    Settings copy;
    for (const QString& key : Settings::optionKeys())
        ASSERT_TRUE(copy.setOptionFromString(key, source.optionToString(key))) << qPrintable(key);
    EXPECT_EQ(snapshot(copy), snapshot(source));
    EXPECT_EQ(copy.dateTimeCustomDate(), source.dateTimeCustomDate());
    EXPECT_EQ(copy.photoExtensions(), source.photoExtensions());
}

// Spies on every option's own change signal.
class OptionSpies {
public:
    explicit OptionSpies(Settings& settings)
    {
        for (const QString& key : Settings::optionKeys()) {
            const QMetaProperty property = propertyOf(key);
            m_spies.push_back(std::make_unique<QSignalSpy>(&settings, property.notifySignal()));
            m_keys.append(key);
        }
    }

    // The keys whose signal fired, with repetitions.
    QStringList fired() const
    {
        QStringList keys;
        for (std::size_t i = 0; i < m_spies.size(); ++i)
            for (int n = 0; n < m_spies[i]->count(); ++n)
                keys.append(m_keys[qsizetype(i)]);
        return keys;
    }

    void clear()
    {
        for (const auto& spy : m_spies)
            spy->clear();
    }

private:
    std::vector<std::unique_ptr<QSignalSpy>> m_spies;
    QStringList m_keys;
};

TEST(SettingsSignals, EachOptionFiresItsOwnSignalOnceAndTheSettingsSignal)
{
    Settings settings;
    OptionSpies spies(settings);
    QSignalSpy anyChange(&settings, &Settings::settingsChanged);
    for (const QString& key : Settings::optionKeys()) {
        spies.clear();
        anyChange.clear();
        ASSERT_TRUE(settings.setOptionFromString(key, differentValue(settings, key)));
        EXPECT_EQ(spies.fired(), QStringList {key});
        EXPECT_EQ(anyChange.count(), 1) << qPrintable(key);

        spies.clear();
        anyChange.clear();
        ASSERT_TRUE(settings.setOptionFromString(key, settings.optionToString(key)));
        EXPECT_TRUE(spies.fired().isEmpty()) << "an unchanged value signalled: " << qPrintable(key);
        EXPECT_EQ(anyChange.count(), 0) << qPrintable(key);
    }
}

TEST(SettingsSignals, TypedSettersAndPropertyWritesSignalAlike)
{
    Settings settings;
    QSignalSpy own(&settings, &Settings::replaceRemoveThisChanged);
    QSignalSpy anyChange(&settings, &Settings::settingsChanged);
    settings.setReplaceRemoveThis(QStringLiteral("a"));
    settings.setProperty(Settings::replaceRemoveThisKey, QStringLiteral("b"));
    settings.setReplaceRemoveThis(QStringLiteral("b"));
    EXPECT_EQ(own.count(), 2);
    EXPECT_EQ(anyChange.count(), 2);
    EXPECT_EQ(settings.replaceRemoveThis(), QStringLiteral("b"));
}

TEST(SettingsSignals, ABatchSendsTheSettingsSignalOnceAtItsEnd)
{
    Settings settings;
    QSignalSpy anyChange(&settings, &Settings::settingsChanged);
    {
        const Settings::ChangeBatch outer(settings);
        settings.setInsertDeleteInsert(QStringLiteral("x"));
        {
            const Settings::ChangeBatch inner(settings);
            settings.setIsFolders(true);
        }
        settings.setSelectedTab(4);
        EXPECT_EQ(anyChange.count(), 0);
    }
    EXPECT_EQ(anyChange.count(), 1);

    anyChange.clear();
    {
        const Settings::ChangeBatch unchanged(settings);
        settings.setSelectedTab(4);
    }
    EXPECT_EQ(anyChange.count(), 0);
}

TEST(SettingsSignals, ResetSignalsOnlyWhatChanged)
{
    Settings settings;
    settings.setGeneralFilenameMask(QStringLiteral("000"));
    settings.setIsFolders(true);
    OptionSpies spies(settings);
    QSignalSpy anyChange(&settings, &Settings::settingsChanged);
    settings.resetToDefaults();
    QStringList fired = spies.fired();
    fired.removeAll(QStringLiteral("dateTimeCustomDate"));
    fired.sort();
    EXPECT_EQ(fired, (QStringList {QStringLiteral("generalFilenameMask"), QStringLiteral("isFolders")}));
    EXPECT_EQ(anyChange.count(), 1);
}

struct IntegerRow {
    const char* key;
    const char* value;
    int expected;
};

TEST(SettingsTypedReads, IntegerValueFollowsTheIntegerConversion)
{
    const IntegerRow rows[] = {
        {"replaceRemoveOccuranceCount", "-1", -1},     {"insertDeleteAtCharacterPositions", "12ab", 12},
        {"alphaNumericIncrementBy", "  +4", 4},        {"alphaNumericDecrementBy", "x3", 0},
        {"generalSwapPosition", "", 0},                {"dateTimeAtPositionNo", "99999999999", 2147483647},
        {"alphaNumericNumericStartWith", "- 5", 0},    {"generalFileNameCase", "3", 3},
        {"isReplaceRemoveCaseSensitive", "1", 1},      {"isFiles", "0", 0},
    };
    for (const IntegerRow& row : rows) {
        Settings settings;
        ASSERT_TRUE(settings.setOptionFromString(text(row.key), text(row.value))) << row.key;
        EXPECT_EQ(settings.integerValue(row.key), row.expected) << row.key << " = '" << row.value << "'";
        EXPECT_EQ(settings.booleanValue(row.key), row.expected != 0) << row.key;
    }
}

TEST(SettingsTypedReads, TextValueAndUnknownKeys)
{
    Settings settings;
    settings.setPrefixSuffixPrefix(QStringLiteral("IMG_"));
    EXPECT_EQ(settings.textValue(Settings::prefixSuffixPrefixKey), QStringLiteral("IMG_"));
    EXPECT_EQ(settings.textValue(Settings::isFilesKey), QStringLiteral("1"));
    EXPECT_EQ(settings.integerValue("noSuchOption"), 0);
    EXPECT_EQ(settings.integerValue("objectName"), 0);
    EXPECT_FALSE(settings.booleanValue("noSuchOption"));
}

struct RadioRow {
    const char* name;
    bool (Settings::*choose)(int);
    std::vector<const char*> indexKeys;
    // The boolean that is on for each index, in index order; nullptr where an index has none.
    std::vector<const char*> mirrors;
};

const std::vector<RadioRow>& radioRows()
{
    static const std::vector<RadioRow> rows = {
        {"files/folders", &Settings::chooseFilesOrFolders, {"fileFolderIndex"}, {"isFiles", "isFolders"}},
        {"increment/decrement",
         &Settings::chooseIncrementOrDecrement,
         {"alphaNumericIncrementDecrementIndex"},
         {"isAlphaNumericIncrement", "isAlphaNumericDecrement"}},
        {"numeric/alphabetic",
         &Settings::chooseNumericOrAlphabetic,
         {"alphaNumericNumericAlphabeticIndex"},
         {"isAlphaNumericNumeric", "isAlphaNumericAlphabetic"}},
        {"insert/delete",
         &Settings::chooseInsertOrDelete,
         {"insertDeleteIndex"},
         {"isInsertDeleteInsert", "isInsertDeleteDelete"}},
        {"insert position",
         &Settings::chooseInsertPosition,
         {"insertDeleteInsertOptionIndex"},
         {"isInsertDeleteInsertAtBeginning", "isInsertDeleteInsertAtEnd", "isInsertDeleteInsertAtPosition",
          "isInsertDeleteInsertAtBeforeText", "isInsertDeleteInsertAtAfterText"}},
        {"replace/remove",
         &Settings::chooseReplaceRemoveMode,
         {"removeReplaceIndex"},
         {"isReplaceRemoveReplace", "isReplaceRemoveRemove", "isReplaceRemoveRemoveCharacters"}},
        {"prefix/suffix mode",
         &Settings::choosePrefixSuffixMode,
         {"prefixSuffixIndex"},
         {"isPrefixSuffixString", "isPrefixSuffixDate"}},
        {"date source",
         &Settings::chooseDateTimeSource,
         {"dateTimeDateOptionIndex"},
         {nullptr, nullptr, "hasDateTimeCustomDate"}},
        {"date placement",
         &Settings::chooseDateTimePlacement,
         {"dateTimeOptionsIndex"},
         {"isDateTimeAtBeginning", "isDateTimeAtEnd", "isDateTimeAtPosition", "isDateTimeAtBeforeText",
          "isDateTimeAtAfterText"}},
        {"general option",
         &Settings::chooseGeneralOption,
         {"generalOptionIndex", "generalOptionsIndex"},
         {"isGeneralConvertFilenameCase", "isGeneralConvertExtension", "isGeneralRemoveExtension",
          "isGeneralChangeExtension", "isGeneralReverseFileName", "isGeneralRemoveSpaces",
          "isGeneralSwapFromSeperator", "isGeneralSwapFromPostion", "isGeneralRemoveAfterString",
          "isGeneralRemoveFromString", "isGeneralFilenameMask", "isGeneralConvertWindowsCompatible"}},
        {"path placement",
         &Settings::choosePathComponentsPlacement,
         {"pathComponentsOptionsIndex"},
         {"isPathComponentsAtBeginning", "isPathComponentsAtEnd", "isPathComponentsAtPosition",
          "isPathComponentsAtBeforeText", "isPathComponentsAtAfterText"}},
    };
    return rows;
}

void expectChoice(const Settings& settings, const RadioRow& row, int index)
{
    for (const char* key : row.indexKeys)
        EXPECT_EQ(settings.integerValue(key), index) << row.name << " " << key;
    for (int other = 0; other < int(row.mirrors.size()); ++other) {
        if (const char* mirror = row.mirrors[std::size_t(other)]) {
            EXPECT_EQ(settings.booleanValue(mirror), other == index) << row.name << " index " << index << " " << mirror;
        }
    }
}

TEST(SettingsRadioGroups, EachChoiceSetsItsIndexAndExactlyItsMirror)
{
    for (const RadioRow& row : radioRows()) {
        Settings settings;
        // Walk backwards so that every choice moves away from the default.
        for (int index = int(row.mirrors.size()) - 1; index >= 0; --index) {
            QSignalSpy anyChange(&settings, &Settings::settingsChanged);
            EXPECT_TRUE((settings.*row.choose)(index)) << row.name << " " << index;
            expectChoice(settings, row, index);
            EXPECT_EQ(anyChange.count(), 1) << row.name << " " << index;
        }
    }
}

TEST(SettingsRadioGroups, AChoiceOutsideTheGroupChangesNothing)
{
    for (const RadioRow& row : radioRows()) {
        Settings settings;
        ASSERT_TRUE((settings.*row.choose)(1));
        const QMap<QString, QString> before = snapshot(settings);
        QSignalSpy anyChange(&settings, &Settings::settingsChanged);
        for (const int index : {-1, int(row.mirrors.size()), 100}) {
            EXPECT_FALSE((settings.*row.choose)(index)) << row.name << " " << index;
            EXPECT_EQ(snapshot(settings), before) << row.name << " " << index;
        }
        EXPECT_EQ(anyChange.count(), 0) << row.name;
    }
}

TEST(SettingsRadioGroups, ChoosingByIndexKeyReachesTheSameGroups)
{
    for (const RadioRow& row : radioRows()) {
        for (const char* key : row.indexKeys) {
            Settings settings;
            const int last = int(row.mirrors.size()) - 1;
            EXPECT_TRUE(Settings::isRadioIndexKey(text(key))) << key;
            EXPECT_TRUE(settings.chooseRadioOption(text(key), last)) << key;
            expectChoice(settings, row, last);
            EXPECT_FALSE(settings.chooseRadioOption(text(key), last + 1)) << key;
        }
    }
    Settings settings;
    for (const char* key : {"selectedTab", "isFiles", "generalFileNameCase", "nothing"}) {
        EXPECT_FALSE(Settings::isRadioIndexKey(text(key))) << key;
        EXPECT_FALSE(settings.chooseRadioOption(text(key), 1)) << key;
    }
    EXPECT_EQ(settings.selectedTab(), 0);
}

struct TabRow {
    const char* name;
    std::optional<int> tab;
};

TEST(Tabs, NamesAndNumbersFindTheirTab)
{
    const TabRow rows[] = {
        {"0", tabs::AlphaNumeric},       {"9", tabs::FromFile},          {" 4 ", tabs::DateTime},
        {"alphanumeric", 0},             {"insertdelete", 1},            {"replaceremove", 2},
        {"prefixsuffix", 3},             {"datetime", 4},                {"general", 5},
        {"audio", 6},                    {"photo", 7},                   {"pathcomponents", 8},
        {"fromfile", 9},                 {"GENERAL", tabs::General},     {"PathComponents", 8},
        {"10", std::nullopt},            {"-1", std::nullopt},           {"", std::nullopt},
        {"gen", std::nullopt},           {"date time", std::nullopt},    {"1.0", std::nullopt},
    };
    for (const TabRow& row : rows)
        EXPECT_EQ(tabFromName(text(row.name)), row.tab) << "'" << row.name << "'";
}

TEST(Tabs, EveryTabNameLeadsBackToItsTab)
{
    for (int tab = 0; tab < tabs::Count; ++tab) {
        const QString name = tabName(tab);
        EXPECT_FALSE(name.isEmpty()) << tab;
        EXPECT_EQ(tabFromName(name), tab) << qPrintable(name);
    }
    EXPECT_TRUE(tabName(tabs::Count).isEmpty());
    EXPECT_TRUE(tabName(-1).isEmpty());
}

}  // namespace
