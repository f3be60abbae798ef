#include "core/engine/actions/replaceremove.h"

#include "core/engine/OptionValues.h"
#include "core/engine/actions/patternreplace.h"
#include "core/engine/actions/workingname.h"
#include "core/profiles/Settings.h"
#include "core/text/LocalizedStrings.h"
#include "core/text/NameParts.h"
#include "core/text/StringUtilities.h"

#include <exception>

namespace tavrin {

namespace {

// The part of the name before the start position stays out of the search.
struct HeadAndBody {
    QString head;
    QString body;
};

HeadAndBody splitAtStart(const QString& name, const ReplaceRemoveOptions& in)
{
    const int start = in.startFromCharacter;
    const QString oriented = in.direction != replaceremovedirection::FromStart ? reverseString(name) : name;
    // A start at or beyond the last character searches the whole name rather than nothing.
    if (start > 1 && start < oriented.size())
        return {leftString(oriented, start - 1), oriented.mid(start - 1)};
    return {QString(), oriented};
}

// Every character of the find text is deleted from the body.
QString withoutCharacters(const QString& body, const ReplaceRemoveOptions& in)
{
    QString result = body;
    for (int i = 1; i <= in.find.size(); ++i)
        result = replaceString(result, midString(in.find, i, 1), QString(), 1, -1, in.caseSensitive);
    return result;
}

// `find` and `replacement` are in the form a name stores.
QString replacedFromOccurrence(const QString& body, const ReplaceRemoveOptions& in)
{
    int location = 1;
    if (in.startOnOccurrence > 1) {
        location = findLocationInString({body, in.find, in.caseSensitive}, in.startOnOccurrence);
        if (location <= 0)
            return body;
    }
    const QString replacement = in.mode == ReplaceRemoveMode::Replace ? in.replacement : QString();
    return leftString(body, location - 1)
        + replaceString(body, in.find, replacement, location, in.occurrenceCount, in.caseSensitive);
}

// A pattern works on the name as it reads; the direction only says where occurrences are
// counted from.
QString changedByPattern(const QString& name, const ReplaceRemoveOptions& in)
{
    const int start = in.startFromCharacter;
    const qsizetype split = start > 1 && start < name.size() ? start - 1 : 0;
    const QRegularExpression pattern = compiledPattern(in.find, in.caseSensitive);
    MatchSelection which{in.startOnOccurrence, in.occurrenceCount, in.direction != replaceremovedirection::FromStart};
    if (in.mode == ReplaceRemoveMode::RemoveCharacters)
        which = MatchSelection{};
    const QString replacement = in.mode == ReplaceRemoveMode::Replace ? in.replacement : QString();
    return name.left(split) + replaceMatches(name.mid(split), pattern, replacement, which);
}

QString changedName(const QString& name, const ReplaceRemoveOptions& in)
{
    if (in.regularExpression)
        return changedByPattern(name, in);
    const HeadAndBody parts = splitAtStart(name, in);
    const QString body = in.mode == ReplaceRemoveMode::RemoveCharacters
        ? withoutCharacters(parts.body, in)
        : replacedFromOccurrence(parts.body, in);
    const QString changed = parts.head + body;
    // Only the direction the tab offers turns the name back; rule files holding any other
    // value have always produced the reversed name, and their results must not change.
    return in.direction == replaceremovedirection::FromEnd ? reverseString(changed) : changed;
}

}  // namespace

int findLocationInString(const OccurrenceSearch& search, int startOnOccurrence)
{
    int position = instrString(search.text, search.sought, 1, search.caseSensitive);
    if (position == 0 || startOnOccurrence == 1)
        return 0;
    int remaining = startOnOccurrence;
    while (position > 0) {
        if (--remaining < 1)
            break;
        position = instrString(search.text, search.sought, position + static_cast<int>(search.sought.size()),
                               search.caseSensitive);
    }
    return position;
}

ReplaceRemoveOptions ReplaceRemoveOptions::from(const OptionValues& values)
{
    ReplaceRemoveOptions options;
    if (values.boolean(Settings::isReplaceRemoveReplaceKey))
        options.mode = ReplaceRemoveMode::Replace;
    else if (values.boolean(Settings::isReplaceRemoveRemoveCharactersKey))
        options.mode = ReplaceRemoveMode::RemoveCharacters;
    else if (values.boolean(Settings::isReplaceRemoveRemoveKey))
        options.mode = ReplaceRemoveMode::Remove;
    else
        options.mode = ReplaceRemoveMode::None;
    options.find = values.text(Settings::replaceRemoveThisKey);
    options.replacement = values.text(Settings::replaceRemoveWithKey);
    options.caseSensitive = values.boolean(Settings::isReplaceRemoveCaseSensitiveKey);
    options.startFromCharacter = values.integer(Settings::replaceRemoveStartFromCharacterKey);
    if (!values.boolean(Settings::isReplaceRemoveAllOccurrenceKey)) {
        options.startOnOccurrence = values.integer(Settings::replaceRemoveStartOnOccurrenceKey);
        options.occurrenceCount = values.integer(Settings::replaceRemoveOccuranceCountKey);
    }
    options.direction = static_cast<replaceremovedirection::ReplaceRemoveDirection>(
        values.integer(Settings::replaceRemovePositionDirectionKey));
    options.regularExpression = values.boolean(Settings::isReplaceRemoveRegularExpressionKey);
    return options;
}

bool renameByReplaceRemove(FileSystemItem& item, const ReplaceRemoveOptions& options, QString& error)
{
    if (options.mode == ReplaceRemoveMode::None)
        return error.isEmpty();
    if (options.regularExpression) {
        if (const std::optional<PatternProblem> problem = patternProblem(options.find)) {
            error = localized("PATTERNPROBLEM").arg(problem->description).arg(problem->column);
            return false;
        }
    }
    try {
        ReplaceRemoveOptions in = options;
        in.find = storedName(options.find);
        in.replacement = storedName(options.replacement);
        const NameParts parts = workingNameParts(item);
        item.setObject(withExtension(changedName(parts.name, in), parts.extension),
                       QLatin1String(itemkeys::NewFilename));
    } catch (const std::exception& e) {
        error = localized("UNABLETOGENERATENEWFILENAMEERROR").arg(QString::fromLocal8Bit(e.what()));
    }
    return error.isEmpty();
}

}  // namespace tavrin
