#include "core/engine/actions/prefixsuffix.h"

#include "core/engine/OptionValues.h"
#include "core/engine/actions/workingname.h"
#include "core/platform/FileDates.h"
#include "core/profiles/Settings.h"
#include "core/text/DateHelpers.h"
#include "core/text/LocalizedStrings.h"
#include "core/text/NameParts.h"

#include <exception>

namespace tavrin {

namespace {

QString withText(const QString& name, const PrefixSuffixOptions& options)
{
    return storedName(options.prefix) + name + storedName(options.suffix);
}

// A file whose dates cannot be read is named with today's date.
QDateTime dateOf(const FileSystemItem& item, prefixsuffixdate::PrefixSuffixDate fileDate)
{
    if (fileDate == prefixsuffixdate::Today)
        return QDateTime::currentDateTime();
    const std::optional<FileDates> dates = readFileDates(item.fullPath());
    if (!dates)
        return QDateTime::currentDateTime();
    if (fileDate == prefixsuffixdate::Created)
        return dates->created;
    return fileDate == prefixsuffixdate::Modified ? dates->modified : QDateTime();
}

QString withDate(const FileSystemItem& item, const QString& name, const PrefixSuffixOptions& options)
{
    const QString text = prefixSuffixDateText(dateOf(item, options.fileDate), options);
    return (options.isDatePrefix ? text : QString()) + name + (options.isDateSuffix ? text : QString());
}

}  // namespace

PrefixSuffixOptions PrefixSuffixOptions::from(const OptionValues& values)
{
    PrefixSuffixOptions options;
    options.isString = values.boolean(Settings::isPrefixSuffixStringKey);
    options.prefix = values.text(Settings::prefixSuffixPrefixKey);
    options.suffix = values.text(Settings::prefixSuffixSuffixKey);
    options.isDatePrefix = values.boolean(Settings::isPrefixSuffixDatePrefixKey);
    options.isDateSuffix = values.boolean(Settings::isPrefixSuffixDateSuffixKey);
    options.fileDate
        = static_cast<prefixsuffixdate::PrefixSuffixDate>(values.integer(Settings::prefixSuffixFileDateAttributeKey));
    options.dateFields = DateFormatFields::from(
        values, {Settings::prefixSuffixDatePart1Key, Settings::prefixSuffixDateSeperator1Key,
                 Settings::prefixSuffixDatePart2Key, Settings::prefixSuffixDateSeperator2Key,
                 Settings::prefixSuffixDatePart3Key});
    options.timeFields = DateFormatFields::from(
        values, {Settings::prefixSuffixTimePart1Key, Settings::prefixSuffixTimeSeperator1Key,
                 Settings::prefixSuffixTimePart2Key, Settings::prefixSuffixTimeSeperator2Key,
                 Settings::prefixSuffixTimePart3Key});
    options.datePrefix = values.text(Settings::prefixSuffixDatePrefixKey);
    options.dateSuffix = values.text(Settings::prefixSuffixDateSuffixKey);
    return options;
}

QString prefixSuffixDateFormat(const PrefixSuffixOptions& options)
{
    return assembledFormat(options.dateFields, QString::fromLatin1(dateformat::DateFallback)) + QLatin1Char(' ')
        + assembledFormat(options.timeFields, QString::fromLatin1(dateformat::TimeFallback));
}

QString prefixSuffixDateText(const QDateTime& date, const PrefixSuffixOptions& options)
{
    return options.datePrefix + formatDate(date, prefixSuffixDateFormat(options)) + options.dateSuffix;
}

bool renameByPrefixSuffix(FileSystemItem& item, const PrefixSuffixOptions& options, QString& error)
{
    try {
        const NameParts parts = workingNameParts(item);
        const QString name = options.isString ? withText(parts.name, options) : withDate(item, parts.name, options);
        item.setObject(withExtension(name, parts.extension), QLatin1String(itemkeys::NewFilename));
    } catch (const std::exception& e) {
        error = localized("UNABLETOGENERATENEWFILENAMEERROR").arg(QString::fromUtf8(e.what()));
    }
    return error.isEmpty();
}

}  // namespace tavrin
