#include "cli/CommonOptions.h"

#include "cli/Suggestion.h"
#include "core/text/LocalizedStrings.h"

namespace tavrin::cli {

namespace {

// One option argument split at its first "=": "--sort=fileExtension" names "--sort" and
// carries its value along.
struct OptionArgument {
    QString name;
    std::optional<QString> inlineValue;
};

OptionArgument splitOption(const QString& argument)
{
    const qsizetype equals = argument.indexOf(QLatin1Char('='));
    if (equals < 0)
        return { argument, std::nullopt };
    return { argument.left(equals), argument.mid(equals + 1) };
}

bool isOption(const QString& argument)
{
    return argument.size() > 1 && argument.startsWith(QLatin1Char('-'));
}

ExtraOptions::Outcome takeSortKey(const TakeValue& takeValue, CommonOptions& options, QString& error)
{
    const std::optional<QString> key = takeValue();
    if (!key) {
        error = localized("CLIMISSINGVALUE").arg(QStringLiteral("--sort"));
        return ExtraOptions::Outcome::Bad;
    }
    if (!sortKeyNames().contains(*key)) {
        error = localized("CLIUNKNOWNSORTKEY").arg(*key, sortKeyNames().join(QStringLiteral(", ")));
        return ExtraOptions::Outcome::Bad;
    }
    options.sortKeys.append({ *key, true });
    return ExtraOptions::Outcome::Taken;
}

ExtraOptions::Outcome takeCommonOption(
    const QString& name, const TakeValue& takeValue, CommonOptions& options, QString& error)
{
    if (name == QLatin1String("--folders"))
        options.scan.folders = true;
    else if (name == QLatin1String("--recursive") || name == QLatin1String("-r"))
        options.scan.includeSubFolders = true;
    else if (name == QLatin1String("--json"))
        options.json = true;
    else if (name == QLatin1String("--sort"))
        return takeSortKey(takeValue, options, error);
    else
        return ExtraOptions::Outcome::NotMine;
    return ExtraOptions::Outcome::Taken;
}

// Reads one option (and its value, moving `index` past it when the value is the next
// argument). False with `error` set on bad usage.
bool takeOption(const QStringList& arguments, qsizetype& index, CommonOptions& options, QString& error,
    ExtraOptions* extra)
{
    const OptionArgument option = splitOption(arguments.at(index));
    bool valueTaken = false;
    const TakeValue takeValue = [&]() -> std::optional<QString> {
        const bool first = !valueTaken;
        valueTaken = true;
        if (option.inlineValue && first)
            return option.inlineValue;
        if (index + 1 < arguments.size())
            return arguments.at(++index);
        return std::nullopt;
    };
    ExtraOptions::Outcome outcome = takeCommonOption(option.name, takeValue, options, error);
    if (outcome == ExtraOptions::Outcome::NotMine && extra)
        outcome = extra->takeOption(option.name, takeValue, error);
    if (outcome == ExtraOptions::Outcome::NotMine) {
        const QStringList known = QStringList{QStringLiteral("--folders"), QStringLiteral("--recursive"),
                                              QStringLiteral("--json"), QStringLiteral("--sort"), QStringLiteral("--help")}
            + (extra ? extra->optionNames() : QStringList());
        error = localized("CLIUNKNOWNOPTION").arg(option.name) + didYouMean(option.name, known);
    }
    else if (outcome == ExtraOptions::Outcome::Taken && option.inlineValue && !valueTaken)
        error = localized("CLIUNEXPECTEDVALUE").arg(option.name);
    return error.isEmpty();
}

bool isHelp(const QString& argument)
{
    return argument == QLatin1String("--help") || argument == QLatin1String("-h");
}

} // namespace

bool parseCommonOptions(
    const QStringList& arguments, CommonOptions& options, QString& error, ExtraOptions* extra)
{
    error.clear();
    bool optionsEnded = false;
    for (qsizetype index = 0; index < arguments.size(); ++index) {
        const QString& argument = arguments.at(index);
        if (optionsEnded || !isOption(argument)) {
            options.paths.append(argument);
        } else if (argument == QLatin1String("--")) {
            optionsEnded = true;
        } else if (isHelp(argument)) {
            options.help = true;
            return true;
        } else if (!takeOption(arguments, index, options, error, extra)) {
            return false;
        }
    }
    if (options.paths.isEmpty()) {
        error = localized("CLINOPATHS");
        return false;
    }
    return true;
}

QStringList sortKeyNames()
{
    return { QString::fromLatin1(itemkeys::Filename), QString::fromLatin1(itemkeys::FilenameWithExtension),
        QString::fromLatin1(itemkeys::FileExtension), QString::fromLatin1(itemkeys::FileLocation),
        QString::fromLatin1(itemkeys::FileWithPath), QString::fromLatin1(itemkeys::FileType),
        QString::fromLatin1(itemkeys::NewFilename) };
}

} // namespace tavrin::cli
