#include "core/profiles/SettingsDefaults.h"

#include "core/profiles/Settings.h"

#include <QDateTime>
#include <QStringList>
#include <array>
#include <initializer_list>
#include <utility>

namespace tavrin {

namespace {

using Entries = std::initializer_list<std::pair<const char*, QVariant>>;

void insertAll(QVariantHash& values, Entries entries)
{
    for (const auto& [key, value] : entries)
        values.insert(QString::fromLatin1(key), value);
}

// The date fields default to day, month, year and the time fields to hours, minutes,
// seconds, on every tab that formats a date.
void insertDateTimeParts(QVariantHash& values, const std::array<const char*, 6>& keys)
{
    static const std::array<QString, 6> parts = {
        QStringLiteral("dd"), QStringLiteral("MM"), QStringLiteral("yyyy"),
        QStringLiteral("HH"), QStringLiteral("mm"), QStringLiteral("ss"),
    };
    for (std::size_t i = 0; i < keys.size(); ++i)
        values.insert(QString::fromLatin1(keys[i]), parts[i]);
}

QDateTime nowToTheSecond()
{
    const QDateTime now = QDateTime::currentDateTime();
    return now.addMSecs(-now.time().msec());
}

void insertModeAndSequence(QVariantHash& values)
{
    const QString one = QStringLiteral("1");
    insertAll(values, {
        {Settings::isFilesKey, true},
        {Settings::isIncludeSubFoldersKey, true},
        {Settings::isAlphaNumericIncrementKey, true},
        {Settings::isAlphaNumericNumericKey, true},
        {Settings::alphaNumericNumericStartWithKey, QStringLiteral("1")},
        {Settings::alphaNumericAlphabeticStartWithKey, QStringLiteral("a")},
        {Settings::alphaNumericIncrementByKey, one},
        {Settings::alphaNumericDecrementByKey, one},
    });
}

void insertInsertDeleteAndReplaceRemove(QVariantHash& values)
{
    const QString one = QStringLiteral("1");
    insertAll(values, {
        {Settings::isInsertDeleteInsertKey, true},
        {Settings::isInsertDeleteInsertAtBeginningKey, true},
        {Settings::insertDeleteAtCharacterPositionsKey, one},
        {Settings::insertDeleteInsertAtBeforeOccurrenceKey, one},
        {Settings::insertDeleteInsertAtAfterOccurrenceKey, one},
        {Settings::insertDeleteFromCharacterPositionKey, one},
        {Settings::insertDeleteNumberOfCharactersKey, one},
        {Settings::isReplaceRemoveReplaceKey, true},
        {Settings::replaceRemoveStartFromCharacterKey, one},
        {Settings::replaceRemoveStartOnOccurrenceKey, one},
        {Settings::replaceRemoveOccuranceCountKey, one},
    });
}

void insertPrefixSuffixAndDateTime(QVariantHash& values)
{
    const QString one = QStringLiteral("1");
    insertAll(values, {
        {Settings::isPrefixSuffixStringKey, true},
        {Settings::prefixSuffixFileDateAttributeKey, 1},
        {Settings::dateTimeCustomDateKey, nowToTheSecond()},
        {Settings::isDateTimeAtBeginningKey, true},
        {Settings::dateTimeAtPositionNoKey, one},
        {Settings::dateTimeAtBeforeTextOccurrenceKey, one},
        {Settings::dateTimeAtAfterTextOccurrenceKey, one},
        {Settings::hasDateFormatKey, true},
        {Settings::hasTimeFormatKey, true},
    });
    insertDateTimeParts(values, {Settings::prefixSuffixDatePart1Key, Settings::prefixSuffixDatePart2Key,
                                 Settings::prefixSuffixDatePart3Key, Settings::prefixSuffixTimePart1Key,
                                 Settings::prefixSuffixTimePart2Key, Settings::prefixSuffixTimePart3Key});
    insertDateTimeParts(values, {Settings::dateTimeFormatDatePart1Key, Settings::dateTimeFormatDatePart2Key,
                                 Settings::dateTimeFormatDatePart3Key, Settings::dateTimeFormatTimePart1Key,
                                 Settings::dateTimeFormatTimePart2Key, Settings::dateTimeFormatTimePart3Key});
}

void insertGeneralAndPathComponents(QVariantHash& values)
{
    const QString one = QStringLiteral("1");
    insertAll(values, {
        {Settings::generalFileNameCaseKey, 1},
        {Settings::generalExtensionCaseKey, 1},
        {Settings::isGeneralConvertFilenameCaseKey, true},
        {Settings::generalSwapPositionKey, one},
        {Settings::generalRemoveAfterStringOccurrenceKey, one},
        {Settings::generalRemoveFromStringOccurrenceKey, one},
        {Settings::isPathComponentsAtBeginningKey, true},
        {Settings::pathComponentsLevelNoKey, 1},
        {Settings::pathComponentsAtPositionNoKey, one},
        {Settings::pathComponentsAtBeforeOccurrenceKey, one},
        {Settings::pathComponentsAtAfterOccurrenceKey, one},
    });
}

void insertPhotoAndAudio(QVariantHash& values)
{
    insertDateTimeParts(values, {Settings::photoDatePart1Key, Settings::photoDatePart2Key,
                                 Settings::photoDatePart3Key, Settings::photoTimePart1Key,
                                 Settings::photoTimePart2Key, Settings::photoTimePart3Key});
    insertAll(values, {
        {Settings::photoExtensionsKey,
         QStringList {QStringLiteral(".JPG"), QStringLiteral(".JPEG"), QStringLiteral(".EXIF"),
                      QStringLiteral(".TIF"), QStringLiteral(".TIFF")}},
        {Settings::id3ExtensionsKey,
         QStringList {QStringLiteral(".MP3"), QStringLiteral(".M4A"), QStringLiteral(".AAC"),
                      QStringLiteral(".M4B")}},
    });
}

}  // namespace

QVariantHash emptyProfileValues()
{
    QVariantHash values;
    insertModeAndSequence(values);
    insertInsertDeleteAndReplaceRemove(values);
    insertPrefixSuffixAndDateTime(values);
    insertGeneralAndPathComponents(values);
    insertPhotoAndAudio(values);
    return values;
}

}  // namespace tavrin
