#include "core/log/RenameLogEntry.h"

#include "core/text/NameParts.h"

namespace tavrin {

RenameLogEntry RenameLogEntry::fromPaths(
    const QString& sourcePath, const QString& targetPath, quint64 device, quint64 inode)
{
    return {parentPath(sourcePath), parentPath(targetPath), displayName(lastPathComponent(sourcePath)),
        displayName(lastPathComponent(targetPath)), true, device, inode};
}

QString RenameLogEntry::sourcePath() const
{
    return joinPath(sourceLocation, storedName(sourceName));
}

QString RenameLogEntry::targetPath() const
{
    return joinPath(targetLocation, storedName(targetName));
}

}  // namespace tavrin
