#pragma once

#include "gui/engine/ActionTab.h"
#include "gui/ui/TextFieldFormatter.h"

#include <QHash>
#include <QList>

class QButtonGroup;
class QComboBox;
class QGridLayout;
class QLineEdit;

namespace tavrin {

struct ChoiceText;
struct KeyedInput;

class OptionBinder;
class Settings;

// The general action's tab: twelve one-step changes of a name, one chosen at a time, each
// with the inputs it needs beside it. Widgets and settings mirror each other both ways:
// a choice or an edit sets the option at once, and a change of the settings from
// elsewhere (a profile, validation) shows in the widgets.
class GeneralTab : public ActionTab {
    Q_OBJECT

public:
    explicit GeneralTab(Settings& settings, QWidget* parent = nullptr);

    QWidget* fieldForOption(const QString& optionKey) const override;

private:
    void buildLayout();
    QComboBox* makeCaseChooser(const char* optionKey);
    QLineEdit* makeTextField(
        const KeyedInput& input, int width, TextFieldFormatter::Kind kind = TextFieldFormatter::Kind::Text);
    void addOption(int index, const ChoiceText& text, const QList<QWidget*>& inputs);
    void refreshFromSettings();

    Settings& m_settings;
    OptionBinder* m_binder;
    QButtonGroup* m_options = nullptr;
    QGridLayout* m_grid = nullptr;
    QHash<int, QList<QWidget*>> m_inputsOfOption;
};

} // namespace tavrin
