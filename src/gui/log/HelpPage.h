#pragma once

#include <QString>

namespace tavrin {

// The help pages ship inside the program, one folder per language, but a browser opens only
// files: the pages of the current language are copied to help/<language>/ in the user's cache
// folder, replacing older copies, with the English page standing in for one the language
// lacks. All of them, and the stylesheet they share, are copied because the pages link to
// them. Answers the path of the copy of the page named `name`, or an empty string when the
// page is unknown or the copies could not be written.
QString helpPageFile(const QString& name);

// What to tell when the page could not be shown: without a browser, where the copy of the
// page is, so it can be opened by hand.
QString helpUnavailableText(const QString& pageFile);

} // namespace tavrin
