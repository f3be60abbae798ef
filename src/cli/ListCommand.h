#pragma once

#include <QStringList>
#include <QTextStream>

namespace tavrin::cli {

// tavrin-cli list [--folders] [--recursive] [--sort KEY]... [--json] PATH...
// Prints the list the window would show for the PATHs. Answers the exit status.
int runListCommand(const QStringList& arguments, QTextStream& out, QTextStream& err);

} // namespace tavrin::cli
