#pragma once

#include <QStringList>
#include <QTextStream>

namespace tavrin::cli {

// `tavrin-cli rule add FILE [OPTION]...`: a step made of the options, as the window's add to
// rule makes it, appended to the rule file (made and stamped when new).
// `tavrin-cli rule show FILE [--json]`: the steps of a rule file, as the rules sheet shows them.
int runRuleCommand(const QStringList& arguments, QTextStream& out, QTextStream& err);

}  // namespace tavrin::cli
