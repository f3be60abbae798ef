#include "cli/RenameOptions.h"

#include "cli/ActionFlags.h"
#include "cli/Suggestion.h"
#include "core/profiles/Tabs.h"
#include "core/text/LocalizedStrings.h"

namespace tavrin::cli {

namespace {

std::optional<int> takeTab(const TakeValue& takeValue, QString& error)
{
    const std::optional<QString> value = takeValue();
    if (!value) {
        error = localized("CLIMISSINGVALUE").arg(QStringLiteral("--tab"));
        return std::nullopt;
    }
    const std::optional<int> tab = tabFromName(*value);
    if (!tab) {
        QStringList names;
        for (int number = 0; number < tabs::Count; ++number)
            names.append(tabName(number));
        error = localized("CLIUNKNOWNTAB").arg(*value) + didYouMean(*value, names);
    }
    return tab;
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
    if (name == QLatin1String("--tab")) {
        const std::optional<int> chosen = takeTab(takeValue, error);
        return chosen && chooseTab(*chosen, name, error) ? Outcome::Taken : Outcome::Bad;
    }
    if (name == QLatin1String("--set"))
        return takeAssignment(takeValue, assignments, error);
    if (name == QLatin1String("--rule"))
        return takeFile("--rule", takeValue, rule, error);
    if (name == QLatin1String("--profile"))
        return takeFile("--profile", takeValue, profile, error);
    if (isActionFlag(name))
        return takeActionFlag(name, takeValue, error);
    if (name == QLatin1String("--yes") || name == QLatin1String("-y"))
        yes = true;
    else if (name == QLatin1String("--continue-without-log"))
        continueWithoutLog = true;
    else if (name == QLatin1String("--dry-run") || name == QLatin1String("-n"))
        dryRun = true;
    else
        return Outcome::NotMine;
    return Outcome::Taken;
}

QStringList RenameOptions::optionNames() const
{
    return QStringList{QStringLiteral("--tab"), QStringLiteral("--set"), QStringLiteral("--yes"),
                       QStringLiteral("--continue-without-log"), QStringLiteral("--dry-run"), QStringLiteral("--rule"),
                       QStringLiteral("--profile")}
        + actionFlagNames();
}

ExtraOptions::Outcome RenameOptions::takeActionFlag(const QString& name, const TakeValue& takeValue, QString& error)
{
    const std::optional<FlagMeaning> meaning = actionFlagMeaning(name, takeValue, error);
    if (!meaning || !chooseTab(meaning->tab, name, error))
        return Outcome::Bad;
    assignments.append(meaning->assignments);
    return Outcome::Taken;
}

// One run is one action: every option that names a tab must name the same one.
bool RenameOptions::chooseTab(int chosen, const QString& by, QString& error)
{
    if (tab && *tab != chosen) {
        error = localized("CLIFLAGSDIFFERENTTABS").arg(m_tabChosenBy, by);
        return false;
    }
    if (!tab)
        m_tabChosenBy = by;
    tab = chosen;
    return true;
}

}  // namespace tavrin::cli
