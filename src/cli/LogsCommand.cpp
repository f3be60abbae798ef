#include "cli/LogsCommand.h"

#include "cli/LogOptions.h"
#include "cli/Usage.h"
#include "core/log/LogListing.h"
#include "core/profiles/Preferences.h"
#include "core/text/LocalizedStrings.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace tavrin::cli {

namespace {

const char kCommand[] = "logs";

// ISO 8601 with the local offset, so a script can compare dates across time zones.
QString isoDate(const QDateTime& date)
{
    return date.toOffsetFromUtc(date.offsetFromUtc()).toString(Qt::ISODate);
}

void printJson(const QList<LogFileRecord>& logs, QTextStream& out)
{
    QJsonArray array;
    for (const LogFileRecord& log : logs)
        array.append(QJsonObject { { QStringLiteral("logFileName"), log.logFileName },
            { QStringLiteral("dateCreated"), isoDate(log.dateCreated) },
            { QStringLiteral("filesCount"), log.filesCount }, { QStringLiteral("path"), log.path } });
    out << QJsonDocument(array).toJson(QJsonDocument::Indented);
}

void printText(const QList<LogFileRecord>& logs, QTextStream& out)
{
    for (const LogFileRecord& log : logs)
        out << log.logFileName << '\t' << log.dateCreated.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"))
            << '\t' << log.filesCount << '\n';
    out << localized("TOTALLOGFILES").arg(logs.size()) << '\n';
}

}  // namespace

int runLogsCommand(const QStringList& arguments, QTextStream& out, QTextStream& err)
{
    LogOptions options;
    QString error;
    if (!parseLogOptions(arguments, false, 0, options, error))
        return reportUsageError(kCommand, error, err);
    if (options.help) {
        out << localized("CLILOGSUSAGE") << '\n';
        return kExitDone;
    }
    const QList<LogFileRecord> logs = loadUserLogFiles(loadPreferences().defaultLogFolderPath);
    if (options.json)
        printJson(logs, out);
    else
        printText(logs, out);
    return kExitDone;
}

}  // namespace tavrin::cli
