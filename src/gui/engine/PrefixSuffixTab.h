#pragma once

#include "gui/engine/ActionTab.h"

class QGroupBox;
class QLabel;
class QLayout;

namespace tavrin {

class OptionBinder;
class Settings;

// The prefix/suffix tab: texts put before and after each name, or a date put before, after
// or on both sides of it. The inputs of the mode not chosen are disabled; an example shows
// the date text the options give. Choosing the mode leaves the live preview as it is.
class PrefixSuffixTab : public ActionTab {
    Q_OBJECT

public:
    explicit PrefixSuffixTab(Settings& settings, QWidget* parent = nullptr);

    QWidget* fieldForOption(const QString& optionKey) const override;

private:
    QLayout* makeModeRow();
    QGroupBox* makeTextGroup();
    QGroupBox* makeDateGroup();
    void refreshFromSettings();

    Settings& m_settings;
    OptionBinder* m_binder;
    QGroupBox* m_textGroup = nullptr;
    QGroupBox* m_dateGroup = nullptr;
    QLabel* m_example = nullptr;
};

} // namespace tavrin
