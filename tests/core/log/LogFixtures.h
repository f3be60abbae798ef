#pragma once

#include "core/log/RenameLogEntry.h"
#include "core/log/RenameLogFormat.h"
#include "core/formats/VersionStamp.h"
#include "support/TempTree.h"

#include <QList>
#include <QString>

namespace tavrin::test {

// A finished log as apply writes it, at `relative` in the tree.
inline QString writeLog(TempTree& tree, const QString& relative, const QList<RenameLogEntry>& entries,
    const QString& version = appVersion())
{
    return tree.file(relative, logxml::document(QStringLiteral("FILES"), entries, version));
}

// A major version this build does not open: one more than its own.
inline QString otherMajorVersion()
{
    return QString::number(appVersion().section(QLatin1Char('.'), 0, 0).toInt() + 1) + QStringLiteral(".0.0");
}

}  // namespace tavrin::test
