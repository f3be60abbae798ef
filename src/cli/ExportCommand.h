#pragma once

#include <QStringList>
#include <QTextStream>

namespace tavrin::cli {

// `tavrin-cli export`: the previewed list written as tab-separated text, to be edited and
// loaded back with `tavrin-cli import`.
int runExportCommand(const QStringList& arguments, QTextStream& out, QTextStream& err);

}  // namespace tavrin::cli
