#include "cli/Cli.h"

namespace tavrin::cli {

int run(const QStringList& arguments, QTextStream& out, QTextStream& err)
{
    Q_UNUSED(out);
    err << "usage: tavrin-cli COMMAND ... (" << arguments.join(QLatin1Char(' ')) << ")\n";
    return 2;
}

}  // namespace tavrin::cli
