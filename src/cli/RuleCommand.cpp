#include "cli/RuleCommand.h"

#include "cli/CommandSettings.h"
#include "cli/Usage.h"
#include "core/platform/FileOperations.h"
#include "core/profiles/Settings.h"
#include "core/rules/RuleFile.h"
#include "core/rules/RuleTree.h"
#include "core/rules/StepRecord.h"
#include "core/text/LocalizedStrings.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace tavrin::cli {

namespace {

const char kCommand[] = "rule";

// The steps already in the file; none for a file that does not exist yet.
std::optional<RuleChain> existingSteps(const QString& file, QString& error)
{
    if (!pathExists(file))
        return RuleChain();
    RuleFileOutcome opened = openRuleFile(file);
    if (opened.status != RuleFileStatus::Opened) {
        error = opened.message;
        return std::nullopt;
    }
    return opened.rules;
}

int addStep(const DocumentArguments& arguments, QTextStream& out, QTextStream& err)
{
    QString error;
    Settings settings;
    if (!configureSettings(settings, arguments.common, arguments.extra, error))
        return reportUsageError(kCommand, error, err);
    std::optional<RuleChain> rules = existingSteps(arguments.file, error);
    if (!rules)
        return reportUsageError(kCommand, error, err);
    const StepOutcome built = getRule(settings);
    if (built.failure) {
        err << built.failure->title() << ": " << built.failure->message() << '\n';
        return kExitBadUsage;
    }
    if (!addRule(*rules, built))
        return reportUsageError(kCommand, localized("UNABLETOADDRULE"), err);
    if (!saveRuleFile(*rules, arguments.file, &error)) {
        err << error << '\n';
        return kExitFailed;
    }
    out << localized("CLIRULESTEPADDED").arg(rules->size()).arg(arguments.file) << '\n';
    return kExitDone;
}

QString stepTitle(const RuleStep& step, const Rule& root)
{
    return isStepActive(step) ? root.option() : localized("CLISTEPINACTIVE").arg(root.option());
}

void printText(const RuleChain& rules, QTextStream& out)
{
    for (qsizetype index = 0; index < rules.size(); ++index) {
        const Rule root = Rule::rootItem(rules.at(index));
        out << index + 1 << ". " << stepTitle(rules.at(index), root) << '\n';
        for (const Rule& leaf : root.children())
            out << "   " << leaf.option() << ": " << leaf.value() << '\n';
    }
}

void printJson(const RuleChain& rules, QTextStream& out)
{
    QJsonArray steps;
    for (const RuleStep& step : rules) {
        const Rule root = Rule::rootItem(step);
        QJsonArray options;
        for (const Rule& leaf : root.children())
            options.append(QJsonObject{{QStringLiteral("option"), leaf.option()}, {QStringLiteral("value"), leaf.value()}});
        steps.append(QJsonObject{{QStringLiteral("rule"), stepRule(step)},
                                 {QStringLiteral("type"), stepType(step)},
                                 {QStringLiteral("active"), isStepActive(step)},
                                 {QStringLiteral("title"), root.option()},
                                 {QStringLiteral("options"), options}});
    }
    out << QJsonDocument(QJsonObject{{QStringLiteral("steps"), steps}}).toJson(QJsonDocument::Indented);
}

int showSteps(const DocumentArguments& arguments, QTextStream& out, QTextStream& err)
{
    const RuleFileOutcome opened = openRuleFile(arguments.file);
    if (opened.status != RuleFileStatus::Opened)
        return reportUsageError(kCommand, opened.message, err);
    if (arguments.common.json)
        printJson(opened.rules, out);
    else
        printText(opened.rules, out);
    return kExitDone;
}

}  // namespace

int runRuleCommand(const QStringList& arguments, QTextStream& out, QTextStream& err)
{
    DocumentArguments parsed;
    QString error;
    if (!parseDocumentArguments(arguments, {QStringLiteral("add"), QStringLiteral("show")}, parsed, error))
        return reportUsageError(kCommand, error, err);
    if (parsed.common.help) {
        out << localized("CLIRULEUSAGE") << '\n';
        return kExitDone;
    }
    return parsed.action == QLatin1String("add") ? addStep(parsed, out, err) : showSteps(parsed, out, err);
}

}  // namespace tavrin::cli
