#pragma once

#include <QRegularExpression>
#include <QString>
#include <optional>

namespace tavrin {

// Why a pattern cannot be used, in the regular-expression library's words, and the 1-based
// character where it found the problem.
struct PatternProblem {
    QString description;
    int column = 0;
};

std::optional<PatternProblem> patternProblem(const QString& pattern);

// A pattern with Unicode character classes (\w, \d and [[:alpha:]] know every script).
QRegularExpression compiledPattern(const QString& pattern, bool caseSensitive);

// Which matches a replacement touches: from the startOnOccurrence-th on (1 is the first),
// `count` of them (-1 every one, 0 none), counted from the end of the text when `fromEnd`.
struct MatchSelection {
    int startOnOccurrence = 1;
    int count = -1;
    bool fromEnd = false;
};

// The text with the chosen matches replaced. The replacement may name the pattern's groups:
// $0 is the whole match, $1 to $99 the numbered groups, ${name} a named one; $$ is a "$".
// A group that did not take part in the match, or that the pattern lacks, gives nothing.
QString replaceMatches(const QString& text, const QRegularExpression& pattern, const QString& replacement,
                       const MatchSelection& which);

}  // namespace tavrin
