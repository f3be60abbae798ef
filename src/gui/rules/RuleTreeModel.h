#pragma once

#include "core/rules/RuleTree.h"

#include <QAbstractItemModel>
#include <optional>

namespace tavrin {

// The option tree of one step: its kind at the top, its options below, in two columns (the
// option, its value). Empty while no step is shown.
class RuleTreeModel : public QAbstractItemModel {
    Q_OBJECT

public:
    explicit RuleTreeModel(QObject* parent = nullptr);

    // The step to show, or none.
    void showStep(const std::optional<RuleStep>& step);

    QModelIndex index(int row, int column, const QModelIndex& parent = QModelIndex()) const override;
    QModelIndex parent(const QModelIndex& child) const override;
    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    const Rule* nodeOf(const QModelIndex& index) const;

    std::optional<Rule> m_root;
};

} // namespace tavrin
