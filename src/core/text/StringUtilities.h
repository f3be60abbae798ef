#pragma once

#include <QString>

// The string operations every rename action shares. Positions are 1-based, as users type
// them; lengths, positions and counts are in UTF-16 code units, so a surrogate pair counts
// as two characters. A position below 1 counts as lying beyond the end of the string. An
// empty find text is never found. Several edge behaviours below look odd; the actions and
// the rule files written by earlier versions rely on them, so they stay as they are.
namespace tavrin {

// The code units in reverse order (a surrogate pair is reversed unit by unit).
QString reverseString(const QString& str);

// The text after the first (case-insensitive) occurrence of the separator, then the
// separator as the name spells it, then the text before it: "John-Smith" -> "Smith-John".
// Unchanged when the separator does not occur.
QString swapStringBySeperator(const QString& str, const QString& separator);

// The character at the 1-based position is the pivot: the text after it, then the pivot,
// then the text before it ("abcdef", 3 -> "defcab"). Unchanged for a position below 1 or
// beyond the end.
QString swapStringByPosition(const QString& str, int position);

// The string from `start` on (a start above 1 cuts off the head: it is not carried into
// the result), with its first `count` matches of `find` replaced; a count of -1 replaces
// every match, a count of 0 or below -1 none.
QString replaceString(const QString& str, const QString& find, const QString& replace, int start, int count,
                      bool caseSensitive);

// Cuts the string (from `start` on) at the `count`-th occurrence of `find`. `replace` only
// acts as a flag: non-empty keeps the occurrence at the end of the result, empty drops it.
// With fewer than `count` occurrences, or a count of -1, the whole input comes back
// unchanged; a count of 0 answers the string from `start` on. When dropping an occurrence
// at the very beginning would leave nothing, the text after the occurrence is answered.
QString removeString(const QString& str, const QString& find, const QString& replace, int start, int count,
                     bool caseSensitive);

// Inserts text before or after the `onOccurence`-th occurrence of `find`. The search is
// always case-sensitive: `caseSensitive` is accepted for the callers' sake and ignored.
// Unchanged when that occurrence does not exist.
QString insertString(const QString& str, const QString& find, const QString& insert, int onOccurence, bool before,
                     bool caseSensitive);

// The 1-based position of the first match of `find` at or after `start`, or 0.
int instrString(const QString& str, const QString& find, int start, bool caseSensitive);

// The first `length` characters, or the whole string when `length` exceeds its length;
// nothing for a negative length.
QString leftString(const QString& str, int length);

// At most `length` characters from the 1-based `start`, never more than remain; the empty
// string when the start lies beyond the end (a start of 0 counts as beyond) or the length
// is negative.
QString midString(const QString& str, int start, int length);

// An option text as an integer: optional leading white space, an optional sign, then
// decimal digits up to the first other character ("12abc" -> 12, "-1" -> -1); 0 when there
// are no digits. Values out of range are clamped to the int range.
int toInteger(const QString& text);

}  // namespace tavrin
