#pragma once

#include "gui/engine/ActionTab.h"

class QGroupBox;

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

private:
    QGroupBox* makeKindGroup();
    QGroupBox* makeCountingGroup();
    QGroupBox* makePlacementGroup();
    void refreshFromSettings();
    void enableChosenInputs();

    Settings& m_settings;
    OptionBinder* m_binder;
};

} // namespace tavrin
