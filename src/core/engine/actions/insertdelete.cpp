#include "core/engine/actions/insertdelete.h"

#include "core/engine/OptionValues.h"
#include "core/engine/actions/workingname.h"
#include "core/profiles/Settings.h"
#include "core/text/LocalizedStrings.h"
#include "core/text/NameParts.h"
#include "core/text/StringUtilities.h"

#include <exception>
#include <optional>

namespace tavrin {

namespace {

// The options with the texts in the form a name stores.
InsertOptions storedTexts(const InsertOptions& options)
{
    InsertOptions stored = options;
    stored.text = storedName(options.text);
    stored.beforeText = storedName(options.beforeText);
    stored.afterText = storedName(options.afterText);
    return stored;
}

QString insertedAtPosition(const QString& name, const InsertOptions& in)
{
    // Position 0 and negative positions lie beyond the name as well.
    if (in.position < 1 || name.size() < in.position - 1)
        return name;
    const bool fromEnd = in.direction == insertdirection::FromEnd;
    const QString oriented = fromEnd ? reverseString(name) : name;
    const QString text = fromEnd ? reverseString(in.text) : in.text;
    const QString inserted = oriented.left(in.position - 1) + text + oriented.mid(in.position - 1);
    return fromEnd ? reverseString(inserted) : inserted;
}

std::optional<QString> insertedName(const QString& name, const InsertOptions& in)
{
    switch (in.place) {
    case insertoption::AtBeginning:
        return in.text + name;
    case insertoption::AtEnd:
        return name + in.text;
    case insertoption::AtPosition:
        return insertedAtPosition(name, in);
    case insertoption::BeforeText:
        return insertString(name, in.beforeText, in.text, in.beforeOccurrence, true, true);
    case insertoption::AfterText:
        return insertString(name, in.afterText, in.text, in.afterOccurrence, false, true);
    default:
        return std::nullopt;
    }
}

QString deletedRun(const QString& name, const DeleteOptions& options)
{
    const int count = options.count;
    const int position = options.fromPosition;
    const bool fromBackward = options.fromBackward;
    if (count < 1)
        return name;
    // Every negative position lies beyond the end too.
    const qint64 length = name.size();
    const qint64 first = position < 0 || position > length ? length + 1 : position;
    const QString oriented = fromBackward ? reverseString(name) : name;
    const QString head = first > 1 ? oriented.left(first - 1) : QString();
    // Position 0 makes the run one character shorter: the count includes the missing 0th.
    const qint64 end = qint64(count) + first - 1;
    const QString result = end < length ? head + oriented.mid(end) : head;
    return fromBackward ? reverseString(result) : result;
}

}  // namespace

InsertOptions InsertOptions::from(const OptionValues& values)
{
    InsertOptions options = placement(
        values, {Settings::insertDeleteInsertOptionIndexKey, Settings::insertDeleteAtCharacterPositionsKey,
                 Settings::insertDeleteInsertAtPostionDirectionKey, Settings::insertDeleteInsertAtBeforeTextKey,
                 Settings::insertDeleteInsertAtBeforeOccurrenceKey, Settings::insertDeleteInsertAtAfterTextKey,
                 Settings::insertDeleteInsertAtAfterOccurrenceKey});
    options.text = values.text(Settings::insertDeleteInsertKey);
    return options;
}

InsertOptions InsertOptions::placement(const OptionValues& values, const PlacementKeys& keys)
{
    InsertOptions options;
    options.place = static_cast<insertoption::InsertPlace>(values.integer(keys.place));
    options.position = values.integer(keys.position);
    options.direction = static_cast<insertdirection::InsertDirection>(values.integer(keys.direction));
    options.beforeText = values.text(keys.beforeText);
    options.beforeOccurrence = values.integer(keys.beforeOccurrence);
    options.afterText = values.text(keys.afterText);
    options.afterOccurrence = values.integer(keys.afterOccurrence);
    return options;
}

DeleteOptions DeleteOptions::from(const OptionValues& values)
{
    DeleteOptions options;
    options.fromBackward = values.boolean(Settings::isInsertDeleteDeleteFromBackWardKey);
    options.fromPosition = values.integer(Settings::insertDeleteFromCharacterPositionKey);
    options.count = values.integer(Settings::insertDeleteNumberOfCharactersKey);
    return options;
}

bool renameByInsert(FileSystemItem& item, const InsertOptions& options, QString& error)
{
    try {
        const NameParts parts = workingNameParts(item);
        const std::optional<QString> name = insertedName(parts.name, storedTexts(options));
        item.setObject(name ? withExtension(*name, parts.extension) : QString(), QLatin1String(itemkeys::NewFilename));
    } catch (const std::exception& e) {
        error = localized("UNABLETOGENERATENEWFILENAMEERROR").arg(QString::fromLocal8Bit(e.what()));
    }
    return error.isEmpty();
}

bool renameByDelete(FileSystemItem& item, const DeleteOptions& options, QString& error)
{
    try {
        const NameParts parts = workingNameParts(item);
        item.setObject(withExtension(deletedRun(parts.name, options), parts.extension),
                       QLatin1String(itemkeys::NewFilename));
    } catch (const std::exception& e) {
        error = localized("UNABLETOGENERATENEWFILENAMEERROR").arg(QString::fromLocal8Bit(e.what()));
    }
    return error.isEmpty();
}

}  // namespace tavrin
