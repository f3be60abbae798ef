#include "cli/Suggestion.h"

#include "core/text/LocalizedStrings.h"

#include <algorithm>
#include <vector>

namespace tavrin::cli {

namespace {

bool holdsInOrder(const QString& candidate, const QString& typed)
{
    qsizetype at = 0;
    for (const QChar character : typed) {
        at = candidate.indexOf(character, at, Qt::CaseInsensitive);
        if (at < 0)
            return false;
        ++at;
    }
    return true;
}

// How many single-character insertions, deletions or substitutions turn one word into the other.
qsizetype editDistance(const QString& a, const QString& b)
{
    std::vector<qsizetype> previous(b.size() + 1);
    std::vector<qsizetype> current(b.size() + 1);
    for (qsizetype j = 0; j <= b.size(); ++j)
        previous[j] = j;
    for (qsizetype i = 1; i <= a.size(); ++i) {
        current[0] = i;
        for (qsizetype j = 1; j <= b.size(); ++j) {
            const bool same = a.at(i - 1).toLower() == b.at(j - 1).toLower();
            current[j] = std::min({previous[j] + 1, current[j - 1] + 1, previous[j - 1] + (same ? 0 : 1)});
        }
        std::swap(previous, current);
    }
    return previous[b.size()];
}

QString shortestHolding(const QString& typed, const QStringList& candidates)
{
    QString best;
    for (const QString& candidate : candidates) {
        if (holdsInOrder(candidate, typed) && (best.isEmpty() || candidate.size() < best.size()))
            best = candidate;
    }
    return best;
}

QString nearest(const QString& typed, const QStringList& candidates)
{
    const qsizetype allowed = std::max<qsizetype>(2, typed.size() / 3);
    QString best;
    qsizetype bestDistance = allowed + 1;
    for (const QString& candidate : candidates) {
        const qsizetype distance = editDistance(typed, candidate);
        if (distance < bestDistance) {
            best = candidate;
            bestDistance = distance;
        }
    }
    return best;
}

}  // namespace

QString closestMatch(const QString& typed, const QStringList& candidates)
{
    if (typed.size() < 2)
        return QString();
    for (const QString& candidate : candidates) {
        if (candidate.compare(typed, Qt::CaseInsensitive) == 0)
            return candidate;
    }
    const QString holding = shortestHolding(typed, candidates);
    return holding.isEmpty() ? nearest(typed, candidates) : holding;
}

QString didYouMean(const QString& typed, const QStringList& candidates)
{
    const QString match = closestMatch(typed, candidates);
    return match.isEmpty() ? QString() : localized("CLIDIDYOUMEAN").arg(match);
}

}  // namespace tavrin::cli
