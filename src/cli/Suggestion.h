#pragma once

#include <QString>
#include <QStringList>

namespace tavrin::cli {

// The candidate a mistyped word most likely meant: the same word in other letter case, else the
// shortest candidate holding the typed letters in order ("generalCase" in
// "generalFileNameCase"), else the nearest by a few typing mistakes; empty for none.
QString closestMatch(const QString& typed, const QStringList& candidates);

// "; did you mean 'X'?" in the user's language, or nothing when no candidate comes close.
QString didYouMean(const QString& typed, const QStringList& candidates);

}  // namespace tavrin::cli
