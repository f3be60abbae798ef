#pragma once

#include "core/engine/actions/insertdelete.h"
#include "gui/engine/OptionBinder.h"

#include <QHash>
#include <QList>

class QGridLayout;
class QWidget;

namespace tavrin {

// The five places of a text in a name, numbered as the insert tab numbers them, each a radio
// button with the inputs it needs beside it. Side by side, the places that need no anchor
// text take the first two columns of the grid and the two anchored on a text the last two,
// where the anchors get the room. Only the inputs of the chosen place are enabled. The
// insert, date/time and path-components tabs place their texts with these.
class PlaceChoices {
public:
    // Side by side, the places take five grid columns and three rows; one under the
    // other, two columns and five rows.
    enum class Arrangement { SideBySide, OneUnderTheOther };
    static constexpr int Columns = 5;
    static constexpr int Rows = 3;

    struct Group {
        PlacementKeys keys;
        bool (Settings::*choose)(int);
        OptionBinder::Preview preview;
        QString objectPrefix;  // the buttons are named prefix + place number
        Arrangement arrangement = Arrangement::SideBySide;
    };

    PlaceChoices(OptionBinder& binder, const Group& group, QGridLayout* grid, int firstRow);

    void enableChosenInputs(const Settings& settings);

private:
    struct GridCell {
        int row;
        int column;
    };

    void addPlace(int place, GridCell cell, const QList<QWidget*>& inputs);

    OptionBinder& m_binder;
    const char* m_placeKey;
    QString m_objectPrefix;
    QGridLayout* m_grid;
    QButtonGroup* m_places;
    QHash<int, QList<QWidget*>> m_inputsOfPlace;
};

} // namespace tavrin
