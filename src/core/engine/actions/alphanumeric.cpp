#include "core/engine/actions/alphanumeric.h"

#include "core/engine/OptionValues.h"
#include "core/engine/actions/workingname.h"
#include "core/profiles/Settings.h"
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

// The value placed beside the name. At both ends a number stands on either side of the
// name, while the name stands on either side of a letter value.
enum class BothEnds { ValueOutside, NameOutside };

QString placedValue(const QString& name, const QString& value, const QString& separator,
                    SequencePlacement placement, BothEnds bothEnds)
{
    switch (placement) {
    case SequencePlacement::BeforeName:
        return value + separator + name;
    case SequencePlacement::AfterName:
        return name + separator + value;
    case SequencePlacement::BothEnds:
        return bothEnds == BothEnds::ValueOutside ? value + separator + name + separator + value
                                                  : name + separator + value + separator + name;
    case SequencePlacement::InsteadOfName:
        break;
    }
    return value;
}

// A typed "/" in a number's separator stands for ":"; a letter separator is taken as given.
QString numberedName(const QString& name, const QString& value, const SequenceOptions& options)
{
    return placedValue(name, value, storedName(options.separator), options.placement, BothEnds::ValueOutside);
}

QString letteredName(const QString& name, const QString& value, const SequenceOptions& options)
{
    return placedValue(name, value, options.separator, options.placement, BothEnds::NameOutside);
}

// The largest number a run over `count` items reaches: the last one when counting up, the
// first one otherwise.
qint64 largestNumber(const SequenceOptions& options, int count)
{
    const qint64 start = std::max(options.numericStart, 0);
    if (options.direction != SequenceDirection::Increment)
        return start;
    const qint64 last = start + qint64(std::max(options.step, 1)) * (count - 1);
    return std::min<qint64>(last, std::numeric_limits<int>::max());
}

int nextNumber(int current, const SequenceOptions& options)
{
    qint64 next = current;
    if (options.direction == SequenceDirection::Decrement)
        next -= std::max(options.step, 1);
    else if (options.direction == SequenceDirection::Increment)
        next += std::max(options.step, 1);
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

QString nextLetterValue(const QString& current, const SequenceOptions& options)
{
    if (options.direction == SequenceDirection::Stay)
        return current;
    const bool decrement = options.direction == SequenceDirection::Decrement;
    const int step = std::min(options.step, alphabeticsequence::MaximumStep);
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
    return {static_cast<char16_t>(code)};
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

SequenceOptions SequenceOptions::from(const OptionValues& values)
{
    SequenceOptions options;
    options.kind
        = values.boolean(Settings::isAlphaNumericNumericKey) ? SequenceKind::Numeric : SequenceKind::Alphabetic;
    if (values.boolean(Settings::isAlphaNumericDecrementKey)) {
        options.direction = SequenceDirection::Decrement;
        options.step = values.integer(Settings::alphaNumericDecrementByKey);
    } else if (values.boolean(Settings::isAlphaNumericIncrementKey)) {
        options.direction = SequenceDirection::Increment;
        options.step = values.integer(Settings::alphaNumericIncrementByKey);
    } else {
        options.direction = SequenceDirection::Stay;
    }
    const bool prefix = values.boolean(Settings::isAlphaNumericPrefixKey);
    const bool suffix = values.boolean(Settings::isAlphaNumericSufixKey);
    if (prefix)
        options.placement = suffix ? SequencePlacement::BothEnds : SequencePlacement::BeforeName;
    else if (suffix)
        options.placement = SequencePlacement::AfterName;
    if (values.boolean(Settings::isAlphaNumericSeperatorKey))
        options.separator = values.text(Settings::alphaNumericSeperatorKey);
    options.paddingMask = values.text(Settings::alphaNumericPaddingMaskKey);
    options.numericStart = values.integer(Settings::alphaNumericNumericStartWithKey);
    options.alphabeticStart = values.text(Settings::alphaNumericAlphabeticStartWithKey);
    return options;
}

bool renameByNumeric(FileSystemItem& item, const SequenceOptions& options, int& counter, QString& error)
{
    int value = std::max(counter, 0);
    try {
        const QString text = paddedByMask(QString::number(value), storedName(options.paddingMask));
        const NameParts parts = workingNameParts(item);
        const QString name = numberedName(parts.name, text, options);
        item.setObject(withExtension(name, parts.extension), QLatin1String(itemkeys::NewFilename));
        value = nextNumber(value, options);
    } catch (const std::exception& e) {
        error = localized("UNABLETOGENERATENEWFILENAMEERROR").arg(QString::fromLocal8Bit(e.what()));
    }
    counter = value;
    return error.isEmpty();
}

bool renameByAlphabetic(FileSystemItem& item, const SequenceOptions& options, QString& counter, QString& error)
{
    QString value = counter.isEmpty() ? QString::fromLatin1(alphabeticsequence::StartValue) : counter;
    try {
        const QString& mask = options.paddingMask;
        if (!mask.isEmpty() && value.size() > mask.size())
            value.truncate(mask.size());
        const NameParts parts = workingNameParts(item);
        const QString name = letteredName(parts.name, paddedByMask(value, mask), options);
        item.setObject(withExtension(name, parts.extension), QLatin1String(itemkeys::NewFilename));
        value = nextLetterValue(value, options);
    } catch (const std::exception& e) {
        error = localized("UNABLETOGENERATENEWFILENAMEERROR").arg(QString::fromLocal8Bit(e.what()));
    }
    counter = value;
    return error.isEmpty();
}

bool numbersOverflowMask(const SequenceOptions& options, int count)
{
    if (options.kind != SequenceKind::Numeric || options.paddingMask.isEmpty() || count <= 0)
        return false;
    return QString::number(largestNumber(options, count)).size() > options.paddingMask.size();
}

}  // namespace tavrin
