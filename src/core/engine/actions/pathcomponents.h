#pragma once

#include "core/engine/actions/insertdelete.h"
#include "core/list/FileSystemItem.h"

#include <QString>

namespace tavrin {

class OptionValues;

// The path-components tab. Texts are kept as typed; the placement is the insert tab's, with
// an empty text.
struct PathComponentsOptions {
    int level = 1;
    InsertOptions placement{};
    QString separator{};
    QString prefix{};
    QString suffix{};

    static PathComponentsOptions from(const OptionValues& values);
};

// The names of the last `level` folders of the item's folder path, outermost first, joined
// by the separator ("Trips-Rome"). The root is never one of them: a level beyond the depth,
// or below 0, takes every folder below the root; level 0 takes none. Names are as stored
// (a ":" stays a ":").
QString folderText(const QString& folderPath, int level, const QString& separator);

// Puts the prefix, the folder text and the suffix into the item's name at the place the
// placement says; the extension stays, and the name an earlier rule step proposed is
// worked on when there is one. A typed "/" in the texts stands for ":".
// Answers true when `error` (which the caller empties) is still empty afterwards.
bool renameByPathComponents(FileSystemItem& item, const PathComponentsOptions& options, QString& error);

}  // namespace tavrin
