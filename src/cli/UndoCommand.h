#pragma once

#include <QStringList>
#include <QTextStream>

namespace tavrin::cli {

// `tavrin-cli undo`: gives the items of a logged batch (the newest, or the LOG given) back
// their old names, then deletes the log.
int runUndoCommand(const QStringList& arguments, QTextStream& out, QTextStream& err);

}  // namespace tavrin::cli
