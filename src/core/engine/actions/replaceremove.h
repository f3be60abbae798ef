#pragma once

#include "core/list/FileSystemItem.h"

#include <QString>

namespace tavrin {

class OptionValues;

// The values of replaceRemovePositionDirection the tab offers. Rule files may hold others
// (see renameByReplaceRemove), so the type keeps any int.
namespace replaceremovedirection {
enum ReplaceRemoveDirection : int {
    FromStart = 0,
    FromEnd = 1,
};
}  // namespace replaceremovedirection

// The occurrence values that mean "every occurrence": the tab's all-occurrences switch
// stands for these, and rule steps store them.
namespace replaceremoveall {
inline constexpr int StartOnOccurrence = 1;
inline constexpr int OccurrenceCount = -1;
}  // namespace replaceremoveall

// Which of the tab's mode switches is on; None when none is, and then nothing runs.
enum class ReplaceRemoveMode { None, Replace, Remove, RemoveCharacters };

// The replace/remove tab's options. Texts are kept as typed.
struct ReplaceRemoveOptions {
    ReplaceRemoveMode mode = ReplaceRemoveMode::Replace;
    QString find{};
    QString replacement{};  // used in Replace mode only
    bool caseSensitive = false;
    int startFromCharacter = 1;
    int startOnOccurrence = replaceremoveall::StartOnOccurrence;
    int occurrenceCount = replaceremoveall::OccurrenceCount;
    replaceremovedirection::ReplaceRemoveDirection direction = replaceremovedirection::FromStart;
    // `find` is a regular expression and `replacement` may name its groups.
    bool regularExpression = false;

    static ReplaceRemoveOptions from(const OptionValues& values);
};

// Replaces or removes text in the name (never in the extension) and writes the result,
// extension included, into the record's newFilename. Works on the name an earlier rule step
// proposed when there is one. In mode None the record is left as it is.
//
// The search begins at the 1-based startFromCharacter (the characters before it are kept
// as they are), changes `occurrenceCount` matches (-1 all, 0 none) from the
// startOnOccurrence-th on, and matches case-sensitively or not. In RemoveCharacters mode
// every single character of `find` is deleted wherever it occurs, and the occurrence
// values are not used. A typed "/" in either text stands for the ":" a name stores.
//
// A non-zero direction works on the reversed name, but only a direction of exactly 1
// reverses the result back. The find and replacement texts are never reversed, so from the
// end a text of two or more characters matches where the name holds it backwards and a
// longer replacement comes out backwards: rule files written so far depend on this.
//
// With `regularExpression`, `find` is a pattern (see patternreplace.h): the name is never
// reversed, the occurrences are counted from the end of the name for a non-zero direction,
// and RemoveCharacters deletes every match. A pattern that cannot be used is an error.
//
// Answers true when `error` (which the caller empties) is still empty afterwards.
bool renameByReplaceRemove(FileSystemItem& item, const ReplaceRemoveOptions& options, QString& error);

// Where to look for an occurrence: the text searched, the text sought and how to compare.
struct OccurrenceSearch {
    QString text{};
    QString sought{};
    bool caseSensitive = false;
};

// The 1-based position of the startOnOccurrence-th (non-overlapping) occurrence of the
// sought text, or 0 when there are fewer. Occurrence 1 answers 0: the action starts at
// position 1 without asking.
int findLocationInString(const OccurrenceSearch& search, int startOnOccurrence);

}  // namespace tavrin
