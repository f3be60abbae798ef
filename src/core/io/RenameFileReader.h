#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

namespace tavrin {

// A rename list read from a file: the listed paths in file order (duplicates kept), the new
// name wanted for each path, and whether the list names files (0) or folders (1).
struct FileRenameItem {
    FileRenameItem() = default;
    FileRenameItem(QStringList data, QHash<QString, QString> newNames, int type)
        : paths(std::move(data))
        , records(std::move(newNames))
        , importType(type)
    {
    }

    QStringList paths;
    QHash<QString, QString> records;
    int importType = 0;
};

struct RenameFileRead {
    const char* problemKey = nullptr;  // "UNABLETOOPENFILE", "RENAMEFROMFILEMESSAGE" or null
    FileRenameItem list;
};

// Lines of three tab-separated fields (name, new name, absolute folder), split at line feeds
// only; the first line decides whether the text is usable at all, and is skipped when it is
// the header in the current language. A "/" in a name is kept as ":". A line whose name is
// not one path component, or whose folder is not an absolute path, is skipped, so no line
// can reach outside the folder it names. An existing item is listed by its canonical path,
// an empty new name meaning its current name; a missing one gets an empty new name.
RenameFileRead parseRenameList(const QString& text, int importType);

// Reads the file (a regular file, UTF-8, within a size cap) and parses it.
RenameFileRead readRenameFile(const QString& path, int importType);

}  // namespace tavrin
