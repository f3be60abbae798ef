#pragma once

#include <QString>

namespace tavrin {

class Settings;

enum class ProfileLoadResult {
    Loaded,
    Incompatible,  // made by another major version, or without a version: nothing changed
    Failed,        // unreadable, not a dictionary, or a value that could not be applied
};

// Writes the settings record to a profile (".tnprofile"): an XML property list dictionary
// with the record's keys in order, texts as <string> and list archives as <data>. The old
// file is replaced only once the new one is complete.
bool saveProfileFile(const Settings& settings, const QString& path, QString* error = nullptr);

// Opens a profile, XML or binary. A profile of another major version changes nothing. A
// value that cannot be applied stops the loading there, and the options set before it
// stay set (see setSettings). Anything but Loaded comes with a message in `error`.
ProfileLoadResult loadProfileFile(Settings& settings, const QString& path, QString* error = nullptr);

}  // namespace tavrin
