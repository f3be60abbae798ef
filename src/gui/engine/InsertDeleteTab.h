#pragma once

#include "gui/engine/ActionTab.h"

#include <memory>

class QGroupBox;
class QLayout;

namespace tavrin {

class OptionBinder;
class PlaceChoices;
class Settings;

// The insert/delete tab: either a text put into each name at a chosen place, or a run of
// characters taken out. The inputs of the mode not chosen are disabled, and so are those of
// the insert places not chosen.
class InsertDeleteTab : public ActionTab {
    Q_OBJECT

public:
    explicit InsertDeleteTab(Settings& settings, QWidget* parent = nullptr);
    ~InsertDeleteTab() override;

    QWidget* fieldForOption(const QString& optionKey) const override;

private:
    QLayout* makeModeRow();
    QGroupBox* makeInsertGroup();
    QGroupBox* makeDeleteGroup();
    void refreshFromSettings();
    void enableChosenInputs();

    Settings& m_settings;
    OptionBinder* m_binder;
    QGroupBox* m_insertGroup = nullptr;
    QGroupBox* m_deleteGroup = nullptr;
    std::unique_ptr<PlaceChoices> m_places;
};

} // namespace tavrin
