#pragma once

#include <QStringList>
#include <QTextStream>

namespace tavrin::cli {

// `tavrin-cli preview`: the new names one action tab proposes, nothing changed on disk.
int runPreviewCommand(const QStringList& arguments, QTextStream& out, QTextStream& err);

// `tavrin-cli apply`: the same preview, then the renames on disk, logged for undo.
int runApplyCommand(const QStringList& arguments, QTextStream& out, QTextStream& err);

}  // namespace tavrin::cli
