#pragma once

#include "core/list/FileSystemItem.h"

#include <QString>

namespace tavrin {

// The options of the general tab, by the value of generalOptionIndex. Exactly one is
// active at a time.
namespace generaloption {
inline constexpr int ConvertFilenameCase = 0;
inline constexpr int ConvertExtensionCase = 1;
inline constexpr int RemoveExtension = 2;
inline constexpr int ChangeExtension = 3;
inline constexpr int ReverseFilename = 4;
inline constexpr int RemoveSpaces = 5;
inline constexpr int SwapBySeperator = 6;
inline constexpr int SwapByPosition = 7;
inline constexpr int RemoveAfterString = 8;
inline constexpr int RemoveFromString = 9;
inline constexpr int FilenameMask = 10;
inline constexpr int ConvertWindowsCompatible = 11;
}  // namespace generaloption

// The letter-case codes of generalFileNameCase and generalExtensionCase. Any other value
// leaves the text as it is.
namespace lettercase {
inline constexpr int Upper = 1;
inline constexpr int Lower = 2;
// The first character of each whitespace-delimited word upper case, the rest lower case.
inline constexpr int Proper = 3;
}  // namespace lettercase

// The general tab's one-step transformations of a name. Works on the name an earlier rule
// step proposed when there is one, else on the record's own name, and writes the result,
// extension included, into the record's newFilename. The case conversions keep the name
// otherwise equal, which is why the pipeline treats options 0 and 1 as case-only renames.
// Answers true when `error` (which the caller empties) is still empty afterwards.
bool renameByGeneral(FileSystemItem& item, int generalOptionIndex, int generalFileNameCase, int generalExtensionCase,
                     const QString& generalChangeExtension, const QString& generalSwapSeperator,
                     const QString& generalSwapPosition, const QString& generalRemoveAfterString,
                     const QString& generalRemoveFromString, const QString& generalRemoveAfterStringOccurrence,
                     const QString& generalRemoveFromStringOccurrence,
                     const QString& generalConvertWindowsCompatibleString, const QString& generalFilenameMask,
                     QString& error);

// A text in one of the letter-case codes above.
QString convertLetterCase(const QString& text, int caseCode);

}  // namespace tavrin
