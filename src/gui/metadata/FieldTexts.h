#pragma once

#include <QString>

namespace tavrin {

// The catalogue keeps its labels, category names and prefixes in English, as profiles and
// rules archive them; the mask editor shows them in the user's language. A text the tables
// do not name (a field from a newer version's profile, "EXIF") is shown as it is.
QString shownFieldText(const QString& catalogueText);

} // namespace tavrin
