#pragma once

#include "gui/engine/ActionTab.h"

class QButtonGroup;
class QGridLayout;
class QGroupBox;
class QLabel;
class QLineEdit;

namespace tavrin {

class OptionBinder;
class Settings;

// The numbering tab: a number or letter sequence, counted up or down from a start value,
// put before the name, after it, or in its place. Only the inputs of the chosen kind and
// direction are enabled, so the tab shows which values the next preview will use.
class SequenceTab : public ActionTab {
    Q_OBJECT

public:
    explicit SequenceTab(Settings& settings, QWidget* parent = nullptr);

    QWidget* fieldForOption(const QString& optionKey) const override;
    // How many items the list holds: beside the padding mask, the tab says when their
    // numbers are longer than the mask and will be cut.
    void setListedCount(int count);

private:
    // A choice of the kind or the direction, and the field of its value.
    struct ChoiceRow {
        int id;
        const char* objectName;
        const char* labelKey;
        QLineEdit* field;
        const char* tipKey;
    };

    void addChoiceRow(QGridLayout* grid, QButtonGroup* group, const ChoiceRow& choice);
    QGroupBox* makeKindGroup();
    QGroupBox* makeCountingGroup();
    QGroupBox* makePlacementGroup();
    void refreshFromSettings();
    void enableChosenInputs();
    void showMaskWarning();

    Settings& m_settings;
    OptionBinder* m_binder;
    QLabel* m_maskWarning = nullptr;
    int m_listedCount = 0;
};

} // namespace tavrin
