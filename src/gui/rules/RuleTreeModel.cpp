#include "gui/rules/RuleTreeModel.h"

#include "core/text/LocalizedStrings.h"

namespace tavrin {

// The root has no internal pointer; a leaf points at the root it hangs from.
RuleTreeModel::RuleTreeModel(QObject* parent)
    : QAbstractItemModel(parent)
{
}

void RuleTreeModel::showStep(const std::optional<RuleStep>& step)
{
    beginResetModel();
    m_root.reset();
    if (step)
        m_root = Rule::rootItem(*step);
    endResetModel();
}

const Rule* RuleTreeModel::nodeOf(const QModelIndex& index) const
{
    if (!m_root || !index.isValid())
        return nullptr;
    if (!index.internalPointer())
        return &*m_root;
    return &m_root->childAtIndex(index.row());
}

QModelIndex RuleTreeModel::index(int row, int column, const QModelIndex& parent) const
{
    if (!hasIndex(row, column, parent))
        return {};
    return parent.isValid() ? createIndex(row, column, const_cast<Rule*>(&*m_root)) : createIndex(row, column);
}

QModelIndex RuleTreeModel::parent(const QModelIndex& child) const
{
    if (!child.isValid() || !child.internalPointer())
        return {};
    return createIndex(0, 0);
}

int RuleTreeModel::rowCount(const QModelIndex& parent) const
{
    if (!m_root)
        return 0;
    if (!parent.isValid())
        return 1;
    if (parent.internalPointer() || parent.column() != 0)
        return 0;
    return int(m_root->children().size());
}

int RuleTreeModel::columnCount(const QModelIndex&) const
{
    return 2;
}

QVariant RuleTreeModel::data(const QModelIndex& index, int role) const
{
    const Rule* node = nodeOf(index);
    if (!node || (role != Qt::DisplayRole && role != Qt::ToolTipRole))
        return {};
    return index.column() == 0 ? node->option() : node->value();
}

QVariant RuleTreeModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    return localized(section == 0 ? "RULEOPTIONCOLUMN" : "RULEVALUECOLUMN");
}

} // namespace tavrin
