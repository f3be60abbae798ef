#pragma once

#include <QStringList>
#include <QTextStream>

namespace tavrin::cli {

// `tavrin-cli options [--tab NAME] [--json]`: every option key --set takes, with its type, its
// default, the values it allows and what it does, in the user's language.
int runOptionsCommand(const QStringList& arguments, QTextStream& out, QTextStream& err);

// The tab an option belongs to, or -1 for the options of the list itself.
int tabOfOption(const QString& key);

}  // namespace tavrin::cli
