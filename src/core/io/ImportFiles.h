#pragma once

#include "core/io/RenameFileReader.h"
#include "core/list/Progress.h"

#include <atomic>

namespace tavrin {

class FileList;

struct ImportResult {
    int added = 0;                     // records appended to the list
    bool hasFilesForRenaming = false;  // at least one record holds a real new name
    bool cancelled = false;
};

// Appends a record per listed path, in list order, carrying its wanted new name or the
// status that stops it: "File Not Found"/"Folder Not Found" for a path that is gone, "No
// Changes" for the same name (or one that is not a single path component), "File Already
// Exists"/"Folder Already Exists" when its folder already holds the new name. Only records
// of the kind the list names (folders for importType 1, anything else for 0) and paths new
// to the list are appended; a change of letter case alone counts as a change.
ImportResult importFiles(FileList& list, const FileRenameItem& renameList, const std::atomic_bool& cancel,
                         ProgressObserver* observer = nullptr);

}  // namespace tavrin
