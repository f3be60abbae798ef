#include "core/io/ImportFiles.h"

#include "core/list/FileList.h"
#include "core/platform/FileOperations.h"
#include "core/text/NameParts.h"

namespace tavrin {

namespace {

bool judgeNewName(FileSystemItem& item)
{
    const QString old = item.filenameWithExtension();
    QString proposed = item.newFilename();
    if (proposed.isEmpty())
        proposed = old;
    if (!isValidNewName(proposed) || old == proposed) {
        item.setStatus(RenameStatus::NoChanges);
        return false;
    }
    if (old.compare(proposed, Qt::CaseInsensitive) == 0)
        return true;
    if (pathExists(joinPath(item.fileLocation(), proposed))) {
        item.setStatus(item.isFolder() ? RenameStatus::FolderAlreadyExists : RenameStatus::FileAlreadyExists);
        return false;
    }
    return true;
}

}  // namespace

ImportResult importFiles(FileList& list, const FileRenameItem& renameList, const std::atomic_bool& cancel,
                         ProgressObserver* observer)
{
    ImportResult result;
    ThrottledProgress progress(observer);
    const bool folders = renameList.importType == 1;
    const int total = static_cast<int>(renameList.paths.size());
    int done = 0;
    for (const QString& path : renameList.paths) {
        if (cancel.load()) {
            result.cancelled = true;
            break;
        }
        std::optional<FileSystemItem> item = FileSystemItem::initWithPath(path);
        progress.report(path, done++, total);
        if (!item)
            continue;
        item->setObject(renameList.records.value(path), QString::fromLatin1(itemkeys::NewFilename));
        bool renames = false;
        if (!pathExists(path)) {
            item->markMissingAs(folders ? ItemType::Folder : ItemType::File);
            item->setStatus(folders ? RenameStatus::FolderNotFound : RenameStatus::FileNotFound);
        } else {
            renames = judgeNewName(*item);
        }
        if (item->isFolder() != folders || !list.append(std::move(*item)))
            continue;
        ++result.added;
        result.hasFilesForRenaming = result.hasFilesForRenaming || renames;
    }
    progress.finish(QString(), done, total);
    return result;
}

}  // namespace tavrin
