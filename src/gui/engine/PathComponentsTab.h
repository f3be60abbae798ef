#pragma once

#include "gui/engine/ActionTab.h"

#include <memory>

class QGroupBox;

namespace tavrin {

class OptionBinder;
class PlaceChoices;
class Settings;

// The path-components tab: how many enclosing folders go into each name, the texts between
// and around their names, and where they go. Only the inputs of the chosen place are
// enabled; choosing the place leaves the live preview as it is.
class PathComponentsTab : public ActionTab {
    Q_OBJECT

public:
    explicit PathComponentsTab(Settings& settings, QWidget* parent = nullptr);
    ~PathComponentsTab() override;

    QWidget* fieldForOption(const QString& optionKey) const override;

private:
    QGroupBox* makeFoldersGroup();
    QGroupBox* makePlaceGroup();
    void refreshFromSettings();

    Settings& m_settings;
    OptionBinder* m_binder;
    std::unique_ptr<PlaceChoices> m_places;
};

} // namespace tavrin
