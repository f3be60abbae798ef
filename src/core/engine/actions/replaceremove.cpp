#include "core/engine/actions/replaceremove.h"

#include "core/engine/actions/workingname.h"
#include "core/text/LocalizedStrings.h"
#include "core/text/NameParts.h"
#include "core/text/StringUtilities.h"

#include <exception>

namespace tavrin {

namespace {

struct ReplaceRemoveInputs {
    QString find;
    QString replacement;
    bool caseSensitive = false;
    bool removeCharacters = false;
    int startOnOccurrence = 1;
    int occurrenceCount = 1;
};

// The part of the name before the start position stays out of the search.
struct HeadAndBody {
    QString head;
    QString body;
};

HeadAndBody splitAtStart(const QString& name, int startFromCharacter, int direction)
{
    const QString oriented = direction != replaceremovedirection::FromStart ? reverseString(name) : name;
    // A start at or beyond the last character searches the whole name rather than nothing.
    if (startFromCharacter > 1 && startFromCharacter < oriented.size())
        return {leftString(oriented, startFromCharacter - 1), oriented.mid(startFromCharacter - 1)};
    return {QString(), oriented};
}

QString withoutCharacters(const QString& body, const QString& characters, bool caseSensitive)
{
    QString result = body;
    for (int i = 1; i <= characters.size(); ++i)
        result = replaceString(result, midString(characters, i, 1), QString(), 1, -1, caseSensitive);
    return result;
}

QString replacedFromOccurrence(const QString& body, const ReplaceRemoveInputs& in)
{
    int location = 1;
    if (in.startOnOccurrence > 1) {
        location = findLocationInString(body, in.find, in.startOnOccurrence, in.caseSensitive);
        if (location <= 0)
            return body;
    }
    return leftString(body, location - 1)
        + replaceString(body, in.find, in.replacement, location, in.occurrenceCount, in.caseSensitive);
}

QString changedName(const QString& name, const ReplaceRemoveInputs& in, int startFromCharacter, int direction)
{
    const HeadAndBody parts = splitAtStart(name, startFromCharacter, direction);
    const QString body = in.removeCharacters ? withoutCharacters(parts.body, in.find, in.caseSensitive)
                                             : replacedFromOccurrence(parts.body, in);
    const QString changed = parts.head + body;
    // Only the direction the tab offers turns the name back; rule files holding any other
    // value have always produced the reversed name, and their results must not change.
    return direction == replaceremovedirection::FromEnd ? reverseString(changed) : changed;
}

}  // namespace

int findLocationInString(const QString& str, const QString& replace, int startOnOccurrence, bool caseSensitive)
{
    int position = instrString(str, replace, 1, caseSensitive);
    if (position == 0 || startOnOccurrence == 1)
        return 0;
    int remaining = startOnOccurrence;
    while (position > 0) {
        if (--remaining < 1)
            break;
        position = instrString(str, replace, position + static_cast<int>(replace.size()), caseSensitive);
    }
    return position;
}

bool renameByReplaceRemove(FileSystemItem& item, const QString& replaceThis, const QString& replaceWith,
                           bool caseSensitive, bool removeCharacters, int startFromCharacter, int startOnOccurrence,
                           int occurrenceCount, int replaceRemovePositionDirection, QString& error)
{
    try {
        ReplaceRemoveInputs in;
        in.find = storedName(replaceThis);
        in.replacement = storedName(replaceWith);
        in.caseSensitive = caseSensitive;
        in.removeCharacters = removeCharacters;
        in.startOnOccurrence = startOnOccurrence;
        in.occurrenceCount = occurrenceCount;
        const NameParts parts = workingNameParts(item);
        const QString name = changedName(parts.name, in, startFromCharacter, replaceRemovePositionDirection);
        item.setObject(withExtension(name, parts.extension), QLatin1String(itemkeys::NewFilename));
    } catch (const std::exception& e) {
        error = localized("UNABLETOGENERATENEWFILENAMEERROR").arg(QString::fromLocal8Bit(e.what()));
    }
    return error.isEmpty();
}

}  // namespace tavrin
