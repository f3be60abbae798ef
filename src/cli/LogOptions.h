#pragma once

#include <QString>
#include <QStringList>

namespace tavrin::cli {

// The options of the commands that work on rename logs rather than on a list of files.
struct LogOptions {
    bool json = false;
    bool yes = false;
    bool help = false;
    QStringList logs; // the LOG arguments: paths, or file names in the log folder
};

// Reads the arguments of `logs` (no --yes, no LOG) and `undo` (--yes, at most one LOG). "--"
// ends the options. On bad usage answers false with a message in `error`; with --help it stops
// there and answers true, `help` set.
bool parseLogOptions(
    const QStringList& arguments, bool acceptsYes, int maxLogs, LogOptions& options, QString& error);

// The log a LOG argument names: a path to an existing file, or else the name of a file in the
// log folder. Empty when there is neither.
QString resolveLogArgument(const QString& argument, const QString& logFolder);

}  // namespace tavrin::cli
