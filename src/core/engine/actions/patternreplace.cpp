#include "core/engine/actions/patternreplace.h"

#include <QList>
#include <algorithm>

namespace tavrin {

namespace {

// "$1", "$12", "${name}" or "${3}" at `at` (a "$"): the group's text, and how many characters
// the reference took. Nothing when the "$" starts no reference: it is then taken as it is.
std::optional<std::pair<QString, qsizetype>> groupReference(const QRegularExpressionMatch& match,
                                                           const QString& replacement, qsizetype at)
{
    const qsizetype next = at + 1;
    if (next < replacement.size() && replacement.at(next) == u'{') {
        const qsizetype close = replacement.indexOf(u'}', next);
        if (close < 0)
            return std::nullopt;
        const QString name = replacement.mid(next + 1, close - next - 1);
        bool isNumber = false;
        const int number = name.toInt(&isNumber);
        return std::pair{isNumber ? match.captured(number) : match.captured(name), close - at + 1};
    }
    qsizetype end = next;
    while (end < replacement.size() && end < next + 2 && replacement.at(end).isDigit()
           && replacement.at(end).unicode() < 128)
        ++end;
    if (end == next)
        return std::nullopt;
    return std::pair{match.captured(replacement.mid(next, end - next).toInt()), end - at};
}

QString expanded(const QRegularExpressionMatch& match, const QString& replacement)
{
    QString result;
    for (qsizetype at = 0; at < replacement.size(); ++at) {
        const QChar character = replacement.at(at);
        if (character != u'$') {
            result += character;
        } else if (at + 1 < replacement.size() && replacement.at(at + 1) == u'$') {
            result += u'$';
            ++at;
        } else if (const auto reference = groupReference(match, replacement, at)) {
            result += reference->first;
            at += reference->second - 1;
        } else {
            result += character;
        }
    }
    return result;
}

QList<QRegularExpressionMatch> chosenMatches(const QString& text, const QRegularExpression& pattern,
                                             const MatchSelection& which)
{
    QList<QRegularExpressionMatch> all;
    for (QRegularExpressionMatchIterator it = pattern.globalMatch(text); it.hasNext();)
        all.append(it.next());
    if (which.fromEnd)
        std::reverse(all.begin(), all.end());
    const qsizetype first = std::max(which.startOnOccurrence, 1) - 1;
    const qsizetype available = std::max<qsizetype>(all.size() - first, 0);
    const qsizetype count = which.count < 0 ? available : std::min<qsizetype>(which.count, available);
    QList<QRegularExpressionMatch> chosen = all.mid(first, count);
    if (which.fromEnd)
        std::reverse(chosen.begin(), chosen.end());
    return chosen;
}

}  // namespace

std::optional<PatternProblem> patternProblem(const QString& pattern)
{
    const QRegularExpression compiled(pattern, QRegularExpression::UseUnicodePropertiesOption);
    if (compiled.isValid())
        return std::nullopt;
    return PatternProblem{compiled.errorString(), static_cast<int>(compiled.patternErrorOffset()) + 1};
}

QRegularExpression compiledPattern(const QString& pattern, bool caseSensitive)
{
    QRegularExpression::PatternOptions options = QRegularExpression::UseUnicodePropertiesOption;
    if (!caseSensitive)
        options |= QRegularExpression::CaseInsensitiveOption;
    return QRegularExpression(pattern, options);
}

QString replaceMatches(const QString& text, const QRegularExpression& pattern, const QString& replacement,
                       const MatchSelection& which)
{
    QString result;
    qsizetype copied = 0;
    for (const QRegularExpressionMatch& match : chosenMatches(text, pattern, which)) {
        result += QStringView(text).mid(copied, match.capturedStart() - copied);
        result += expanded(match, replacement);
        copied = match.capturedEnd();
    }
    result += QStringView(text).mid(copied);
    return result;
}

}  // namespace tavrin
