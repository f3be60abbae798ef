#pragma once

#include <QList>
#include <QPair>
#include <QString>
#include <QStringList>
#include <functional>
#include <optional>

namespace tavrin::cli {

// What a flag written the way people write renames ("--upper", "--replace FIND REPL") stands
// for: the tab it acts on and the settings it sets, exactly as the same --tab and --set would.
struct FlagMeaning {
    int tab = 0;
    QList<QPair<QString, QString>> assignments;
};

// The flags this file knows, for the usage and for suggestions.
QStringList actionFlagNames();

// True when `name` is such a flag. `values` are the flag's arguments, read as it needs
// them; a missing or unusable value answers nothing, with `error` set.
bool isActionFlag(const QString& name);
std::optional<FlagMeaning> actionFlagMeaning(const QString& name, const std::function<std::optional<QString>()>& value,
                                             QString& error);

}  // namespace tavrin::cli
