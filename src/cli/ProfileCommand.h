#pragma once

#include <QStringList>
#include <QTextStream>

namespace tavrin::cli {

// `tavrin-cli profile save FILE [OPTION]...`: a profile of the options the command line gives.
// `tavrin-cli profile show FILE [--json]`: every option a profile holds, in record order.
int runProfileCommand(const QStringList& arguments, QTextStream& out, QTextStream& err);

}  // namespace tavrin::cli
