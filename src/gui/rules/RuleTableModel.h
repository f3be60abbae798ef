#pragma once

#include <QAbstractTableModel>

namespace tavrin {

class RulesController;
class SessionController;

// The steps of the rule chain, one row each: whether it runs (a check box), its action and
// its kind; the tooltip lists its options. Follows every change of the chain.
class RuleTableModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { ActiveColumn, ActionColumn, KindColumn, ColumnCount };

    RuleTableModel(RulesController& rules, const SessionController& session, QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    // The check box of the first column switches the step on or off.
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;

private:
    RulesController& m_rules;
};

} // namespace tavrin
