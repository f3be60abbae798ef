#pragma once

#include "core/list/FileSystemItem.h"

#include <QString>

namespace tavrin {

class OptionValues;

// The options of the general tab, by the value of generalOptionIndex. Exactly one is
// active at a time.
namespace generaloption {
enum GeneralOption : int {
    ConvertFilenameCase = 0,
    ConvertExtensionCase = 1,
    RemoveExtension = 2,
    ChangeExtension = 3,
    ReverseFilename = 4,
    RemoveSpaces = 5,
    SwapBySeperator = 6,
    SwapByPosition = 7,
    RemoveAfterString = 8,
    RemoveFromString = 9,
    FilenameMask = 10,
    ConvertWindowsCompatible = 11,
};
}  // namespace generaloption

// The letter-case codes of generalFileNameCase and generalExtensionCase. Any other value
// leaves the text as it is.
namespace lettercase {
enum LetterCase : int {
    Unchanged = 0,
    Upper = 1,
    Lower = 2,
    // The first character of each whitespace-delimited word upper case, the rest lower case.
    Proper = 3,
};
}  // namespace lettercase

// The general tab's options. The texts are kept as typed; the action turns a typed "/"
// into the ":" a name stores, except in the Windows replacement.
struct GeneralOptions {
    generaloption::GeneralOption option = generaloption::ConvertFilenameCase;
    lettercase::LetterCase fileNameCase = lettercase::Unchanged;
    lettercase::LetterCase extensionCase = lettercase::Unchanged;
    QString changeExtension{};
    QString swapSeperator{};
    int swapPosition = 1;
    QString removeAfterString{};
    int removeAfterOccurrence = 0;
    QString removeFromString{};
    int removeFromOccurrence = 0;
    QString windowsReplacement{};
    QString filenameMask{};

    static GeneralOptions from(const OptionValues& values);
};

// The general tab's one-step transformations of a name. Works on the name an earlier rule
// step proposed when there is one, else on the record's own name, and writes the result,
// extension included, into the record's newFilename. The case conversions keep the name
// otherwise equal, which is why the pipeline treats them as case-only renames.
// Answers true when `error` (which the caller empties) is still empty afterwards.
bool renameByGeneral(FileSystemItem& item, const GeneralOptions& options, QString& error);

// A text in one of the letter cases above.
QString convertLetterCase(const QString& text, lettercase::LetterCase letterCase);

}  // namespace tavrin
