#include "gui/ui/TextFieldFormatter.h"

#include "core/text/StringUtilities.h"

#include <QLineEdit>
#include <algorithm>

namespace tavrin {

namespace {

using Kind = TextFieldFormatter::Kind;

bool isLowerCaseLetter(QChar c)
{
    return c >= QLatin1Char('a') && c <= QLatin1Char('z');
}

// Trimming stops at the first letter from either end, so a letter value may still hold
// other characters inside; the sequence steps past them.
QString lettersKept(const QString& typed)
{
    const QString lower = typed.toLower();
    const auto first = std::find_if(lower.cbegin(), lower.cend(), isLowerCaseLetter);
    const auto last = std::find_if(lower.crbegin(), lower.crend(), isLowerCaseLetter);
    if (first == lower.cend())
        return {};
    return QString(first, last.base() - first);
}

bool isUnsafeCharacter(QChar c)
{
    return QStringView(u"/\\:*?\"<>|").contains(c);
}

// Like the letters, trimming works at the ends only.
QString safeCharactersKept(const QString& typed)
{
    const QString lower = typed.toLower();
    qsizetype first = 0;
    qsizetype end = lower.size();
    while (first < end && isUnsafeCharacter(lower[first]))
        ++first;
    while (end > first && isUnsafeCharacter(lower[end - 1]))
        --end;
    return lower.mid(first, end - first);
}

QString digitsKept(const QString& typed)
{
    QString digits;
    for (const QChar c : typed) {
        if (c >= QLatin1Char('0') && c <= QLatin1Char('9'))
            digits.append(c);
    }
    return digits;
}

QString kept(Kind kind, const QString& typed)
{
    switch (kind) {
    case Kind::Number:
    case Kind::PositiveNumber:
        return digitsKept(typed);
    case Kind::Letters:
        return lettersKept(typed);
    case Kind::SafeCharacters:
        return safeCharactersKept(typed);
    case Kind::Text:
        break;
    }
    return typed;
}

// The value a field falls back to when nothing usable is left; empty when any text will do.
QString fallback(Kind kind, const QString& kept)
{
    switch (kind) {
    case Kind::Number:
        return kept.isEmpty() ? QStringLiteral("0") : QString();
    case Kind::PositiveNumber:
        return toInteger(kept) == 0 ? QStringLiteral("1") : QString();
    case Kind::Letters:
        return kept.isEmpty() ? QStringLiteral("a") : QString();
    case Kind::SafeCharacters:
    case Kind::Text:
        break;
    }
    return {};
}

} // namespace

TextFieldFormatter::TextFieldFormatter(QLineEdit* field, Kind kind, int maximumLength)
    : QObject(field)
    , m_field(field)
    , m_kind(kind)
{
    field->setMaxLength(maximumLength);
    connect(field, &QLineEdit::textEdited, this, &TextFieldFormatter::filterEdit);
}

QString TextFieldFormatter::filtered(Kind kind, const QString& typed)
{
    const QString text = kept(kind, typed);
    const QString substitute = fallback(kind, text);
    return substitute.isEmpty() ? text : substitute;
}

// A stand-in value comes selected, so the next key typed replaces it instead of being
// appended to it ("1" then "5" gives "5", not "15").
void TextFieldFormatter::filterEdit(const QString& typed)
{
    const QString text = kept(m_kind, typed);
    const QString substitute = fallback(m_kind, text);
    if (!substitute.isEmpty()) {
        m_field->setText(substitute);
        m_field->selectAll();
    } else if (text != typed) {
        const int cursor = m_field->cursorPosition() - int(typed.size() - text.size());
        m_field->setText(text);
        m_field->setCursorPosition(std::clamp(cursor, 0, int(text.size())));
    }
    emit edited(m_field->text());
}

} // namespace tavrin
