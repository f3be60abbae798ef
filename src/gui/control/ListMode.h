#pragma once

namespace tavrin {

// Whether the list holds files or folders.
enum class ListMode { Files, Folders };

// How items handed over from outside are listed: the mode, and whether chosen folders are
// searched with their sub-folders.
struct ListChoice {
    ListMode mode = ListMode::Files;
    bool includeSubFolders = false;
};

} // namespace tavrin
