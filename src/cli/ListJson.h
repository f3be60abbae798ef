#pragma once

#include "core/list/FileList.h"

#include <QJsonObject>
#include <QStringList>

namespace tavrin::cli {

// {"items": [...], "skipped": [...]}: every record's stored values (not the display form,
// so a script sees the names as they are on disk), in list order.
QJsonObject listJson(const FileList& list, const QStringList& skipped);

// The same after a preview: each item also says whether another item proposes its new name
// ("conflict"), and "conflicts" counts them.
QJsonObject previewJson(const FileList& list, const QStringList& skipped);

}  // namespace tavrin::cli
