#pragma once

#include <QString>
#include <QStringList>
#include <optional>

class QObject;

namespace tavrin {

// Why a tab's options cannot run: the alert's title and message keys, and the option
// whose field gets the focus afterwards.
struct ValidationFailure {
    QString titleKey;
    QString messageKey;
    QString focusOption;
    // What the message names ("%1", "%2"...): a pattern's problem and its place, say.
    QStringList messageArguments{};

    // The title and the message in the user's language.
    QString title() const;
    QString message() const;
};

// Brings the options of a tab to a form the actions can run with (steps below 1 become
// "1", an empty alphabetic start becomes "a", ...) and checks the inputs the tab needs.
// Writes the normalised values back into the settings object by key.
std::optional<ValidationFailure> validateAndNormalise(QObject& settings, int tab);

}  // namespace tavrin
