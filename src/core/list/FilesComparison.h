#pragma once

#include <QByteArray>
#include <QString>

namespace tavrin {

// The one comparison of every sort: case-insensitive and numeric-aware ("a9" < "A10"),
// the same whatever the system locale, also when it is C. Names equal but for case are
// ordered by their code points, so the order is total. Negative, zero or positive.
int compareFiles(const QString& a, const QString& b);

// A key whose byte order is the order of compareFiles, made once per string so that
// sorting a long list compares bytes instead of collating the same names again and again.
// Two keys compare equal only when the strings are equal.
QByteArray filesSortKey(const QString& text);

} // namespace tavrin
