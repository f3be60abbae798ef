#pragma once

#include <QDateTime>
#include <QString>
#include <optional>

// Dates read from photo metadata and dates written into names. Parsing and formatting use
// Unicode date patterns in the default locale and time zone, so "dd", "MM", "yyyy", "HH",
// "hh" and "a" mean what the Unicode standard says. A text parses only when the whole of
// it matches the pattern, and out-of-range fields (month 13, 31 April) are refused.
namespace tavrin {

// An XMP date such as "2021-03-05T14:30:00+01:00". The last ":" of the text is dropped
// first, so that the zone offset reads "+0100"; nothing when the text does not parse.
std::optional<QDateTime> dateFromString(const QString& text);

// An EXIF date such as "2021:03:05 14:30:00" as "2021-03-05 14:30:00 +0100": the same wall
// time, then the offset of the local time zone at that moment. Nothing for an empty text,
// for the "0000:00:00 00:00:00" that cameras write when they have no clock, and for a text
// that does not parse.
std::optional<QString> stringToFormattedDate(const QString& text);

// The moment a description made by stringToFormattedDate stands for.
std::optional<QDateTime> dateFromDescription(const QString& description);

// The moment formatted with a Unicode date pattern in the default locale and time zone;
// the empty string for an invalid moment or a pattern that cannot be used.
QString formatDate(const QDateTime& moment, const QString& unicodePattern);

}  // namespace tavrin
