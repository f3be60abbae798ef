#include "cli/Cli.h"

#include "cli/ActionFlags.h"
#include "cli/CommonOptions.h"
#include "cli/ExportCommand.h"
#include "cli/ImportCommand.h"
#include "cli/ListCommand.h"
#include "cli/LogsCommand.h"
#include "cli/ManPage.h"
#include "cli/OptionsCommand.h"
#include "cli/ProfileCommand.h"
#include "cli/RenameCommand.h"
#include "cli/RuleCommand.h"
#include "cli/Suggestion.h"
#include "cli/UndoCommand.h"
#include "cli/Usage.h"
#include "core/profiles/Settings.h"
#include "core/profiles/Tabs.h"
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
    { "options", "CLIOPTIONSSUMMARY", runOptionsCommand },
    { "export", "CLIEXPORTSUMMARY", runExportCommand },
    { "import", "CLIIMPORTSUMMARY", runImportCommand },
};

QStringList commandNames()
{
    QStringList names;
    for (const Command& command : kCommands)
        names.append(QString::fromLatin1(command.name));
    return names;
}

// The words a shell completes, one per line: "commands", "options COMMAND", "tabs", "keys" or
// "sortkeys".
int printCompletions(const QStringList& arguments, QTextStream& out)
{
    const QString kind = arguments.value(0);
    QStringList words;
    if (kind == QLatin1String("commands")) {
        words = commandNames();
    } else if (kind == QLatin1String("options")) {
        words = QStringList { QStringLiteral("--help"), QStringLiteral("--json") };
        const QString command = arguments.value(1);
        if (command != QLatin1String("logs") && command != QLatin1String("undo") && command != QLatin1String("options"))
            words << QStringLiteral("--folders") << QStringLiteral("--recursive") << QStringLiteral("--sort");
        if (command == QLatin1String("preview") || command == QLatin1String("apply"))
            words << QStringLiteral("--tab") << QStringLiteral("--set") << QStringLiteral("--yes")
                  << QStringLiteral("--continue-without-log") << QStringLiteral("--dry-run") << QStringLiteral("--rule")
                  << QStringLiteral("--profile") << actionFlagNames();
        if (command == QLatin1String("rule") || command == QLatin1String("profile"))
            words << QStringLiteral("--tab") << QStringLiteral("--set") << QStringLiteral("--profile");
        if (command == QLatin1String("profile"))
            words << QStringLiteral("--yes");
        if (command == QLatin1String("export"))
            words << QStringLiteral("--tab") << QStringLiteral("--set") << QStringLiteral("--columns")
                  << QStringLiteral("--include-location") << QStringLiteral("--no-header") << QStringLiteral("--output");
        if (command == QLatin1String("undo") || command == QLatin1String("import"))
            words << QStringLiteral("--yes");
        if (command == QLatin1String("import"))
            words << QStringLiteral("--apply");
        if (command == QLatin1String("options"))
            words << QStringLiteral("--tab");
    } else if (kind == QLatin1String("tabs")) {
        for (int tab = 0; tab < tabs::Count; ++tab)
            words.append(tabName(tab));
    } else if (kind == QLatin1String("keys")) {
        words = Settings::optionKeys();
    } else if (kind == QLatin1String("sortkeys")) {
        words = sortKeyNames();
    } else {
        return kExitBadUsage;
    }
    for (const QString& word : std::as_const(words))
        out << word << '\n';
    return kExitDone;
}

// "manpage tavrin-cli" or "manpage tavrin": the manual page the build installs.
int printManPage(const QStringList& arguments, QTextStream& out, QTextStream& err)
{
    const QString page = manPage(arguments.value(0));
    if (page.isEmpty()) {
        err << "tavrin-cli manpage: tavrin-cli|tavrin\n";
        return kExitBadUsage;
    }
    out << page;
    return kExitDone;
}

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

bool isVersion(const QString& argument)
{
    return argument == QLatin1String("--version") || argument == QLatin1String("-V");
}

} // namespace

bool needsSupportFolder(const QStringList& arguments)
{
    const QString first = arguments.value(0);
    return !(first.isEmpty() || isHelp(first) || isVersion(first) || first == QLatin1String("options")
        || first == QLatin1String("manpage") || first == QLatin1String("complete"));
}

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
    if (isVersion(arguments.first())) {
        out << "tavrin-cli " << TAVRIN_VERSION << '\n';
        return kExitDone;
    }
    if (arguments.first() == QLatin1String("complete"))
        return printCompletions(arguments.mid(1), out);
    if (arguments.first() == QLatin1String("manpage"))
        return printManPage(arguments.mid(1), out, err);
    const Command* command = findCommand(arguments.first());
    if (!command) {
        err << "tavrin-cli: " << localized("CLIUNKNOWNCOMMAND").arg(arguments.first())
            << didYouMean(arguments.first(), commandNames()) << '\n'
            << usage();
        return kExitBadUsage;
    }
    return command->run(arguments.mid(1), out, err);
}

} // namespace tavrin::cli
