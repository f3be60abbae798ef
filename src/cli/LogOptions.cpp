#include "cli/LogOptions.h"

#include "core/platform/FileOperations.h"
#include "core/text/LocalizedStrings.h"
#include "core/text/NameParts.h"

#include <QDir>

namespace tavrin::cli {

namespace {

bool isOption(const QString& argument)
{
    return argument.size() > 1 && argument.startsWith(QLatin1Char('-'));
}

// Takes one option; false with `error` set when it is not one of the command's.
bool takeOption(const QString& argument, bool acceptsYes, LogOptions& options, QString& error)
{
    if (argument == QLatin1String("--json"))
        options.json = true;
    else if (argument == QLatin1String("--yes") && acceptsYes)
        options.yes = true;
    else
        error = localized("CLIUNKNOWNOPTION").arg(argument);
    return error.isEmpty();
}

}  // namespace

bool parseLogOptions(
    const QStringList& arguments, bool acceptsYes, int maxLogs, LogOptions& options, QString& error)
{
    error.clear();
    bool optionsEnded = false;
    for (const QString& argument : arguments) {
        if (optionsEnded || !isOption(argument)) {
            options.logs.append(argument);
        } else if (argument == QLatin1String("--")) {
            optionsEnded = true;
        } else if (argument == QLatin1String("--help") || argument == QLatin1String("-h")) {
            options.help = true;
            return true;
        } else if (!takeOption(argument, acceptsYes, options, error)) {
            return false;
        }
    }
    if (options.logs.size() > maxLogs) {
        error = maxLogs == 0 ? localized("CLINOLOGARGUMENTS") : localized("CLIONELOGONLY");
        return false;
    }
    return true;
}

QString resolveLogArgument(const QString& argument, const QString& logFolder)
{
    if (pathExists(argument))
        return QDir::cleanPath(QDir::current().absoluteFilePath(argument));
    if (argument.contains(QLatin1Char('/')))
        return QString();
    const QString inLogFolder = joinPath(logFolder, argument);
    return pathExists(inLogFolder) ? inLogFolder : QString();
}

}  // namespace tavrin::cli
