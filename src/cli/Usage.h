#pragma once

#include <QString>
#include <QTextStream>

namespace tavrin::cli {

// The exit statuses of every command.
inline constexpr int kExitDone = 0;
inline constexpr int kExitFailed = 1;
inline constexpr int kExitBadUsage = 2;

// Writes "tavrin-cli COMMAND: MESSAGE" and where to find the command's usage; answers
// kExitBadUsage.
int reportUsageError(const char* command, const QString& message, QTextStream& err);

} // namespace tavrin::cli
