#pragma once

#include "gui/ui/TextFieldFormatter.h"

#include <QHash>
#include <QList>
#include <QObject>
#include <QVariant>
#include <functional>
#include <utility>

class QButtonGroup;
class QCheckBox;
class QComboBox;
class QGridLayout;
class QGroupBox;
class QDateTimeEdit;
class QLineEdit;
class QRadioButton;

namespace tavrin {

class Settings;

// An option's input with the string-table key of the text shown with it: the label of a
// check box, the placeholder of a field (none when null).
struct KeyedInput {
    const char* optionKey;
    const char* textKey = nullptr;
};

// The label of a choice and the tooltip its row shares.
struct ChoiceText {
    const char* labelKey;
    const char* toolTipKey;
};

// Makes the inputs of an action tab and keeps each in step with its option both ways: an
// edit, a tick or a choice sets the option at once, and refresh() shows the options as they
// are now, after a profile, a validation or any other change from elsewhere. Every input is
// named after its option, so the tab finds it by key for the focus after a validation alert.
// Option keys are taken as static strings, the Settings::...Key constants or literals.
class OptionBinder : public QObject {
    Q_OBJECT

public:
    // A name is at most 255 bytes, so no text typed for one needs to be longer.
    static constexpr int NameLength = 255;
    // Positions, occurrences and counts within such a name.
    static constexpr int PositionDigits = 3;
    // Sequence values and steps, short of the int range.
    static constexpr int SequenceDigits = 9;

    // Reads the chosen button of a radio group from the settings; -1 when none is chosen.
    using ChosenIndex = std::function<int(const Settings&)>;
    using Choices = QList<std::pair<const char*, QVariant>>;

    explicit OptionBinder(Settings& settings, QObject* parent = nullptr);

    QLineEdit* textField(
        const KeyedInput& input, TextFieldFormatter::Kind kind = TextFieldFormatter::Kind::Text);
    // Right-aligned, as numbers are.
    QLineEdit* numberField(const char* optionKey, TextFieldFormatter::Kind kind, int digits = PositionDigits);
    // The letters of a sequence's first value.
    QLineEdit* lettersField(const char* optionKey);
    QCheckBox* checkBox(const KeyedInput& input);
    // Each choice is a label key and the option value it stands for.
    QComboBox* choice(const char* optionKey, const Choices& choices);
    // "counting from the start" or "from the end", standing for the two values given.
    QComboBox* directionChoice(const char* optionKey, const QVariant& fromStart, const QVariant& fromEnd);

    // The date and time of a date option, to the second.
    QDateTimeEdit* dateTimeField(const char* optionKey);

    // Whether choosing a button of a radio group re-arms the live preview. Most choices do;
    // a few leave the preview as it is until another option changes.
    enum class Preview { Follows, Waits };

    // A radio group whose buttons call `choose` with their id, which sets the group's
    // index and its mirror booleans together.
    QButtonGroup* radioGroup(
        bool (Settings::*choose)(int), ChosenIndex chosen, Preview preview = Preview::Follows);
    QRadioButton* radioButton(QButtonGroup* group, int id, const QString& objectName, const char* labelKey);

    // Gives every widget of a row the row's tooltip, and each input the name a screen
    // reader announces for it: the text of the label, radio button or check box before it.
    static void describeRow(const QList<QWidget*>& widgets, const QString& toolTip);
    // The grid of a tab's group box, spaced as every tab spaces its rows.
    static QGridLayout* groupGrid(QGroupBox* group);

    // The input of an option, or null when this binder made none.
    QWidget* field(const QString& optionKey) const;

    void refresh();

private:
    QLineEdit* formattedField(const char* optionKey, TextFieldFormatter::Kind kind, int maximumLength);
    // As wide as its longest value.
    QLineEdit* shortField(const char* optionKey, TextFieldFormatter::Kind kind, int maximumLength);
    void refreshField(const QString& optionKey, QWidget* field);

    Settings& m_settings;
    QHash<QString, QWidget*> m_fields;
    QList<std::pair<QButtonGroup*, ChosenIndex>> m_groups;
};

} // namespace tavrin
