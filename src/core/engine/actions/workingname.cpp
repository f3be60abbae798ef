#include "core/engine/actions/workingname.h"

namespace tavrin {

NameParts workingNameParts(const FileSystemItem& item)
{
    const QString& proposed = item.newFilename();
    if (!proposed.isEmpty())
        return splitNameAndExtension(proposed);
    return {item.filename(), item.fileExtension()};
}

QString withExtension(const QString& name, const QString& extension)
{
    if (extension.isEmpty())
        return name;
    return name + QLatin1Char('.') + extension;
}

}  // namespace tavrin
