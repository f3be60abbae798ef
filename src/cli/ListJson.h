#pragma once

#include "core/list/FileList.h"

#include <QJsonObject>
#include <QStringList>

namespace tavrin::cli {

// {"items": [...], "skipped": [...]}: every record's stored values (not the display form,
// so a script sees the names as they are on disk), in list order.
QJsonObject listJson(const FileList& list, const QStringList& skipped);

}  // namespace tavrin::cli
