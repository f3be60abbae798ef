#include "cli/ExportCommand.h"

#include "cli/RenameCommand.h"
#include "cli/Usage.h"
#include "core/io/ExportList.h"
#include "core/profiles/Settings.h"
#include "core/text/LocalizedStrings.h"

namespace tavrin::cli {

namespace {

// The options of a preview, and those that say what to write where.
class ExportOptions final : public ExtraOptions {
public:
    Outcome takeOption(const QString& name, const TakeValue& takeValue, QString& error) override
    {
        if (name == QLatin1String("--columns"))
            return takeColumns(takeValue, error);
        if (name == QLatin1String("--output")) {
            output = takeValue().value_or(QString());
            if (!output.isEmpty())
                return Outcome::Taken;
            error = localized("CLIMISSINGVALUE").arg(name);
            return Outcome::Bad;
        }
        if (name == QLatin1String("--include-location"))
            columns.isIncludeLocation = true;
        else if (name == QLatin1String("--no-header"))
            columns.addColumnNamesInHeader = false;
        else
            return rename.takeOption(name, takeValue, error);
        return Outcome::Taken;
    }

    QStringList optionNames() const override
    {
        return QStringList{QStringLiteral("--columns"), QStringLiteral("--include-location"),
                           QStringLiteral("--no-header"), QStringLiteral("--output")}
            + rename.optionNames();
    }

    RenameOptions rename;
    ExportColumns columns;
    QString output;

private:
    Outcome takeColumns(const TakeValue& takeValue, QString& error)
    {
        const QString value = takeValue().value_or(QString());
        columns.isFilename = columns.isNewFilename = columns.isLocation = false;
        for (const QString& column : value.split(QLatin1Char(','), Qt::SkipEmptyParts)) {
            if (column == QLatin1String("name"))
                columns.isFilename = true;
            else if (column == QLatin1String("new"))
                columns.isNewFilename = true;
            else if (column == QLatin1String("location"))
                columns.isLocation = true;
            else {
                error = localized("CLIUNKNOWNCOLUMN").arg(column);
                return Outcome::Bad;
            }
        }
        return Outcome::Taken;
    }
};

}  // namespace

int runExportCommand(const QStringList& arguments, QTextStream& out, QTextStream& err)
{
    CommonOptions common;
    ExportOptions extra;
    QString error;
    if (!parseCommonOptions(arguments, common, error, &extra))
        return reportUsageError("export", error, err);
    if (common.help) {
        out << localized("CLIEXPORTUSAGE") << '\n';
        return kExitDone;
    }
    if (extra.output.isEmpty())
        return reportUsageError("export", localized("CLIMISSINGVALUE").arg(QStringLiteral("--output")), err);
    if (const char* refusal = exportRefusal(extra.columns))
        return reportUsageError("export", localized(refusal), err);

    Settings settings;
    LoadedList loaded;
    PreviewOutcome preview;
    if (const std::optional<int> refused = previewPaths("export", common, extra.rename, false, settings, loaded,
                                                        preview, err))
        return *refused;
    if (loaded.list.isEmpty()) {
        err << "tavrin-cli export: " << localized("NOITEMSTOEXPORT") << '\n';
        return kExitFailed;
    }
    // A file the user did not choose in a dialog that asks before replacing is never replaced.
    if (!writeExportFile(extra.output, exportListText(loaded.list, extra.columns), false, error)) {
        err << "tavrin-cli export: " << localized("EXPORTFILESEXPORTEDFAILED").arg(error) << '\n';
        return kExitFailed;
    }
    out << localized("CLIEXPORTED").arg(loaded.list.size()).arg(extra.output) << '\n';
    const bool failed = !loaded.missing.isEmpty() || !preview.actionSucceeded;
    if (!preview.actionSucceeded && !preview.lastError.isEmpty())
        err << preview.lastError << '\n';
    return failed ? kExitFailed : kExitDone;
}

}  // namespace tavrin::cli
