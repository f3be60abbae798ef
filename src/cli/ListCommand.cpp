#include "cli/ListCommand.h"

#include "cli/CommonOptions.h"
#include "cli/ListJson.h"
#include "cli/LoadedList.h"
#include "cli/Usage.h"
#include "core/text/LocalizedStrings.h"

#include <QJsonDocument>

namespace tavrin::cli {

namespace {

const char kCommand[] = "list";

void printJson(const LoadedList& loaded, QTextStream& out)
{
    out << QJsonDocument(listJson(loaded.list, loaded.skipped)).toJson(QJsonDocument::Indented);
}

void printText(const LoadedList& loaded, bool folders, QTextStream& out)
{
    const QString name = QString::fromLatin1(itemkeys::FilenameWithExtension);
    const QString location = QString::fromLatin1(itemkeys::FileLocation);
    for (const FileSystemItem& item : loaded.list.items())
        out << item.displayField(name) << '\t' << item.displayField(location) << '\n';
    out << localized(folders ? "CLIFOLDERSLISTED" : "CLIFILESLISTED").arg(loaded.list.size()) << '\n';
}

} // namespace

int runListCommand(const QStringList& arguments, QTextStream& out, QTextStream& err)
{
    CommonOptions options;
    QString error;
    if (!parseCommonOptions(arguments, options, error))
        return reportUsageError(kCommand, error, err);
    if (options.help) {
        out << localized("CLILISTUSAGE") << '\n';
        return kExitDone;
    }
    const LoadedList loaded = loadList(options);
    if (options.json)
        printJson(loaded, out);
    else
        printText(loaded, options.scan.folders, out);
    reportProblems(loaded, !options.json, err);
    return loaded.missing.isEmpty() ? kExitDone : kExitFailed;
}

} // namespace tavrin::cli
