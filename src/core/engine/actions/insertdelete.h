#pragma once

#include "core/list/FileSystemItem.h"

#include <QString>

namespace tavrin {

// Where the insert tab puts its text, by the value of insertDeleteInsertOptionIndex.
namespace insertoption {
inline constexpr int AtBeginning = 0;
inline constexpr int AtEnd = 1;
inline constexpr int AtPosition = 2;
inline constexpr int BeforeText = 3;
inline constexpr int AfterText = 4;
}  // namespace insertoption

// The values of insertDeleteInsertAtPostionDirection the tab offers.
namespace insertdirection {
inline constexpr int FromStart = 0;
inline constexpr int FromEnd = 1;
}  // namespace insertdirection

// Inserts text into the name (never into the extension) and writes the result, extension
// included, into the record's newFilename; works on the name an earlier rule step proposed
// when there is one. Positions are 1-based: position length + 1 appends, a position beyond
// that (or below 1) leaves the name as it is. From the end (direction 1) position 1 is after
// the last character and the inserted text still reads forwards. The anchors of options 3
// and 4 always match case-sensitively; a missing occurrence leaves the name unchanged. An
// unknown option proposes nothing at all. A typed "/" in the texts stands for ":".
// Answers true when `error` (which the caller empties) is still empty afterwards.
bool renameByInsert(FileSystemItem& item, const QString& insertText, int insertOptionIndex, int atCharacterPositions,
                    int atPostionDirection, const QString& atBeforeText, int atBeforeOccurrence,
                    const QString& atAfterText, int atAfterOccurrence, QString& error);

// Deletes numberOfCharacters characters of the name from the 1-based fromCharacterPosition,
// counted from the end when deleteFromBackward is set; the extension stays. A run reaching
// past the end deletes to the end, a position beyond the end deletes nothing, and position 0
// counts as position 1 with one character fewer.
// Answers true when `error` (which the caller empties) is still empty afterwards.
bool renameByDelete(FileSystemItem& item, bool deleteFromBackward, int fromCharacterPosition, int numberOfCharacters,
                    QString& error);

}  // namespace tavrin
