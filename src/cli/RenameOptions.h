#pragma once

#include "cli/CommonOptions.h"

#include <QList>
#include <QPair>
#include <optional>

namespace tavrin::cli {


// The options preview and apply add to the shared ones.
class RenameOptions final : public ExtraOptions {
public:
    Outcome takeOption(const QString& name, const TakeValue& takeValue, QString& error) override;
    QStringList optionNames() const override;

    std::optional<int> tab;
    QList<QPair<QString, QString>> assignments;  // --set KEY=VALUE and the action flags, in the order given
    bool yes = false;
    bool continueWithoutLog = false;
    std::optional<QString> rule;     // --rule FILE: a rule file's steps in place of a tab
    std::optional<QString> profile;  // --profile FILE: the options start from a profile
    bool dryRun = false;  // apply only previews

private:
    Outcome takeActionFlag(const QString& name, const TakeValue& takeValue, QString& error);
    bool chooseTab(int chosen, const QString& by, QString& error);

    QString m_tabChosenBy;  // the option that chose the tab, for the message when two disagree
};

}  // namespace tavrin::cli
