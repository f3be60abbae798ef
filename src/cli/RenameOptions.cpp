#include "cli/RenameOptions.h"

#include "core/profiles/Tabs.h"
#include "core/text/LocalizedStrings.h"

namespace tavrin::cli {

namespace {

ExtraOptions::Outcome takeTab(const TakeValue& takeValue, std::optional<int>& tab, QString& error)
{
    const std::optional<QString> value = takeValue();
    if (!value) {
        error = localized("CLIMISSINGVALUE").arg(QStringLiteral("--tab"));
        return ExtraOptions::Outcome::Bad;
    }
    tab = tabFromName(*value);
    if (!tab) {
        error = localized("CLIUNKNOWNTAB").arg(*value);
        return ExtraOptions::Outcome::Bad;
    }
    return ExtraOptions::Outcome::Taken;
}

ExtraOptions::Outcome takeAssignment(const TakeValue& takeValue, QList<QPair<QString, QString>>& assignments,
                                     QString& error)
{
    const std::optional<QString> value = takeValue();
    const qsizetype equals = value ? value->indexOf(QLatin1Char('=')) : -1;
    if (equals <= 0) {
        error = localized("CLIBADASSIGNMENT").arg(value.value_or(QString()));
        return ExtraOptions::Outcome::Bad;
    }
    assignments.append({value->left(equals), value->mid(equals + 1)});
    return ExtraOptions::Outcome::Taken;
}

ExtraOptions::Outcome takeFile(const char* option, const TakeValue& takeValue, std::optional<QString>& file,
                               QString& error)
{
    file = takeValue();
    if (!file || file->isEmpty()) {
        error = localized("CLIMISSINGVALUE").arg(QString::fromLatin1(option));
        return ExtraOptions::Outcome::Bad;
    }
    return ExtraOptions::Outcome::Taken;
}

}  // namespace

ExtraOptions::Outcome RenameOptions::takeOption(const QString& name, const TakeValue& takeValue, QString& error)
{
    if (name == QLatin1String("--tab"))
        return takeTab(takeValue, tab, error);
    if (name == QLatin1String("--set"))
        return takeAssignment(takeValue, assignments, error);
    if (name == QLatin1String("--rule"))
        return takeFile("--rule", takeValue, rule, error);
    if (name == QLatin1String("--profile"))
        return takeFile("--profile", takeValue, profile, error);
    if (name == QLatin1String("--yes"))
        yes = true;
    else if (name == QLatin1String("--continue-without-log"))
        continueWithoutLog = true;
    else
        return Outcome::NotMine;
    return Outcome::Taken;
}

}  // namespace tavrin::cli
