#pragma once

#include <QString>
#include <QStringList>
#include <QVariantMap>
#include <optional>

class QDateTime;

namespace tavrin {

class Settings;

namespace recordkeys {
inline constexpr char AppVersion[] = "appVersion";
}  // namespace recordkeys

// The keys of the settings record in the order writers list them: "appVersion", then every
// option key.
QStringList settingsRecordKeys();

// The settings record: "appVersion" and every option in the form the original platform's
// program reads. Booleans and integers as "%d" text ("0", "1", "3"), texts as they are, the
// custom date as "yyyy-MM-dd HH:mm:ss +0000" in UTC, each list option as the keyed archive
// of its list of texts (a QByteArray), but the photo field list as the archive of its
// MetaDataField objects.
QVariantMap getCurrentSettings(const Settings& settings);

// Applies a record, as one change of the settings. "appVersion" and keys that name no
// option are skipped, since a profile from a newer version may hold options this one lacks;
// options the record does not name keep their values. Texts are taken as
// Settings::setOptionFromString takes them, the custom date also in the form above; a list
// option takes a keyed archive of texts, the photo field list also one of fields. The first
// value that cannot be applied stops the application with a message for the user: the
// options set before it stay set.
bool setSettings(Settings& settings, const QVariantMap& record, QString* error = nullptr);

// The custom date as records and rule steps hold it: "yyyy-MM-dd HH:mm:ss +0000" in UTC.
// Reading takes any offset; nothing for a text of another form.
QString recordDateText(const QDateTime& date);
std::optional<QDateTime> recordDateFromText(const QString& text);

}  // namespace tavrin
