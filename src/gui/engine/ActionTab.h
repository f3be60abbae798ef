#pragma once

#include <QString>
#include <QWidget>

namespace tavrin {

// A page of the action tabs: the options of one renaming action, bound to the settings.
class ActionTab : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;

    // The input that edits an option ("generalFilenameMask" ...), where the focus goes
    // after a validation alert about it; null when the page has no such input.
    virtual QWidget* fieldForOption(const QString& optionKey) const = 0;
};

} // namespace tavrin
