#pragma once

#include <QList>
#include <array>

class QWidget;

namespace tavrin {

class OptionBinder;

// The inputs of the date part or the time part of a name's date: three fields, each
// offering the Unicode patterns a name needs or none, with a text field after the first two.
// `keys` are the five options in that order. The date and time tab and the prefix/suffix
// tab's date mode share these.
namespace datefieldinputs {

QList<QWidget*> dateInputs(OptionBinder& binder, const std::array<const char*, 5>& keys);
QList<QWidget*> timeInputs(OptionBinder& binder, const std::array<const char*, 5>& keys);

} // namespace datefieldinputs

} // namespace tavrin
