#pragma once

#include "gui/engine/ActionTab.h"

class QGroupBox;
class QLineEdit;
class QPushButton;

namespace tavrin {

class OptionBinder;
class Settings;

// The audio tab: buttons add tag tokens to the list the new names are made of, the mask
// shows that list as the action reads it, and the options say how the values are joined,
// what replaces a colon and which extensions the action renames.
class AudioTab : public ActionTab {
    Q_OBJECT

public:
    explicit AudioTab(Settings& settings, QWidget* parent = nullptr);

    QWidget* fieldForOption(const QString& optionKey) const override;

    // The buttons carry the tags 1 to 8 of their tokens; any other tag only rebuilds.
    void id3RenamingMaskActions(int tag);
    void id3RenamingMaskClear();
    void id3ExtensionEditor();

private:
    QGroupBox* makeTokensGroup();
    QGroupBox* makeOptionsGroup();
    void refreshFromSettings();

    Settings& m_settings;
    OptionBinder* m_binder;
    QLineEdit* m_maskView = nullptr;
    QLineEdit* m_extensionsView = nullptr;
};

} // namespace tavrin
