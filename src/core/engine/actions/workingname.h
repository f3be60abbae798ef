#pragma once

#include "core/list/FileSystemItem.h"
#include "core/text/NameParts.h"

#include <QString>

namespace tavrin {

// The name and extension an action works on. In a rule chain an earlier step may already
// have proposed a name, extension included; later steps build on that proposal, whose
// extension may differ from the record's own.
NameParts workingNameParts(const FileSystemItem& item);

// The last path component made of a name and an extension; no dot for an empty extension.
QString withExtension(const QString& name, const QString& extension);

}  // namespace tavrin
