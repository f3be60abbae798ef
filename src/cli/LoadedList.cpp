#include "cli/LoadedList.h"

#include "core/platform/FileOperations.h"
#include "core/text/LocalizedStrings.h"

#include <ranges>

namespace tavrin::cli {

namespace {

// Stable sorts from the last key to the first leave the first key deciding, the next
// one breaking its ties, and so on.
void sortByKeys(FileList& list, const QList<SortKey>& keys)
{
    for (const SortKey& key : std::views::reverse(keys))
        list.sortBy(key);
}

} // namespace

LoadedList loadList(const CommonOptions& options)
{
    LoadedList loaded;
    for (const QString& path : options.paths) {
        if (!pathExists(path))
            loaded.missing.append(path);
        else if (!options.scan.folders && !options.scan.includeSubFolders && isDirectory(path))
            loaded.unsearchedFolders.append(path);
    }
    const std::atomic_bool neverCancelled = false;
    loaded.skipped = loaded.list.addFiles(options.paths, options.scan, neverCancelled).skipped;
    sortByKeys(loaded.list, options.sortKeys);
    return loaded;
}

void reportProblems(const LoadedList& loaded, bool reportSkipped, QTextStream& err)
{
    for (const QString& path : loaded.missing)
        err << localized("CLIPATHNOTFOUND").arg(path) << '\n';
    for (const QString& path : loaded.unsearchedFolders)
        err << localized("CLIFOLDERNOTSEARCHED").arg(path) << '\n';
    if (!reportSkipped)
        return;
    for (const QString& path : loaded.skipped)
        err << localized("CLISKIPPEDNAME").arg(path) << '\n';
}

} // namespace tavrin::cli
