#pragma once

#include "core/engine/actions/dateformat.h"
#include "core/list/FileSystemItem.h"

#include <QDateTime>
#include <QString>

namespace tavrin {

class OptionValues;

// Which date the prefix/suffix tab's date mode writes, by the value of
// prefixSuffixFileDateAttribute.
namespace prefixsuffixdate {
enum PrefixSuffixDate : int {
    Today = 0,
    Created = 1,
    Modified = 2,
};
}  // namespace prefixsuffixdate

// The prefix/suffix tab. Texts are kept as typed.
struct PrefixSuffixOptions {
    bool isString = true;  // else date mode
    QString prefix{};
    QString suffix{};
    bool isDatePrefix = false;
    bool isDateSuffix = false;
    prefixsuffixdate::PrefixSuffixDate fileDate = prefixsuffixdate::Created;
    DateFormatFields dateFields{};
    DateFormatFields timeFields{};
    QString datePrefix{};
    QString dateSuffix{};

    static PrefixSuffixOptions from(const OptionValues& values);
};

// The pattern of date mode: the date fields, one space, the time fields.
QString prefixSuffixDateFormat(const PrefixSuffixOptions& options);

// The text date mode puts beside a name for `date`: the date prefix, the date formatted in
// the default locale and time zone, the date suffix.
QString prefixSuffixDateText(const QDateTime& date, const PrefixSuffixOptions& options);

// String mode puts the prefix before the name and the suffix after it; a typed "/" in them
// stands for ":". Date mode puts the date prefix, the date and the date suffix before the
// name, after it, both or neither, as its switches say, all taken as typed. The date is
// today's, the item's creation date (its modification date where the file system records no
// birth) or its modification date, formatted in the default locale and time zone; today's
// when the item's dates cannot be read, and no date text at all for an unknown choice. The
// extension stays; works on the name an earlier rule step proposed when there is one.
// Answers true when `error` (which the caller empties) is still empty afterwards.
bool renameByPrefixSuffix(FileSystemItem& item, const PrefixSuffixOptions& options, QString& error);

}  // namespace tavrin
