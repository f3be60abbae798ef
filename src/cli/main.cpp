#include "cli/Cli.h"
#include "cli/Usage.h"
#include "core/log/LogRecovery.h"
#include "core/profiles/Preferences.h"

#include <QCoreApplication>
#include <cstdio>

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    QTextStream out(stdout);
    QTextStream err(stderr);
    QStringList arguments = QCoreApplication::arguments();
    arguments.removeFirst();
    // The support folder with its logs, profiles and rules is there before any command runs.
    if (tavrin::cli::needsSupportFolder(arguments)) {
        const tavrin::ApplicationSupport support = tavrin::prepareApplicationSupport();
        if (!support.isReady()) {
            err << support.errorTitle << ": " << support.errorMessage << '\n';
            return tavrin::cli::kExitFailed;
        }
        tavrin::recoverInterruptedLogs(support.preferences.defaultLogFolderPath);
    }
    const int status = tavrin::cli::run(arguments, out, err);
    out.flush();
    err.flush();
    return status;
}
