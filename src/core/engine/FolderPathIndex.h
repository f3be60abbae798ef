#pragma once

#include <QString>
#include <map>

namespace tavrin {

class FileList;

// The listed paths in path order, so that the records below a renamed folder are found
// by one range lookup instead of a scan of the whole list: a batch that renames folders
// and their contents stays O(n log n).
class FolderPathIndex {
public:
    explicit FolderPathIndex(const FileList& list);

    // The item at `source` is now at `target`: rewrites the paths of the listed records at
    // and below it, in the list and in the index.
    void itemMoved(FileList& list, const QString& source, const QString& target);

private:
    std::map<QString, int> m_rowByPath;
};

}  // namespace tavrin
