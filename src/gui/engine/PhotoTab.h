#pragma once

#include "core/metadata/MetaDataCatalogue.h"
#include "gui/engine/ActionTab.h"

class QGroupBox;
class QLineEdit;

namespace tavrin {

class OptionBinder;
class Settings;

// The photo tab: the renaming mask, with buttons that add the common tokens and an editor
// that picks fields from the catalogue, and the options: how values are joined, what
// replaces a colon, the date and time patterns, the number's padding, the extensions the
// action renames, and a number that restarts in each folder.
class PhotoTab : public ActionTab {
    Q_OBJECT

public:
    explicit PhotoTab(Settings& settings, QWidget* parent = nullptr);

    QWidget* fieldForOption(const QString& optionKey) const override;

    // Adds a token at the end of the mask, after the separator when it is on; the chosen
    // fields stay as they are.
    void photoRenamingMaskInsert(const QString& token);
    void photoRenamingMaskClear();
    void photoExtensionEditor();
    // Opens the mask editor on the chosen fields; OK replaces them and rebuilds the mask.
    void photoRenamingMaskEditor();

private:
    QGroupBox* makeMaskGroup();
    QGroupBox* makeOptionsGroup();
    QGroupBox* makePatternsGroup();
    void refreshFromSettings();

    Settings& m_settings;
    MetaDataCatalogue m_catalogue;  // what the mask editor offers
    OptionBinder* m_binder;
    QLineEdit* m_extensionsView = nullptr;
};

} // namespace tavrin
