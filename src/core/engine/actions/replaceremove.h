#pragma once

#include "core/list/FileSystemItem.h"

#include <QString>

namespace tavrin {

// The values of replaceRemovePositionDirection the tab offers.
namespace replaceremovedirection {
inline constexpr int FromStart = 0;
inline constexpr int FromEnd = 1;
}  // namespace replaceremovedirection

// The occurrence arguments that mean "every occurrence": the tab's all-occurrences switch
// and the remove-characters mode pass these, and rule steps store them.
namespace replaceremoveall {
inline constexpr int StartOnOccurrence = 1;
inline constexpr int OccurrenceCount = -1;
}  // namespace replaceremoveall

// Replaces or removes text in the name (never in the extension) and writes the result,
// extension included, into the record's newFilename. Works on the name an earlier rule step
// proposed when there is one.
//
// The search begins at the 1-based startFromCharacter (the characters before it are kept
// as they are), changes `occurrenceCount` matches (-1 all, 0 none) from the
// startOnOccurrence-th on, and matches case-sensitively or not. With removeCharacters every
// single character of replaceThis is deleted wherever it occurs, and the occurrence
// arguments are not used. A typed "/" in either text stands for the ":" a name stores.
//
// A non-zero direction works on the reversed name, but only a direction of exactly 1
// reverses the result back. The find and replacement texts are never reversed, so from the
// end a text of two or more characters matches where the name holds it backwards and a
// longer replacement comes out backwards: rule files written so far depend on this.
//
// Answers true when `error` (which the caller empties) is still empty afterwards.
bool renameByReplaceRemove(FileSystemItem& item, const QString& replaceThis, const QString& replaceWith,
                           bool caseSensitive, bool removeCharacters, int startFromCharacter, int startOnOccurrence,
                           int occurrenceCount, int replaceRemovePositionDirection, QString& error);

// The 1-based position of the startOnOccurrence-th (non-overlapping) occurrence of `replace`
// in `str`, or 0 when there are fewer. Occurrence 1 answers 0: the action starts at position
// 1 without asking.
int findLocationInString(const QString& str, const QString& replace, int startOnOccurrence, bool caseSensitive);

}  // namespace tavrin
