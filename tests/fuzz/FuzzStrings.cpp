#include "core/text/StringUtilities.h"
#include "fuzz/FuzzInput.h"

#include <QString>

using namespace tavrin;

// The string utilities on any text and any numbers, with the properties they promise.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QList<QByteArray> parts = fuzz::fields(data, size, 4);
    const QString text = QString::fromUtf8(parts[0]);
    const QString find = QString::fromUtf8(parts[1]);
    const QString other = QString::fromUtf8(parts[2]);
    const int number = toInteger(QString::fromUtf8(parts[3]));
    const bool caseSensitive = (number & 1) != 0;

    // Every match goes when nothing of the replacement can make a new one.
    const QString replaced = replaceString(text, find, QStringLiteral("\u2400"), 1, -1, true);
    fuzz::require(find.isEmpty() || find.contains(QChar(0x2400)) || !replaced.contains(find));
    // An empty find text is never found.
    fuzz::require(replaceString(text, QString(), other, 1, -1, caseSensitive) == text);
    fuzz::require(instrString(text, QString(), number, caseSensitive) <= 0);
    fuzz::require(leftString(text, number).size() <= text.size());

    replaceString(text, find, other, number, number / 3, caseSensitive);
    removeString(text, find, other, number, number / 5, caseSensitive);
    insertString(text, find, other, number, caseSensitive, caseSensitive);
    midString(text, number, number / 7);
    swapStringBySeperator(text, find);
    swapStringByPosition(text, number);
    reverseString(text);
    return 0;
}
