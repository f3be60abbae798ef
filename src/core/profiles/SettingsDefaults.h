#pragma once

#include <QVariantHash>

namespace tavrin {

// The empty profile's values that are not their type's empty value (false, 0, "", an
// empty list), by option key. Every option missing here starts empty. The custom date is
// the moment of the call, to the second.
QVariantHash emptyProfileValues();

}  // namespace tavrin
