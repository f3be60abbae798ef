#pragma once

#include "core/rules/RuleFile.h"
#include "core/rules/StepRecord.h"

#include <QObject>
#include <QStringList>

namespace tavrin {

class ListController;
class SessionController;

// What add to rule came to: the step built (or the alert for the input it lacks), and whether
// the outcome is handled. Not handled means there is nothing added and nothing told: the
// window says the step could not be added.
struct AddToRuleOutcome {
    StepOutcome built;
    bool handled = false;
};

// The edits of the rule chain the drawer and the rules sheet offer, and its rule files. The
// chain itself is the session's. Rows are indexes into it.
class RulesController : public QObject {
    Q_OBJECT

public:
    RulesController(SessionController& session, const ListController& list, QObject* parent = nullptr);

    const RuleChain& rules() const;
    // The preference "defaultRulesFolderPath".
    QString rulesFolder() const;

    // A step of the selected tab's options at the end of the chain.
    AddToRuleOutcome addToRule();
    // Replaces the step at `row` by one of the current options, only when both run the same
    // action; answers whether it did.
    bool updateRule(int row);
    void clearSelected(int row);
    void clearAll();
    // Each answers the row the step moved to (the same row when it could not move).
    int moveUp(int row);
    int moveDown(int row);
    void setActive(int row, bool active);
    // Loads the step at `row` into the options and selects its tab; the changes are not the
    // user's edits, so they start no live preview.
    void setRule(int row);

    // Replaces the chain by a rule file of this major version; with `removePrefix` the old
    // "Rule - " prefix goes from every step. Anything else leaves the chain as it was.
    RuleFileOutcome openRule(const QString& path, bool removePrefix);
    // A rule of the rules folder, chosen from the menu: any version; a file that cannot be
    // read gives an empty chain.
    void openLibraryRule(const QString& fileName);
    bool saveRule(const QString& path, QString* error = nullptr);
    // The rule files of the rules folder, by name.
    QStringList libraryRuleNames() const;

private:
    SessionController& m_session;
    const ListController& m_list;
};

} // namespace tavrin
