#pragma once

#include "core/engine/actions/dateformat.h"
#include "core/engine/actions/insertdelete.h"
#include "core/list/FileSystemItem.h"

#include <QDateTime>
#include <QString>

namespace tavrin {

class OptionValues;

// Which date the date/time tab writes, by the value of dateTimeDateOptionIndex.
namespace datetimesource {
enum DateTimeSource : int {
    Created = 0,
    Modified = 1,
    Custom = 2,
};
}  // namespace datetimesource

// The date/time tab. Texts are kept as typed; the placement is the insert tab's, with an
// empty text.
struct DateTimeOptions {
    datetimesource::DateTimeSource source = datetimesource::Created;
    QDateTime customDate{};
    InsertOptions placement{};
    bool hasDateFormat = true;
    bool hasTimeFormat = true;
    DateFormatFields dateFields{};
    DateFormatFields timeFields{};
    QString dateTimeSeparator{};
    bool isColonReplace = false;
    QString colonReplace{};
    QString prefix{};
    QString suffix{};

    static DateTimeOptions from(const OptionValues& values);
};

// The pattern the date is formatted with: the date fields when hasDateFormat is on, the time
// fields when hasTimeFormat is on, joined by the date/time separator as literal text when
// both are on and it is not empty; "dd/MM/yyyy hh:mm:ss a" when both are off.
QString dateTimeFormat(const DateTimeOptions& options);

// The text the action puts into a name for `date`: the date formatted in the default locale
// and time zone, its colons replaced when asked, between the prefix and the suffix, with the
// directives of the date text and of the suffix dropped (see renameByDateTime).
QString dateTimeText(const QDateTime& date, const DateTimeOptions& options);

// Puts the item's creation date (its modification date where the file system records no
// birth), its modification date or the custom date into its name, formatted in the default
// locale and time zone, with every ":" of the date replaced when asked, between the prefix
// and the suffix, at the place the placement says. A "%" in the date text or the suffix
// starts a format directive given no arguments: "%%" stays as one "%", any other directive
// ("%d", "%@", "%5.2f" ...) drops out. An item whose dates cannot be read, or an unknown
// source, fails and keeps its proposal. A typed "/" in the texts stands for ":", and so does
// a "/" of the date text.
// Answers true when `error` (which the caller empties) is still empty afterwards.
bool renameByDateTime(FileSystemItem& item, const DateTimeOptions& options, QString& error);

}  // namespace tavrin
