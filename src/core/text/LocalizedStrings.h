#pragma once

#include <QString>
#include <QStringList>

namespace tavrin {

// The key -> text tables shipped in resources/strings, one per language. English is the
// fallback for a key a table lacks; a key no table holds comes back as itself, so a
// missing text shows up on screen instead of an empty label.
class LocalizedStrings {
public:
    static QString text(const QString& key);

    // "en", "fr", "de" or "es"; anything else selects English.
    static void setLanguage(const QString& language);
    static QString language();

    // The language the system locale asks for, among the four the application speaks.
    static QString systemLanguage();

    static QStringList languages();
    static QStringList keys(const QString& language);
};

// The text of a string-table key in the current language.
inline QString localized(const char* key)
{
    return LocalizedStrings::text(QString::fromLatin1(key));
}

}  // namespace tavrin
