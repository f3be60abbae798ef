#pragma once

#include <QByteArray>
#include <QString>

namespace tavrin {

class FileList;

// The columns an exported list holds, with the values the export sheet opens with.
struct ExportColumns {
    bool isFilename = true;
    bool isNewFilename = true;
    bool isLocation = true;
    bool isIncludeLocation = false;  // the folder goes into the name columns (full paths)
    bool addColumnNamesInHeader = true;
};

// The key of the message that refuses these columns ("EXPORTNOCOLUMN" when none is chosen,
// "EXPORTFILESFAILED" when the only one would be folded away), or null when they can be written.
const char* exportRefusal(const ExportColumns& columns);

// The whole file: the header line from the localized column names, then one line per item.
// A tab is written only after non-empty text, so an empty value shifts the next one left,
// and an entirely empty first line gets no line feed. A record that holds a status instead
// of a proposal exports an empty new name: loaded back, it keeps its current name.
QByteArray exportListText(const FileList& list, const ExportColumns& columns);

// Writes the text as it is (UTF-8, no byte-order mark). An existing file is replaced only
// when `replace` is set. False with the system's reason in `error` when it cannot be written.
bool writeExportFile(const QString& path, const QByteArray& text, bool replace, QString& error);

}  // namespace tavrin
