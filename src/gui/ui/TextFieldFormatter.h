#pragma once

#include <QObject>
#include <QString>

class QLineEdit;

namespace tavrin {

// Keeps what is typed into an option's text field within what the option can hold. It
// filters the user's edits only: a value set from a profile shows as it is stored, which is
// the value the action will use.
class TextFieldFormatter : public QObject {
    Q_OBJECT

public:
    enum class Kind {
        // Any text.
        Text,
        // Digits only; an empty field reads "0". The first number of a sequence.
        Number,
        // Digits only; "1" when the value would be 0. Steps, positions, occurrences, counts.
        PositiveNumber,
        // The first value of a letter sequence: lower-cased, cut at both ends to the
        // lower-case letters, "a" when none is left.
        Letters,
        // Text that stands in for the characters other systems refuse in names: lower-cased,
        // and cut at both ends of / \\ : * ? " < > | so it cannot bring them back.
        SafeCharacters,
    };

    // Becomes the field's child and limits it to `maximumLength` characters.
    TextFieldFormatter(QLineEdit* field, Kind kind, int maximumLength);

    // What a field of this kind keeps of a typed text.
    static QString filtered(Kind kind, const QString& typed);

signals:
    // The user changed the text; `text` is what the field shows after filtering.
    void edited(const QString& text);

private:
    void filterEdit(const QString& typed);

    QLineEdit* m_field;
    Kind m_kind;
};

} // namespace tavrin
