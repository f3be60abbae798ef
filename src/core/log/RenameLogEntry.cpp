#include "core/log/RenameLogEntry.h"

#include "core/text/NameParts.h"

namespace tavrin {

RenameLogEntry RenameLogEntry::fromPaths(const QString& sourcePath, const QString& targetPath)
{
    return {parentPath(sourcePath), parentPath(targetPath), displayName(lastPathComponent(sourcePath)),
        displayName(lastPathComponent(targetPath))};
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
