#pragma once

#include <QStringList>
#include <QTextStream>

namespace tavrin::cli {

// `tavrin-cli import`: the new names of a rename list, previewed or (with --apply) applied.
int runImportCommand(const QStringList& arguments, QTextStream& out, QTextStream& err);

}  // namespace tavrin::cli
