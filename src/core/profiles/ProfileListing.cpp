#include "core/profiles/ProfileListing.h"

#include "core/platform/FileDates.h"
#include "core/platform/FileOperations.h"
#include "core/text/NameParts.h"

#include <QDir>

namespace tavrin {

namespace {

constexpr char kProfileExtension[] = "tnprofile";

}  // namespace

QList<ProfileRecord> loadProfiles(const QString& folder)
{
    QList<ProfileRecord> profiles;
    const QStringList entries = QDir(folder).entryList(QDir::Files, QDir::Name | QDir::IgnoreCase);
    for (const QString& entry : entries) {
        if (splitNameAndExtension(entry).extension.toLower() != QLatin1String(kProfileExtension))
            continue;
        if (const std::optional<FileDates> dates = readFileDates(joinPath(folder, entry)))
            profiles.append({entry, dates->created});
    }
    return profiles;
}

QString profilePathForName(const QString& folder, const QString& name)
{
    const QString fileName = storedName(name.trimmed()) + QLatin1Char('.') + QLatin1String(kProfileExtension);
    if (name.trimmed().isEmpty() || !isValidNewName(fileName))
        return {};
    return joinPath(folder, fileName);
}

}  // namespace tavrin
