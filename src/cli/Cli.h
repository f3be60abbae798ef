#pragma once

#include <QStringList>
#include <QTextStream>

namespace tavrin::cli {

// Runs tavrin-cli with its arguments (without the program name), writing to the given
// streams; returns the exit status: 0 done, 1 something failed, 2 bad usage.
int run(const QStringList& arguments, QTextStream& out, QTextStream& err);

// False for what only prints the program's own texts (help, version, options, the manual
// page, completions): those run without making the per-user support folder.
bool needsSupportFolder(const QStringList& arguments);

}  // namespace tavrin::cli
