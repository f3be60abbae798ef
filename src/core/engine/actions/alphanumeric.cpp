#include "core/engine/actions/alphanumeric.h"

#include "core/engine/actions/workingname.h"
#include "core/text/LocalizedStrings.h"
#include "core/text/NameParts.h"

#include <QList>
#include <algorithm>
#include <exception>
#include <limits>

namespace tavrin {

namespace {

constexpr int codeOfA = 'a';
constexpr int codeOfZ = 'z';

// The value fills the mask from the right; a value longer than the mask keeps only its
// first characters (12345 in "000" is "123").
QString paddedByMask(const QString& value, const QString& mask)
{
    if (mask.isEmpty())
        return value;
    if (value.size() > mask.size())
        return value.left(mask.size());
    return mask.left(mask.size() - value.size()) + value;
}

QString separatorIf(bool seperator, const QString& seperatorString)
{
    return seperator ? seperatorString : QString();
}

QString numberedName(const QString& name, const QString& value, bool prefix, bool subffix, const QString& separator)
{
    if (!prefix && !subffix)
        return value;
    const QString front = prefix ? value + separator : QString();
    const QString back = subffix ? separator + value : QString();
    return front + name + back;
}

// Unlike the numeric placement, the suffix wraps what the prefix built: with both, the
// name stands on either side of the value.
QString letteredName(const QString& name, const QString& value, bool prefix, bool subffix, const QString& separator)
{
    QString result = value;
    if (prefix)
        result = value + separator + name;
    if (subffix)
        result = name + separator + result;
    return result;
}

int nextNumber(int current, bool increment, bool decrement, int incrementBy, int decrementBy)
{
    qint64 next = current;
    if (decrement)
        next -= std::max(decrementBy, 1);
    else if (increment)
        next += std::max(incrementBy, 1);
    return static_cast<int>(std::clamp<qint64>(next, 0, std::numeric_limits<int>::max()));
}

QString steppedOnce(const QString& value, bool decrement, int step)
{
    if (!decrement)
        return nextAlphabeticNumber(value, std::max(step, 1));
    if (step <= 0)
        return previousAlphabeticNumber(value, 1);
    const QString previous = previousAlphabeticNumber(value, step);
    // Below "a" there is no letter value; one out of range makes the loop step on to "z".
    return previous.isEmpty() ? QStringLiteral("a") + QChar(u'\0') : previous;
}

QString nextLetterValue(const QString& current, bool increment, bool decrement, int incrementBy, int decrementBy)
{
    if (!increment && !decrement)
        return current;
    const int step = std::min(decrement ? decrementBy : incrementBy, alphabeticsequence::MaximumStep);
    QString value = current;
    for (int steps = 0; steps < alphabeticsequence::MaximumStepsIntoRange; ++steps) {
        value = steppedOnce(value, decrement, step);
        if (isAlphabeticNumericInRange(value))
            return value;
    }
    // Values such as "A0000000" would take longer than the batch itself to step into range.
    return QString::fromLatin1(alphabeticsequence::StartValue);
}

// A leading carry slot, then the UTF-16 code of each character.
QList<int> letterCodes(const QString& value)
{
    QList<int> codes;
    codes.reserve(value.size() + 1);
    codes.append(0);
    for (const QChar character : value)
        codes.append(character.unicode());
    return codes;
}

QChar characterOf(int code)
{
    return QChar(static_cast<char16_t>(code));
}

}  // namespace

QString nextAlphabeticNumber(const QString& value, int incrementBy)
{
    QList<int> codes = letterCodes(value);
    const qsizetype last = codes.size() - 1;
    codes[last] = static_cast<char16_t>(codes[last] + incrementBy);
    QString result;
    for (qsizetype i = last; i >= 1; --i) {
        if (codes[i] > codeOfZ) {
            codes[i] = i == last ? codeOfA + (incrementBy - 1) : codeOfA;
            if (i == 1)
                codes[0] = codeOfA;
            else
                ++codes[i - 1];
        }
        result.prepend(characterOf(codes[i]));
    }
    if (codes[0] != 0)
        result.prepend(characterOf(codes[0]));
    return result;
}

QString previousAlphabeticNumber(const QString& value, int decrementBy)
{
    QList<int> codes = letterCodes(value);
    const qsizetype last = codes.size() - 1;
    codes[last] -= decrementBy;
    QString result;
    for (qsizetype i = last; i >= 1; --i) {
        if (codes[i] < codeOfA) {
            codes[i] = i == last ? codeOfZ + (1 - decrementBy) : codeOfZ;
            if (i == 1)
                codes[i] = 0;
            else
                --codes[i - 1];
        }
        if (codes[i] > 0)
            result.prepend(characterOf(codes[i]));
    }
    return result;
}

bool isAlphabeticNumericInRange(const QString& value)
{
    return std::all_of(value.begin(), value.end(),
                       [](QChar character) { return character >= QChar(u'a') && character <= QChar(u'z'); });
}

bool renameByNumeric(FileSystemItem& item, bool increment, bool decrement, bool prefix, bool subffix, bool seperator,
                     const QString& seperatorString, const QString& addingMask, int& numericStartWith, int incrementBy,
                     int decrementBy, QString& error)
{
    int counter = std::max(numericStartWith, 0);
    try {
        const QString value = paddedByMask(QString::number(counter), storedName(addingMask));
        const NameParts parts = workingNameParts(item);
        const QString name
            = numberedName(parts.name, value, prefix, subffix, separatorIf(seperator, storedName(seperatorString)));
        item.setObject(withExtension(name, parts.extension), QLatin1String(itemkeys::NewFilename));
        counter = nextNumber(counter, increment, decrement, incrementBy, decrementBy);
    } catch (const std::exception& e) {
        error = localized("UNABLETOGENERATENEWFILENAMEERROR").arg(QString::fromLocal8Bit(e.what()));
    }
    numericStartWith = counter;
    return error.isEmpty();
}

bool renameByAlphabetic(FileSystemItem& item, bool increment, bool decrement, bool prefix, bool subffix, bool seperator,
                        const QString& seperatorString, const QString& addingMask, QString& alphabeticStartWith,
                        int incrementBy, int decrementBy, QString& error)
{
    QString counter
        = alphabeticStartWith.isEmpty() ? QString::fromLatin1(alphabeticsequence::StartValue) : alphabeticStartWith;
    try {
        if (!addingMask.isEmpty() && counter.size() > addingMask.size())
            counter.truncate(addingMask.size());
        const QString value = paddedByMask(counter, addingMask);
        const NameParts parts = workingNameParts(item);
        const QString name = letteredName(parts.name, value, prefix, subffix, separatorIf(seperator, seperatorString));
        item.setObject(withExtension(name, parts.extension), QLatin1String(itemkeys::NewFilename));
        counter = nextLetterValue(counter, increment, decrement, incrementBy, decrementBy);
    } catch (const std::exception& e) {
        error = localized("UNABLETOGENERATENEWFILENAMEERROR").arg(QString::fromLocal8Bit(e.what()));
    }
    alphabeticStartWith = counter;
    return error.isEmpty();
}

}  // namespace tavrin
