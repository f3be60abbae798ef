#pragma once

#include "core/list/FileSystemItem.h"

#include <QString>

namespace tavrin {

class OptionValues;

// Where the insert tab puts its text, by the value of insertDeleteInsertOptionIndex.
namespace insertoption {
enum InsertPlace : int {
    AtBeginning = 0,
    AtEnd = 1,
    AtPosition = 2,
    BeforeText = 3,
    AfterText = 4,
};
}  // namespace insertoption

// The values of insertDeleteInsertAtPostionDirection the tab offers.
namespace insertdirection {
enum InsertDirection : int {
    FromStart = 0,
    FromEnd = 1,
};
}  // namespace insertdirection

// The option keys of the seven placement options. The date/time and path-components tabs
// place their texts as the insert tab does, each from options of its own.
struct PlacementKeys {
    const char* place;
    const char* position;
    const char* direction;
    const char* beforeText;
    const char* beforeOccurrence;
    const char* afterText;
    const char* afterOccurrence;
};

// The insert half of the insert/delete tab. Texts are kept as typed.
struct InsertOptions {
    QString text{};
    insertoption::InsertPlace place = insertoption::AtBeginning;
    int position = 1;
    insertdirection::InsertDirection direction = insertdirection::FromStart;
    QString beforeText{};
    int beforeOccurrence = 1;
    QString afterText{};
    int afterOccurrence = 1;

    static InsertOptions from(const OptionValues& values);
    // The placement alone, read by the given keys; the text is left empty.
    static InsertOptions placement(const OptionValues& values, const PlacementKeys& keys);
};

// The delete half of the insert/delete tab.
struct DeleteOptions {
    bool fromBackward = false;
    int fromPosition = 1;
    int count = 0;

    static DeleteOptions from(const OptionValues& values);
};

// Inserts text into the name (never into the extension) and writes the result, extension
// included, into the record's newFilename; works on the name an earlier rule step proposed
// when there is one. Positions are 1-based: position length + 1 appends, a position beyond
// that (or below 1) leaves the name as it is. From the end position 1 is after the last
// character and the inserted text still reads forwards; any direction but FromEnd counts
// from the start. The anchors of BeforeText and AfterText always match case-sensitively; a
// missing occurrence leaves the name unchanged. An unknown place proposes nothing at all. A
// typed "/" in the texts stands for ":".
// Answers true when `error` (which the caller empties) is still empty afterwards.
bool renameByInsert(FileSystemItem& item, const InsertOptions& options, QString& error);

// Deletes `count` characters of the name from the 1-based fromPosition, counted from the
// end when fromBackward is set; the extension stays. A run reaching past the end deletes to
// the end, a position beyond the end deletes nothing, and position 0 counts as position 1
// with one character fewer.
// Answers true when `error` (which the caller empties) is still empty afterwards.
bool renameByDelete(FileSystemItem& item, const DeleteOptions& options, QString& error);

}  // namespace tavrin
