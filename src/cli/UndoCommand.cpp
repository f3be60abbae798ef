#include "cli/UndoCommand.h"

#include "cli/LogOptions.h"
#include "cli/TerminalProgress.h"
#include "cli/Usage.h"
#include "core/log/LogFileCheck.h"
#include "core/log/LogListing.h"
#include "core/log/UndoRenaming.h"
#include "core/profiles/Preferences.h"
#include "core/text/LocalizedStrings.h"
#include "core/text/NameParts.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <cstdio>
#include <unistd.h>

namespace tavrin::cli {

namespace {

const char kCommand[] = "undo";

// The log to undo, or an empty path with the reason in `error`.
QString chooseLog(const LogOptions& options, QString& error)
{
    const QString logFolder = loadPreferences().defaultLogFolderPath;
    if (!options.logs.isEmpty()) {
        QString path = resolveLogArgument(options.logs.first(), logFolder);
        if (path.isEmpty())
            error = localized("CLILOGNOTFOUND").arg(options.logs.first());
        return path;
    }
    const QList<LogFileRecord> logs = loadUserLogFiles(logFolder);
    if (logs.isEmpty())
        error = localized("CLINOLOGS").arg(logFolder);
    return logs.isEmpty() ? QString() : logs.first().path;
}

bool confirmUndo(const QString& path, int entries, QTextStream& err)
{
    err << localized("CLIUNDOCONFIRM").arg(lastPathComponent(path), QString::number(entries)) << " ["
        << localized("CLIYESLETTER") << '/' << localized("CLINOLETTER") << "] " << Qt::flush;
    char answer[64] = {};
    if (!std::fgets(answer, sizeof answer, stdin))
        return false;
    const QString reply = QString::fromLocal8Bit(answer).trimmed().toLower();
    return reply.startsWith(QLatin1Char('y')) || reply.startsWith(localized("CLIYESLETTER").toLower());
}

// Why an undo did not run, as the undo sheet's alert says it; null when it ran.
const char* refusalKey(UndoOutcome outcome)
{
    switch (outcome) {
    case UndoOutcome::NotALog:
        return "UNDOFILESFOLDERSINVALIDFILE";
    case UndoOutcome::InUse:
        return "UNDOFILESFOLDERSLOGINUSE";
    case UndoOutcome::Done:
    case UndoOutcome::Cancelled:
        break;
    }
    return nullptr;
}

// The object `undo --json` prints, with every key also when nothing was undone ("log" is
// null when there was no log to undo).
void printJson(const UndoSummary& summary, const QString& path, QTextStream& out)
{
    const QJsonObject root { { QStringLiteral("entries"), summary.entries }, { QStringLiteral("restored"), summary.restored },
        { QStringLiteral("log"), path.isEmpty() ? QJsonValue(QJsonValue::Null) : QJsonValue(path) } };
    out << QJsonDocument(root).toJson(QJsonDocument::Indented);
}

void printSummary(const UndoSummary& summary, const QString& path, bool json, QTextStream& out)
{
    if (json) {
        printJson(summary, path, out);
        return;
    }
    out << undoSummaryText(summary) << '\n';
    if (summary.logDeleted)
        out << localized("CLILOGDELETED").arg(path) << '\n';
}

bool parseArguments(const QStringList& arguments, LogOptions& options, QString& error)
{
    if (!parseLogOptions(arguments, true, 1, options, error))
        return false;
    if (!options.help && !options.yes && ::isatty(STDIN_FILENO) != 1) {
        error = localized("CLIUNDONEEDSYES");
        return false;
    }
    return true;
}

int undoLog(const QString& path, const LogOptions& options, QTextStream& out, QTextStream& err)
{
    const CheckedLog checked = openLogFile(path);
    if (checked.check == LogCheck::Incompatible || checked.check == LogCheck::InUse) {
        err << localized(checked.messageKey()) << '\n';
        if (options.json)
            printJson(UndoSummary{}, path, out);
        return kExitFailed;
    }
    if (!options.yes && !confirmUndo(path, checked.entries, err)) {
        err << localized("CLIUNDODECLINED") << '\n';
        return kExitDone;
    }
    const std::atomic_bool neverCancelled { false };
    UndoSummary summary;
    {
        TerminalProgress progress;
        summary = undoRenaming(path, neverCancelled, &progress);
    }
    if (const char* refusal = refusalKey(summary.outcome)) {
        err << localized(refusal) << '\n';
        if (options.json)
            printJson(summary, path, out);
        return kExitFailed;
    }
    printSummary(summary, path, options.json, out);
    return summary.notRestored() > 0 ? kExitFailed : kExitDone;
}

}  // namespace

int runUndoCommand(const QStringList& arguments, QTextStream& out, QTextStream& err)
{
    LogOptions options;
    QString error;
    if (!parseArguments(arguments, options, error))
        return reportUsageError(kCommand, error, err);
    if (options.help) {
        out << localized("CLIUNDOUSAGE") << '\n';
        return kExitDone;
    }
    const QString path = chooseLog(options, error);
    if (path.isEmpty()) {
        err << "tavrin-cli " << kCommand << ": " << error << '\n';
        if (options.json)
            printJson(UndoSummary{}, QString(), out);
        return kExitFailed;
    }
    return undoLog(path, options, out, err);
}

}  // namespace tavrin::cli
