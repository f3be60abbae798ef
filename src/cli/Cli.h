#pragma once

#include <QStringList>
#include <QTextStream>

namespace tavrin::cli {

// Runs tavrin-cli with its arguments (without the program name), writing to the given
// streams; returns the exit status: 0 done, 1 something failed, 2 bad usage.
int run(const QStringList& arguments, QTextStream& out, QTextStream& err);

}  // namespace tavrin::cli
