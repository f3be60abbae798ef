#include "core/engine/actions/datetime.h"

#include "core/engine/OptionValues.h"
#include "core/platform/FileDates.h"
#include "core/profiles/Settings.h"
#include "core/text/DateHelpers.h"
#include "core/text/LocalizedStrings.h"

#include <QStringView>
#include <exception>
#include <stdexcept>
#include <string>

namespace tavrin {

namespace {

constexpr char kNoFlagsFormat[] = "dd/MM/yyyy hh:mm:ss a";

// Literal text inside a pattern: quoted, with a quote of its own doubled.
QString quotedLiteral(const QString& text)
{
    QString doubled = text;
    doubled.replace(QLatin1Char('\''), QLatin1String("''"));
    return QLatin1Char('\'') + doubled + QLatin1Char('\'');
}

// What may stand between the "%" of a directive and its conversion character: flags,
// width, precision, an argument position and length modifiers.
bool isDirectiveModifier(QChar c)
{
    return QStringView(u"0123456789-+ #'.*$hlqLzjt").contains(c);
}

// The text as a format given no arguments prints it. The text is never handed to a
// formatting function: it is the user's, and a directive would read an argument that is not there.
QString formatWithoutArguments(const QString& text)
{
    QString result;
    qsizetype i = 0;
    while (i < text.size()) {
        const QChar c = text[i++];
        if (c != QLatin1Char('%')) {
            result += c;
        } else if (i < text.size() && text[i] == QLatin1Char('%')) {
            result += c;
            ++i;
        } else {
            while (i < text.size() && isDirectiveModifier(text[i]))
                ++i;
            ++i;  // the conversion character
        }
    }
    return result;
}

QDateTime dateOf(const FileSystemItem& item, const DateTimeOptions& options)
{
    QDateTime date;
    if (options.source == datetimesource::Custom) {
        date = options.customDate;
    } else if (options.source == datetimesource::Created || options.source == datetimesource::Modified) {
        const std::optional<FileDates> dates = readFileDates(item.fullPath());
        if (!dates)
            throw std::runtime_error("Cannot read the dates of " + item.fullPath().toStdString());
        date = options.source == datetimesource::Created ? dates->created : dates->modified;
    } else {
        throw std::invalid_argument("Unknown date source " + std::to_string(options.source));
    }
    if (!date.isValid())
        throw std::invalid_argument("No date to put into " + item.fullPath().toStdString());
    return date;
}

}  // namespace

DateTimeOptions DateTimeOptions::from(const OptionValues& values)
{
    DateTimeOptions options;
    options.source = static_cast<datetimesource::DateTimeSource>(values.integer(Settings::dateTimeDateOptionIndexKey));
    options.customDate = values.date(Settings::dateTimeCustomDateKey);
    options.placement = InsertOptions::placement(
        values, {Settings::dateTimeOptionsIndexKey, Settings::dateTimeAtPositionNoKey,
                 Settings::dateTimeAtPositionDirectionKey, Settings::dateTimeAtBeforeTextKey,
                 Settings::dateTimeAtBeforeTextOccurrenceKey, Settings::dateTimeAtAfterTextKey,
                 Settings::dateTimeAtAfterTextOccurrenceKey});
    options.hasDateFormat = values.boolean(Settings::hasDateFormatKey);
    options.hasTimeFormat = values.boolean(Settings::hasTimeFormatKey);
    options.dateFields = DateFormatFields::from(
        values, {Settings::dateTimeFormatDatePart1Key, Settings::dateTimeFormatDateSeperator1Key,
                 Settings::dateTimeFormatDatePart2Key, Settings::dateTimeFormatDateSeperator2Key,
                 Settings::dateTimeFormatDatePart3Key});
    options.timeFields = DateFormatFields::from(
        values, {Settings::dateTimeFormatTimePart1Key, Settings::dateTimeFormatTimeSeperator1Key,
                 Settings::dateTimeFormatTimePart2Key, Settings::dateTimeFormatTimeSeperator2Key,
                 Settings::dateTimeFormatTimePart3Key});
    options.dateTimeSeparator = values.text(Settings::dateTimeSeparatorKey);
    options.isColonReplace = values.boolean(Settings::isDateTimeColonReplaceKey);
    options.colonReplace = values.text(Settings::dateTimeColonReplaceKey);
    options.prefix = values.text(Settings::dateTimePrefixKey);
    options.suffix = values.text(Settings::dateTimeSuffixKey);
    return options;
}

QString dateTimeFormat(const DateTimeOptions& options)
{
    if (!options.hasDateFormat && !options.hasTimeFormat)
        return QString::fromLatin1(kNoFlagsFormat);
    const QString date = options.hasDateFormat
        ? assembledFormat(options.dateFields, QString::fromLatin1(dateformat::DateFallback))
        : QString();
    const QString time = options.hasTimeFormat
        ? assembledFormat(options.timeFields, QString::fromLatin1(dateformat::TimeFallback))
        : QString();
    if (time.isEmpty())
        return date;
    if (options.dateTimeSeparator.isEmpty() || !options.hasDateFormat)
        return date + time;
    return date + quotedLiteral(options.dateTimeSeparator) + time;
}

QString dateTimeText(const QDateTime& date, const DateTimeOptions& options)
{
    QString text = formatDate(date, dateTimeFormat(options));
    if (options.isColonReplace)
        text.replace(QLatin1Char(':'), options.colonReplace);
    return options.prefix + formatWithoutArguments(text) + formatWithoutArguments(options.suffix);
}

// The typed texts and the date become the insert text, whose every "/" the insertion keeps
// as ":": as a separator, as a colon's replacement or from a pattern such as "MM/dd/yyyy".
bool renameByDateTime(FileSystemItem& item, const DateTimeOptions& options, QString& error)
{
    try {
        InsertOptions insert = options.placement;
        insert.text = dateTimeText(dateOf(item, options), options);
        return renameByInsert(item, insert, error);
    } catch (const std::exception& e) {
        error = localized("UNABLETOGENERATENEWFILENAMEERROR").arg(QString::fromUtf8(e.what()));
    }
    return error.isEmpty();
}

}  // namespace tavrin
