#include "cli/ProfileCommand.h"

#include "cli/CommandSettings.h"
#include "cli/Usage.h"
#include "core/platform/FileOperations.h"
#include "core/profiles/ProfileFile.h"
#include "core/profiles/Settings.h"
#include "core/text/LocalizedStrings.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace tavrin::cli {

namespace {

const char kCommand[] = "profile";

// A profile is replaced only when the command line says so.
int saveProfile(const DocumentArguments& arguments, QTextStream& out, QTextStream& err)
{
    QString error;
    Settings settings;
    if (!configureSettings(settings, arguments.common, arguments.extra, error))
        return reportUsageError(kCommand, error, err);
    if (pathExists(arguments.file) && !arguments.extra.yes)
        return reportUsageError(kCommand, localized("CLIPROFILEEXISTS").arg(arguments.file), err);
    if (!saveProfileFile(settings, arguments.file, &error)) {
        err << error << '\n';
        return kExitFailed;
    }
    out << localized("CLIPROFILESAVED").arg(arguments.file) << '\n';
    return kExitDone;
}

int showProfile(const DocumentArguments& arguments, QTextStream& out, QTextStream& err)
{
    QString error;
    Settings settings;
    if (loadProfileFile(settings, arguments.file, &error) != ProfileLoadResult::Loaded)
        return reportUsageError(kCommand, error, err);
    if (arguments.common.json) {
        QJsonObject options;
        for (const QString& key : Settings::optionKeys())
            options.insert(key, settings.optionToString(key));
        out << QJsonDocument(QJsonObject{{QStringLiteral("options"), options}}).toJson(QJsonDocument::Indented);
        return kExitDone;
    }
    for (const QString& key : Settings::optionKeys())
        out << key << '\t' << settings.optionToString(key) << '\n';
    return kExitDone;
}

}  // namespace

int runProfileCommand(const QStringList& arguments, QTextStream& out, QTextStream& err)
{
    DocumentArguments parsed;
    QString error;
    if (!parseDocumentArguments(arguments, {QStringLiteral("save"), QStringLiteral("show")}, parsed, error))
        return reportUsageError(kCommand, error, err);
    if (parsed.common.help) {
        out << localized("CLIPROFILEUSAGE") << '\n';
        return kExitDone;
    }
    return parsed.action == QLatin1String("save") ? saveProfile(parsed, out, err) : showProfile(parsed, out, err);
}

}  // namespace tavrin::cli
