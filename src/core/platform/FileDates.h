#pragma once

#include <QDateTime>
#include <QString>
#include <optional>

namespace tavrin {

// The two dates a name can be given from. The creation date is the birth time where the
// file system records one (statx), else the modification date.
struct FileDates {
    QDateTime created;
    QDateTime modified;
};

// The dates of the item at `path` itself (a symbolic link's own, not its target's), to the
// millisecond; none when its attributes cannot be read.
std::optional<FileDates> readFileDates(const QString& path);

}  // namespace tavrin
