#pragma once

#include <QString>

namespace tavrin {

// One rename as a log names it: the folders before and after, and the two names in the form
// users see (every ":" of the stored name shown as "/").
struct RenameLogEntry {
    QString sourceLocation;  // "srclocation"
    QString targetLocation;  // "tarlocation"
    QString sourceName;  // "srcfilename"
    QString targetName;  // "tarfilename"
    // False for an entry read from a log that lacks one of the four attributes; undo skips it.
    bool hasAllAttributes = true;
    // The device and inode of the item renamed, so undo moves back only that item; 0 where the
    // log does not say (logs of earlier versions, or an item gone before its entry was written).
    quint64 device = 0;
    quint64 inode = 0;

    static RenameLogEntry fromPaths(const QString& sourcePath, const QString& targetPath,
        quint64 device = 0, quint64 inode = 0);

    bool hasIdentity() const { return inode != 0; }

    // The paths again, names turned back into their stored form.
    QString sourcePath() const;
    QString targetPath() const;

    bool operator==(const RenameLogEntry&) const = default;
};

}  // namespace tavrin
