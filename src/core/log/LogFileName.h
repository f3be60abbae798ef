#pragma once

#include <QString>
#include <optional>

namespace tavrin {

// The file names of rename logs, "Log dd-MM-yyyy HH-mm-ss-N.xml": split at "-" without the
// extension they give exactly six pieces, the last being the count of renamed items. While its
// batch runs (or when the batch was killed) the count is still the placeholder "#".
namespace logfilename {

// The count of a finished log's name, converted as option texts are ("12" -> 12, "x" -> 0).
// Nothing for a name that is not a log's: an extension other than "xml" in any letter case,
// not six pieces, or a "#" count.
std::optional<int> countFromFileName(const QString& fileName);

// A log still named with its "#": its batch is running or was killed.
bool isInterimFileName(const QString& fileName);

// The name a killed batch's "#" log is finished under: the "#" replaced by `count`, the time
// moved `secondsLater` seconds on when the name of that second is taken. Empty when the time
// cannot be moved (a name with no readable time in it) or the name is not an interim one.
QString finishedFileName(const QString& interimName, int count, int secondsLater = 0);

}  // namespace logfilename

}  // namespace tavrin
