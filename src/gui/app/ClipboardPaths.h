#pragma once

#include <QStringList>

class QMimeData;

namespace tavrin {

// The items a file manager put on the clipboard when the user copied them: its file URIs
// ("x-special/gnome-copied-files", "text/uri-list"), or else absolute paths copied as text,
// one a line. Only local paths are answered, in the order they were copied, without repeats.
QStringList pathsFromClipboard(const QMimeData* data);

} // namespace tavrin
