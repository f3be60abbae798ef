#include "gui/control/RulesController.h"

#include "core/profiles/Settings.h"
#include "core/text/NameParts.h"
#include "gui/control/ListController.h"
#include "gui/control/SessionController.h"

#include <QDir>

namespace tavrin {

namespace {

bool isRow(const RuleChain& rules, int row)
{
    return row >= 0 && row < rules.size();
}

} // namespace

RulesController::RulesController(SessionController& session, const ListController& list, QObject* parent)
    : QObject(parent)
    , m_session(session)
    , m_list(list)
{
}

const RuleChain& RulesController::rules() const
{
    return m_session.rules();
}

QString RulesController::rulesFolder() const
{
    return m_session.preferences().defaultRulesFolderPath;
}

// Building a step normalises the options, which is no edit of the user's.
AddToRuleOutcome RulesController::addToRule()
{
    AddToRuleOutcome outcome;
    m_session.whileLoading([&] { outcome.built = getRule(m_session.settings()); });
    RuleChain rules = m_session.rules();
    outcome.handled = addRule(rules, outcome.built);
    if (outcome.built.step)
        m_session.setRules(rules);
    return outcome;
}

bool RulesController::updateRule(int row)
{
    if (!isRow(rules(), row))
        return false;
    StepOutcome built;
    m_session.whileLoading([&] { built = getRule(m_session.settings()); });
    if (!built.step || stepRule(*built.step) != stepRule(rules().at(row)))
        return false;
    RuleChain rules = m_session.rules();
    rules[row] = *built.step;
    m_session.setRules(rules);
    return true;
}

void RulesController::clearSelected(int row)
{
    if (!isRow(rules(), row))
        return;
    RuleChain rules = m_session.rules();
    rules.removeAt(row);
    m_session.setRules(rules);
}

void RulesController::clearAll()
{
    m_session.setRules({});
}

int RulesController::moveUp(int row)
{
    if (!isRow(rules(), row) || row == 0)
        return row;
    RuleChain rules = m_session.rules();
    rules.swapItemsAt(row, row - 1);
    m_session.setRules(rules);
    return row - 1;
}

int RulesController::moveDown(int row)
{
    if (!isRow(rules(), row + 1) || row < 0)
        return row;
    RuleChain rules = m_session.rules();
    rules.swapItemsAt(row, row + 1);
    m_session.setRules(rules);
    return row + 1;
}

void RulesController::setActive(int row, bool active)
{
    if (!isRow(rules(), row) || isStepActive(rules().at(row)) == active)
        return;
    RuleChain rules = m_session.rules();
    setStepActive(rules[row], active);
    m_session.setRules(rules);
}

void RulesController::setRule(int row)
{
    if (!isRow(rules(), row) || m_list.isExecuting())
        return;
    const RuleStep step = rules().at(row);
    m_session.whileLoading([&] { tavrin::setRule(m_session.settings(), step); });
}

RuleFileOutcome RulesController::openRule(const QString& path, bool removePrefix)
{
    RuleFileOutcome opened = openRuleFile(path);
    if (opened.status != RuleFileStatus::Opened)
        return opened;
    if (removePrefix)
        removeRulePrefix(opened.rules);
    m_session.setRules(opened.rules);
    return opened;
}

void RulesController::openLibraryRule(const QString& fileName)
{
    RuleChain rules = readRuleSteps(joinPath(rulesFolder(), fileName)).value_or(RuleChain());
    removeRulePrefix(rules);
    m_session.setRules(rules);
}

bool RulesController::saveRule(const QString& path, QString* error)
{
    return saveRuleFile(rules(), path, error);
}

QStringList RulesController::libraryRuleNames() const
{
    QStringList names;
    const QStringList entries = QDir(rulesFolder()).entryList(QDir::Files, QDir::Name | QDir::IgnoreCase);
    for (const QString& entry : entries) {
        if (splitNameAndExtension(entry).extension.toLower() == QLatin1String("tnrule"))
            names.append(entry);
    }
    return names;
}

} // namespace tavrin
