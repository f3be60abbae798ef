#include "core/engine/actions/insertdelete.h"

#include "core/engine/actions/workingname.h"
#include "core/text/LocalizedStrings.h"
#include "core/text/NameParts.h"
#include "core/text/StringUtilities.h"

#include <exception>
#include <optional>

namespace tavrin {

namespace {

struct InsertInputs {
    QString text;
    int optionIndex = insertoption::AtBeginning;
    int position = 1;
    int direction = insertdirection::FromStart;
    QString beforeText;
    int beforeOccurrence = 1;
    QString afterText;
    int afterOccurrence = 1;
};

QString insertedAtPosition(const QString& name, const InsertInputs& in)
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

std::optional<QString> insertedName(const QString& name, const InsertInputs& in)
{
    switch (in.optionIndex) {
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

QString deletedRun(const QString& name, bool fromBackward, int position, int count)
{
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

bool renameByInsert(FileSystemItem& item, const QString& insertText, int insertOptionIndex, int atCharacterPositions,
                    int atPostionDirection, const QString& atBeforeText, int atBeforeOccurrence,
                    const QString& atAfterText, int atAfterOccurrence, QString& error)
{
    try {
        InsertInputs in;
        in.text = storedName(insertText);
        in.optionIndex = insertOptionIndex;
        in.position = atCharacterPositions;
        in.direction = atPostionDirection;
        in.beforeText = storedName(atBeforeText);
        in.beforeOccurrence = atBeforeOccurrence;
        in.afterText = storedName(atAfterText);
        in.afterOccurrence = atAfterOccurrence;
        const NameParts parts = workingNameParts(item);
        const std::optional<QString> name = insertedName(parts.name, in);
        item.setObject(name ? withExtension(*name, parts.extension) : QString(), QLatin1String(itemkeys::NewFilename));
    } catch (const std::exception& e) {
        error = localized("UNABLETOGENERATENEWFILENAMEERROR").arg(QString::fromLocal8Bit(e.what()));
    }
    return error.isEmpty();
}

bool renameByDelete(FileSystemItem& item, bool deleteFromBackward, int fromCharacterPosition, int numberOfCharacters,
                    QString& error)
{
    try {
        const NameParts parts = workingNameParts(item);
        const QString name = deletedRun(parts.name, deleteFromBackward, fromCharacterPosition, numberOfCharacters);
        item.setObject(withExtension(name, parts.extension), QLatin1String(itemkeys::NewFilename));
    } catch (const std::exception& e) {
        error = localized("UNABLETOGENERATENEWFILENAMEERROR").arg(QString::fromLocal8Bit(e.what()));
    }
    return error.isEmpty();
}

}  // namespace tavrin
