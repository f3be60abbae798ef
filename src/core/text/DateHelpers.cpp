#include "core/text/DateHelpers.h"

#include "core/text/StringUtilities.h"

#include <QHash>
#include <QtGlobal>
#include <algorithm>
#include <exception>
#include <memory>
#include <unicode/locid.h>
#include <unicode/parsepos.h>
#include <unicode/smpdtfmt.h>
#include <unicode/timezone.h>
#include <unicode/unistr.h>

namespace tavrin {

namespace {

const QString xmpPattern = QStringLiteral("yyyy-MM-dd'T'HH:mm:ssZ");
const QString exifPattern = QStringLiteral("yyyy-MM-dd HH:mm:ss");
const QString descriptionPattern = QStringLiteral("yyyy-MM-dd HH:mm:ss Z");
// Cameras without a clock write this instead of leaving the field out.
const QString unsetExifDate = QStringLiteral("0000:00:00 00:00:00");

icu::UnicodeString toUnicode(const QString& text)
{
    return icu::UnicodeString(reinterpret_cast<const UChar*>(text.utf16()), static_cast<int32_t>(text.size()));
}

QString fromUnicode(const icu::UnicodeString& text)
{
    return QString(reinterpret_cast<const QChar*>(text.getBuffer()), text.length());
}

// Building a formatter costs far more than using one, and the date actions format one
// date per listed item, so each thread keeps the formatters it has built. ICU formatters
// are not thread-safe; per-thread copies need no locking.
icu::SimpleDateFormat* formatter(const QString& pattern, const icu::Locale& locale)
{
    using Cache = QHash<QString, std::shared_ptr<icu::SimpleDateFormat>>;
    constexpr qsizetype cacheLimit = 64;
    thread_local Cache cache;

    const QString key = QString::fromLatin1(locale.getName()) + QLatin1Char('\n') + pattern;
    if (auto it = cache.constFind(key); it != cache.constEnd())
        return it->get();

    UErrorCode status = U_ZERO_ERROR;
    auto created = std::make_shared<icu::SimpleDateFormat>(toUnicode(pattern), locale, status);
    if (U_FAILURE(status))
        return nullptr;
    created->setLenient(false);
    if (cache.size() >= cacheLimit)
        cache.clear();
    cache.insert(key, created);
    return created.get();
}

// The default time zone may have changed since the formatter was built.
icu::SimpleDateFormat* formatterInDefaultZone(const QString& pattern, const icu::Locale& locale)
{
    icu::SimpleDateFormat* format = formatter(pattern, locale);
    if (format)
        format->adoptTimeZone(icu::TimeZone::createDefault());
    return format;
}

std::optional<UDate> parseWhole(const QString& text, const QString& pattern,
                                const icu::Locale& locale = icu::Locale::getDefault())
{
    icu::SimpleDateFormat* format = formatterInDefaultZone(pattern, locale);
    if (!format || text.isEmpty())
        return std::nullopt;
    const icu::UnicodeString unicode = toUnicode(text);
    icu::ParsePosition position(0);
    const UDate date = format->parse(unicode, position);
    if (position.getErrorIndex() >= 0 || position.getIndex() != unicode.length())
        return std::nullopt;
    return date;
}

// The description is a fixed form, whatever digits or calendar the user's locale prefers.
const icu::Locale& descriptionLocale()
{
    static const icu::Locale posix("en_US_POSIX");
    return posix;
}

QString formatUDate(UDate date, const QString& pattern, const icu::Locale& locale)
{
    icu::SimpleDateFormat* format = formatterInDefaultZone(pattern, locale);
    if (!format)
        return QString();
    icu::UnicodeString formatted;
    format->format(date, formatted);
    return fromUnicode(formatted);
}

// "+01:00" -> "+0100": the Z pattern reads an offset without a colon.
QString withoutLastColon(const QString& text)
{
    return reverseString(replaceString(reverseString(text), QStringLiteral(":"), QString(), 1, 1, false));
}

// "2021:03:05 14:30:00" -> "2021-03-05 14:30:00"; the colons of the time stay.
QString exifDateWithDashes(const QString& text)
{
    QString dashed = text;
    std::replace(dashed.begin(), dashed.begin() + std::min<qsizetype>(10, dashed.size()), QLatin1Char(':'),
                 QLatin1Char('-'));
    return dashed;
}

}  // namespace

std::optional<QDateTime> dateFromString(const QString& text)
{
    try {
        const std::optional<UDate> date = parseWhole(withoutLastColon(text), xmpPattern);
        if (!date)
            return std::nullopt;
        return QDateTime::fromMSecsSinceEpoch(static_cast<qint64>(*date));
    } catch (const std::exception& e) {
        qWarning("Error in dateFromString : %s", e.what());
        return std::nullopt;
    }
}

std::optional<QString> stringToFormattedDate(const QString& text)
{
    if (text.isEmpty() || text == unsetExifDate)
        return std::nullopt;
    const std::optional<UDate> date = parseWhole(exifDateWithDashes(text), exifPattern);
    if (!date)
        return std::nullopt;
    return formatUDate(*date, descriptionPattern, descriptionLocale());
}

std::optional<QDateTime> dateFromDescription(const QString& description)
{
    const std::optional<UDate> date = parseWhole(description, descriptionPattern, descriptionLocale());
    if (!date)
        return std::nullopt;
    return QDateTime::fromMSecsSinceEpoch(static_cast<qint64>(*date));
}

QString formatDate(const QDateTime& moment, const QString& unicodePattern)
{
    if (!moment.isValid())
        return QString();
    return formatUDate(static_cast<UDate>(moment.toMSecsSinceEpoch()), unicodePattern, icu::Locale::getDefault());
}

}  // namespace tavrin
