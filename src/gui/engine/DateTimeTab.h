#pragma once

#include "gui/engine/ActionTab.h"

#include <QList>
#include <memory>

class QGroupBox;
class QLabel;
class QLayout;

namespace tavrin {

class OptionBinder;
class PlaceChoices;
class Settings;

// The date and time tab: which date goes into the names, the fields it is written with, the
// texts around it and where it goes. The custom date can be picked only when it is the date
// chosen; the fields of a part that is switched off, and the inputs of the places not
// chosen, are disabled. An example shows the text the options give.
class DateTimeTab : public ActionTab {
    Q_OBJECT

public:
    explicit DateTimeTab(Settings& settings, QWidget* parent = nullptr);
    ~DateTimeTab() override;

    QWidget* fieldForOption(const QString& optionKey) const override;

private:
    QLayout* makeSourceRow();
    QGroupBox* makeFormatGroup();
    QGroupBox* makePlaceGroup();
    void refreshFromSettings();
    void showExample();

    Settings& m_settings;
    OptionBinder* m_binder;
    QList<QWidget*> m_dateInputs;
    QList<QWidget*> m_timeInputs;
    QLabel* m_example = nullptr;
    std::unique_ptr<PlaceChoices> m_places;
};

} // namespace tavrin
