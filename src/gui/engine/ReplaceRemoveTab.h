#pragma once

#include "gui/engine/ActionTab.h"

#include <QList>

class QGridLayout;
class QGroupBox;
class QLabel;
class QLayout;

namespace tavrin {

struct ChoiceText;
struct KeyedInput;

class OptionBinder;
class Settings;

// The replace/remove tab: a text found in each name is replaced or removed, or each of a
// set of characters is removed. What the chosen mode does not use is disabled: the
// replacement outside Replace, the choice of matches with "All occurrences" or when single
// characters are removed. With "Regular expression" the find text is a pattern, whose problem
// shows under it as it is typed.
class ReplaceRemoveTab : public ActionTab {
    Q_OBJECT

public:
    explicit ReplaceRemoveTab(Settings& settings, QWidget* parent = nullptr);

    QWidget* fieldForOption(const QString& optionKey) const override;

private:
    QLayout* makeModeRow();
    QGroupBox* makeTextGroup();
    QGroupBox* makeWhereGroup();
    void addMatchChoice(QGridLayout* grid, int row, const char* optionKey, const ChoiceText& text);
    void refreshFromSettings();
    void enableChosenInputs();
    void nameFindField(bool characters);
    void showPatternProblem();

    Settings& m_settings;
    OptionBinder* m_binder;
    QLabel* m_findLabel = nullptr;
    QLabel* m_patternProblem = nullptr;
    QList<QWidget*> m_replacementInputs;
    QList<QWidget*> m_matchChoiceInputs;
};

} // namespace tavrin
