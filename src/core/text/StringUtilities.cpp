#include "core/text/StringUtilities.h"

#include <QStringView>
#include <algorithm>
#include <limits>

namespace tavrin {

namespace {

Qt::CaseSensitivity sensitivity(bool caseSensitive)
{
    return caseSensitive ? Qt::CaseSensitive : Qt::CaseInsensitive;
}

// Qt finds an empty needle at every position; here an empty find text never matches.
qsizetype findIn(QStringView text, const QString& find, qsizetype from, Qt::CaseSensitivity cs)
{
    if (find.isEmpty())
        return -1;
    return text.indexOf(find, from, cs);
}

// The text from a 1-based start on, or nothing when the start lies beyond the end.
QStringView tailFrom(const QString& str, int start)
{
    if (start < 1 || start - 1 >= str.size())
        return {};
    return QStringView(str).mid(start - 1);
}

bool mayReplaceMore(int count, int replaced)
{
    return count == -1 || replaced < count;
}

}  // namespace

QString reverseString(const QString& str)
{
    QString reversed = str;
    std::reverse(reversed.begin(), reversed.end());
    return reversed;
}

QString swapStringBySeperator(const QString& str, const QString& separator)
{
    const qsizetype at = findIn(str, separator, 0, Qt::CaseInsensitive);
    if (at < 0)
        return str;
    // The separator is taken from the name, so its letter case survives the swap.
    return str.mid(at + separator.size()) + str.mid(at, separator.size()) + str.left(at);
}

QString swapStringByPosition(const QString& str, int position)
{
    if (position < 1 || str.size() <= position - 1)
        return str;
    const qsizetype pivot = position - 1;
    return str.mid(position) + str.at(pivot) + str.left(pivot);
}

QString replaceString(const QString& str, const QString& find, const QString& replace, int start, int count,
                      bool caseSensitive)
{
    const QStringView work = tailFrom(str, start);
    const Qt::CaseSensitivity cs = sensitivity(caseSensitive);
    QString result;
    qsizetype from = 0;
    for (int replaced = 0; mayReplaceMore(count, replaced); ++replaced) {
        const qsizetype match = findIn(work, find, from, cs);
        if (match < 0)
            break;
        result += work.mid(from, match - from);
        result += replace;
        from = match + find.size();
    }
    result += work.mid(from);
    return result;
}

QString removeString(const QString& str, const QString& find, const QString& replace, int start, int count,
                     bool caseSensitive)
{
    // A cut needs one definite occurrence: "all" (-1) or any other negative count leaves
    // the name as it is.
    if (count < 0)
        return str;
    const QStringView work = tailFrom(str, start);
    const Qt::CaseSensitivity cs = sensitivity(caseSensitive);
    int found = 0;
    QString result;
    qsizetype from = 0;
    while (found < count) {
        const qsizetype match = findIn(work, find, from, cs);
        if (match < 0)
            break;
        ++found;
        result += work.mid(from, match - from);
        if (!replace.isEmpty() || found < count)
            result += work.mid(match, find.size());
        from = match + find.size();
    }
    // Dropping an occurrence at the very start would leave an empty name; the text after it
    // is the better answer.
    if (result.isEmpty())
        result += work.mid(from);
    return found == count ? result : str;
}

QString insertString(const QString& str, const QString& find, const QString& insert, int onOccurence, bool before,
                     [[maybe_unused]] bool caseSensitive)
{
    // Always an exact match: rule files from earlier versions expect this.
    if (onOccurence < 1)
        return str;
    qsizetype match = -1;
    qsizetype from = 0;
    for (int occurrence = 0; occurrence < onOccurence; ++occurrence) {
        match = findIn(str, find, from, Qt::CaseSensitive);
        if (match < 0)
            return str;
        from = match + find.size();
    }
    const qsizetype cut = before ? match : match + find.size();
    return str.left(cut) + insert + str.mid(cut);
}

int instrString(const QString& str, const QString& find, int start, bool caseSensitive)
{
    if (start < 1)
        return 0;
    const qsizetype match = findIn(str, find, start - 1, sensitivity(caseSensitive));
    return match < 0 ? 0 : static_cast<int>(match + 1);
}

QString leftString(const QString& str, int length)
{
    if (length < 0)
        return QString();
    return length > str.size() ? str : str.left(length);
}

QString midString(const QString& str, int start, int length)
{
    if (start < 1 || start - 1 >= str.size() || length < 0)
        return QString();
    return str.mid(start - 1, length);
}

int toInteger(const QString& text)
{
    constexpr qint64 cap = qint64(std::numeric_limits<int>::max()) + 1;
    qsizetype i = 0;
    while (i < text.size() && text.at(i).isSpace())
        ++i;
    bool negative = false;
    if (i < text.size() && (text.at(i) == QLatin1Char('+') || text.at(i) == QLatin1Char('-'))) {
        negative = text.at(i) == QLatin1Char('-');
        ++i;
    }
    qint64 value = 0;
    for (; i < text.size(); ++i) {
        const char16_t unit = text.at(i).unicode();
        if (unit < u'0' || unit > u'9')
            break;
        value = std::min(value * 10 + (unit - u'0'), cap);
    }
    if (negative)
        return static_cast<int>(-value);
    return static_cast<int>(std::min<qint64>(value, std::numeric_limits<int>::max()));
}

}  // namespace tavrin
