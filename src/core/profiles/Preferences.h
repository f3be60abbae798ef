#pragma once

#include <QString>

namespace tavrin {

// Names of the folders kept in the per-user support folder.
namespace supportfolders {
inline constexpr char Logs[] = "Logs";
inline constexpr char Profiles[] = "Profiles";
inline constexpr char Rules[] = "Rules";
}  // namespace supportfolders

// The keys of "preferences.plist", shared with the original platform's program.
namespace preferencekeys {
inline constexpr char DefaultRulesFolderPath[] = "defaultRulesFolderPath";
inline constexpr char DefaultProfileFolderPath[] = "defaultProfileFolderPath";
inline constexpr char DefaultLogFolderPath[] = "defaultLogFolderPath";
inline constexpr char AutomaticSaveCurrProfile[] = "automaticSaveCurrProfile";
}  // namespace preferencekeys

// The per-user support folder: the user's data folder ($XDG_DATA_HOME, normally
// ~/.local/share) joined with "Palisade Soft/Tavrin3". Empty when the system names no
// data folder.
QString getAppPath();

// Where the preferences live: "preferences.plist" in the support folder.
QString preferencesFilePath();

// Makes one folder of the support folder ("Logs", "Profiles", "Rules") with every folder
// above it. Succeeds at once when it is already a folder; otherwise says why it could not
// be made.
bool createApplicationUsersFolder(const QString& name, QString* error = nullptr);

// Where rules, profiles and logs are kept, and whether the profile in use is saved
// without asking when another one is opened or the application quits.
struct Preferences {
    QString defaultRulesFolderPath;
    QString defaultProfileFolderPath;
    QString defaultLogFolderPath;
    bool automaticSaveCurrProfile = false;

    // The three folders of the support folder, automatic saving off.
    static Preferences defaults();

    bool operator==(const Preferences&) const = default;
};

// Reads "preferences.plist". A missing file is written with the defaults (an error
// there is reported but the defaults are still answered). A file that is not a property
// list dictionary (or not a regular file, or too large, or nested too deep) is left as it is
// and the defaults are answered; a key missing from the file keeps its default, and so does
// a folder path that is empty, relative, or names something that is not a folder (reported).
Preferences loadPreferences(QString* error = nullptr);

// Writes "preferences.plist" as an XML property list, replacing the old file only once the
// new one is complete. The automatic-save flag is written as the text "0" or "1".
bool savePreferences(const Preferences& preferences, QString* error = nullptr);

// What both programs do first: make the support folder with its "Logs", "Profiles" and
// "Rules" folders, then read the preferences. When a folder cannot be made, errorTitle and
// errorMessage hold the texts of the alert to show before quitting.
struct ApplicationSupport {
    Preferences preferences;
    QString errorTitle;
    QString errorMessage;

    bool isReady() const { return errorMessage.isEmpty(); }
};

ApplicationSupport prepareApplicationSupport();

}  // namespace tavrin
