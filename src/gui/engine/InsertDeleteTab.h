#pragma once

#include "gui/engine/ActionTab.h"

#include <QHash>
#include <QList>

class QButtonGroup;
class QGridLayout;
class QGroupBox;
class QLayout;

namespace tavrin {

struct ChoiceText;
struct KeyedInput;

class OptionBinder;
class Settings;

// The insert/delete tab: either a text put into each name at a chosen place, or a run of
// characters taken out. The inputs of the mode not chosen are disabled, and so are those of
// the insert places not chosen.
class InsertDeleteTab : public ActionTab {
    Q_OBJECT

public:
    explicit InsertDeleteTab(Settings& settings, QWidget* parent = nullptr);

    QWidget* fieldForOption(const QString& optionKey) const override;

private:
    QLayout* makeModeRow();
    QGroupBox* makeInsertGroup();
    QGroupBox* makeDeleteGroup();
    // Where a place goes in the grid.
    struct GridCell {
        int row;
        int column;
    };

    void addPlace(
        QGridLayout* grid, int place, GridCell cell, const ChoiceText& text, const QList<QWidget*>& inputs);
    void refreshFromSettings();
    void enableChosenInputs();

    Settings& m_settings;
    OptionBinder* m_binder;
    QGroupBox* m_insertGroup = nullptr;
    QGroupBox* m_deleteGroup = nullptr;
    QButtonGroup* m_places = nullptr;
    QHash<int, QList<QWidget*>> m_inputsOfPlace;
};

} // namespace tavrin
