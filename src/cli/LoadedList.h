#pragma once

#include "cli/CommonOptions.h"
#include "core/list/FileList.h"

#include <QTextStream>

namespace tavrin::cli {

// The list a command works on, made from the PATHs as the window makes it.
struct LoadedList {
    FileList list;
    QStringList skipped; // names that are not valid UTF-8, as readable paths
    QStringList missing; // PATHs given that do not exist
    QStringList unsearchedFolders; // folders given in files mode without sub-folders
};

// Scans the PATHs in the mode the options ask for, then sorts by each --sort key, the
// first one given being the primary key.
LoadedList loadList(const CommonOptions& options);

// One line on `err` for every PATH not found and, unless the output already names them,
// for every skipped name.
void reportProblems(const LoadedList& loaded, bool reportSkipped, QTextStream& err);

} // namespace tavrin::cli
