#include "gui/rules/RuleTableModel.h"

#include "core/engine/ActionRegistry.h"
#include "core/rules/RuleTree.h"
#include "core/text/LocalizedStrings.h"
#include "gui/control/RulesController.h"
#include "gui/control/SessionController.h"

namespace tavrin {

namespace {

// The title of the tab that runs a step's action; a step of an action this version does not
// know shows the action's name.
QString actionTitle(const RuleStep& step)
{
    static const char* const titles[] = { "SEQUENCETAB", "INSERTDELETETAB", "REPLACEREMOVETAB", "PREFIXSUFFIXTAB",
        "DATETIMETAB", "GENERALTAB", "AUDIOTAB", "PHOTOTAB", "PATHCOMPONENTSTAB" };
    const ActionEntry* action = actionForRule(stepRule(step));
    if (!action || action->tab < 0 || action->tab >= int(std::size(titles)))
        return stepRule(step);
    return localized(titles[action->tab]);
}

QString optionsText(const RuleStep& step)
{
    QStringList lines;
    for (const Rule& leaf : Rule::rootItem(step).children())
        lines.append(leaf.option() + QStringLiteral(": ") + leaf.value());
    return lines.join(QLatin1Char('\n'));
}

} // namespace

RuleTableModel::RuleTableModel(RulesController& rules, const SessionController& session, QObject* parent)
    : QAbstractTableModel(parent)
    , m_rules(rules)
{
    connect(&session, &SessionController::rulesChanged, this, [this] {
        beginResetModel();
        endResetModel();
    });
}

int RuleTableModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_rules.rules().size());
}

int RuleTableModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant RuleTableModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount())
        return {};
    const RuleStep& step = m_rules.rules().at(index.row());
    if (role == Qt::ToolTipRole)
        return optionsText(step);
    if (index.column() == ActiveColumn && role == Qt::CheckStateRole)
        return isStepActive(step) ? Qt::Checked : Qt::Unchecked;
    if (role != Qt::DisplayRole)
        return {};
    if (index.column() == ActionColumn)
        return actionTitle(step);
    if (index.column() == KindColumn)
        return Rule::rootItem(step).option();
    return {};
}

QVariant RuleTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    static const char* const keys[] = { "RULEACTIVECOLUMN", "RULEACTIONCOLUMN", "RULEKINDCOLUMN" };
    return section >= 0 && section < ColumnCount ? localized(keys[section]) : QVariant();
}

Qt::ItemFlags RuleTableModel::flags(const QModelIndex& index) const
{
    Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    if (index.column() == ActiveColumn)
        flags |= Qt::ItemIsUserCheckable;
    return flags;
}

bool RuleTableModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (!index.isValid() || index.column() != ActiveColumn || role != Qt::CheckStateRole)
        return false;
    m_rules.setActive(index.row(), value.toInt() == Qt::Checked);
    return true;
}

} // namespace tavrin
