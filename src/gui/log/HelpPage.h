#pragma once

#include <QString>

namespace tavrin {

// The help pages ship inside the program, but a browser opens only files: the page named
// `name` is copied to the user's cache folder first, replacing an older copy. Answers the
// copy's path, or an empty string when the page is unknown or could not be written.
QString helpPageFile(const QString& name);

} // namespace tavrin
