#include "cli/Cli.h"

#include "cli/ListCommand.h"
#include "cli/LogsCommand.h"
#include "cli/ProfileCommand.h"
#include "cli/RenameCommand.h"
#include "cli/RuleCommand.h"
#include "cli/UndoCommand.h"
#include "cli/Usage.h"
#include "core/text/LocalizedStrings.h"

namespace tavrin::cli {

namespace {

struct Command {
    const char* name;
    const char* summaryKey;
    int (*run)(const QStringList& arguments, QTextStream& out, QTextStream& err);
};

const Command kCommands[] = {
    { "list", "CLILISTSUMMARY", runListCommand },
    { "preview", "CLIPREVIEWSUMMARY", runPreviewCommand },
    { "apply", "CLIAPPLYSUMMARY", runApplyCommand },
    { "logs", "CLILOGSSUMMARY", runLogsCommand },
    { "undo", "CLIUNDOSUMMARY", runUndoCommand },
    { "rule", "CLIRULESUMMARY", runRuleCommand },
    { "profile", "CLIPROFILESUMMARY", runProfileCommand },
};

const Command* findCommand(const QString& name)
{
    for (const Command& command : kCommands) {
        if (name == QLatin1String(command.name))
            return &command;
    }
    return nullptr;
}

QString usage()
{
    QString commands;
    for (const Command& command : kCommands)
        commands += QStringLiteral("  %1  %2\n")
                        .arg(QString::fromLatin1(command.name), -8)
                        .arg(localized(command.summaryKey));
    return localized("CLIUSAGE").arg(commands);
}

bool isHelp(const QString& argument)
{
    return argument == QLatin1String("--help") || argument == QLatin1String("-h")
        || argument == QLatin1String("help");
}

} // namespace

int run(const QStringList& arguments, QTextStream& out, QTextStream& err)
{
    if (arguments.isEmpty()) {
        err << usage();
        return kExitBadUsage;
    }
    if (isHelp(arguments.first())) {
        out << usage();
        return kExitDone;
    }
    const Command* command = findCommand(arguments.first());
    if (!command) {
        err << "tavrin-cli: " << localized("CLIUNKNOWNCOMMAND").arg(arguments.first()) << '\n' << usage();
        return kExitBadUsage;
    }
    return command->run(arguments.mid(1), out, err);
}

} // namespace tavrin::cli
