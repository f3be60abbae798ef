#pragma once

#include <QDateTime>
#include <QList>
#include <QString>

namespace tavrin {

// A profile of the profile folder, as the profiles sheet lists it.
struct ProfileRecord {
    QString profileName;  // the file name
    QDateTime dateCreated;
};

// The profiles (".tnprofile", in any case) of a folder, by name. An entry whose dates cannot
// be read is left out; a folder that cannot be listed gives none.
QList<ProfileRecord> loadProfiles(const QString& folder);

// Where a profile typed by name goes: the folder, the name with a typed "/" kept as ":", and
// ".tnprofile". Empty when the name cannot be a file name.
QString profilePathForName(const QString& folder, const QString& name);

}  // namespace tavrin
