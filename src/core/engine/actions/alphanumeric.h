#pragma once

#include "core/list/FileSystemItem.h"

#include <QString>

namespace tavrin {

class OptionValues;

namespace alphabeticsequence {
// The first value of an alphabetic sequence whose start is empty.
inline constexpr char StartValue[] = "a";
// A letter step never exceeds the alphabet: larger steps are taken as this.
inline constexpr int MaximumStep = 26;
// How many steps an out-of-range value may take to come back among the lower-case
// letters before the sequence starts over from StartValue instead.
inline constexpr int MaximumStepsIntoRange = 10000;
}  // namespace alphabeticsequence

enum class SequenceKind { Numeric, Alphabetic };
// Where the counter goes after each name; decrementing wins when both switches are on.
enum class SequenceDirection { Stay, Increment, Decrement };
// Where the value stands: in place of the name, before it, after it, or at both ends.
enum class SequencePlacement { InsteadOfName, BeforeName, AfterName, BothEnds };

// The sequence tab's options. Texts are kept as typed.
struct SequenceOptions {
    SequenceKind kind = SequenceKind::Numeric;
    SequenceDirection direction = SequenceDirection::Increment;
    int step = 1;  // of the chosen direction
    SequencePlacement placement = SequencePlacement::InsteadOfName;
    QString separator{};  // empty when the separator switch is off
    QString paddingMask{};
    int numericStart = 0;
    QString alphabeticStart{};

    static SequenceOptions from(const OptionValues& values);
};

// Numbers the name: the counter's value (a negative counter counts as 0), fitted to the
// padding mask, placed as the options say with the separator between value and name.
// Writes the result, extension included, into the record's newFilename, working on the name
// an earlier rule step proposed when there is one. Then steps the counter (steps below 1
// count as 1; the counter never drops below 0 and stops at the largest int) and writes it
// back, also when the action fails. A typed "/" in the separator or the mask stands for ":".
// Answers true when `error` (which the caller empties) is still empty afterwards.
bool renameByNumeric(FileSystemItem& item, const SequenceOptions& options, int& counter, QString& error);

// Whether numbering `count` items would reach a number with more digits than the padding
// mask has characters: the mask then cuts the numbers, and different items get the same one.
bool numbersOverflowMask(const SequenceOptions& options, int count);

// Letters the name with the counter's value ("a" when empty; cut to the mask's length when
// longer, and the sequence goes on from the cut value), fitted to the mask. Before the name
// the value comes first; after it, the name is put before what there is so far, so at both
// ends the name stands on either side of the value. The separator and the mask are taken as
// given. Then steps the counter (steps above 26 count as 26) until every character of it is
// a lower-case letter, so an upper-case or other start value is used once, and writes it
// back, also when the action fails. With SequenceDirection::Stay the counter stays.
// Answers true when `error` (which the caller empties) is still empty afterwards.
bool renameByAlphabetic(FileSystemItem& item, const SequenceOptions& options, QString& counter, QString& error);

// The letter value `incrementBy` after `value`, carrying like a number in base 26 without a
// zero digit: z + 1 = aa, az + 1 = ba, zz + 1 = aaa. The last letter wraps to
// "a" + (incrementBy - 1) whatever the overshoot (y + 3 = ac), and every position is looked
// at once, from the right.
QString nextAlphabeticNumber(const QString& value, int incrementBy);

// The letter value `decrementBy` before `value`: ba - 1 = az, aa - 1 = z, a - 1 is empty.
// The last letter wraps to "z" + (1 - decrementBy), a borrow from the first letter drops it.
QString previousAlphabeticNumber(const QString& value, int decrementBy);

// Every character lies between "a" and "z"; true for the empty string.
bool isAlphabeticNumericInRange(const QString& value);

}  // namespace tavrin
