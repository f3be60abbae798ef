#pragma once

#include "core/profiles/Preferences.h"
#include "core/profiles/ProfileFile.h"
#include "core/rules/RuleStep.h"

#include <QObject>
#include <QSettings>
#include <QString>
#include <functional>
#include <optional>

namespace tavrin {

class ListController;
class Settings;

// The keys of the state kept between runs in the user defaults.
namespace userdefaults {
inline constexpr char LastProfile[] = "LASTPROFILE";
inline constexpr char LastRule[] = "LASTRULE";
inline constexpr char Defaults[] = "DEFAULTS";
inline constexpr char LivePreview[] = "LIVEPREVIEW";
inline constexpr char LivePreviewAllFiles[] = "LIVEPREVIEWALLFILES";
inline constexpr char LivePreviewFilesLimit[] = "LIVEPREVIEWFILESLIMIT";
// The file table's columns the user hid.
inline constexpr char HiddenColumns[] = "HIDDENCOLUMNS";
// Whether items that arrive in the window are sorted by name.
inline constexpr char SortOnArrival[] = "SORTONARRIVAL";
} // namespace userdefaults

// How opening a profile ended, with the message to show when it failed.
struct ProfileOutcome {
    ProfileLoadResult result = ProfileLoadResult::Loaded;
    QString message;
};

// The live-preview choice the session keeps.
struct LivePreviewChoice {
    bool enabled = false;
    bool allFiles = false;
    QString filesLimit;
};

// The session: the profile in use, the preferences, the rule chain, and what is kept in the
// user defaults between runs. A profile is not opened while a job works on the list, since
// it may change the list mode under it.
class SessionController : public QObject {
    Q_OBJECT

public:
    SessionController(Settings& settings, const ListController& list, QObject* parent = nullptr);

    Settings& settings() const { return m_settings; }

    // Where apply writes its logs: the preference "defaultLogFolderPath".
    const QString& logFolderPath() const { return m_preferences.defaultLogFolderPath; }
    void setLogFolderPath(const QString& path) { m_preferences.defaultLogFolderPath = path; }
    const Preferences& preferences() const { return m_preferences; }
    void setPreferences(const Preferences& preferences) { m_preferences = preferences; }
    // Saves "preferences.plist" and uses the new values from now on; false with the reason
    // when the file could not be written (the values are used all the same).
    bool applyPreferences(const Preferences& preferences, QString* error = nullptr);

    // The start and the end of a session: the last profile, rule chain and options come
    // back from the user defaults, and go there at the end. A remembered profile that cannot
    // be opened any more is forgotten and its failure answered, for the window to tell.
    std::optional<ProfileOutcome> applicationDidFinishLaunching();
    void applicationShouldTerminate();
    // Where the session is kept: the user defaults of "Palisade Soft"/"Tavrin3".
    QSettings& userDefaults() { return m_userDefaults; }

    LivePreviewChoice restoredLivePreview() const;
    // On unless the user turned it off.
    bool sortsOnArrival() const;
    void rememberSortOnArrival(bool sort);
    void rememberLivePreview(const LivePreviewChoice& choice);

    // The profile file in use; empty for none (the window title then says "Default").
    const QString& currProfileFile() const { return m_currProfileFile; }
    // Opens a profile: its options replace the current ones and it becomes the profile in
    // use. When the automatic save is on, the profile in use is saved first.
    ProfileOutcome setCurrentSettings(const QString& path);
    // Writes the options to `path`, which becomes the profile in use.
    bool saveProfile(const QString& path, QString* error = nullptr);
    // No profile in use any more; the options stay as they are.
    void closeProfile();
    // Back to the empty profile, with no profile in use (saving the one in use first when
    // the automatic save is on).
    void loadDefaultProfile();
    // True while a profile is applied: its option changes do not start live previews.
    bool isProfileLoading() const { return m_isProfileLoading; }
    // Runs `load` with isProfileLoading() true, whatever way it ends: the option changes it
    // makes are not the user's edits.
    void whileLoading(const std::function<void()>& load);

    // The rule chain: its steps, in order.
    const RuleChain& rules() const { return m_rules; }
    void setRules(const RuleChain& rules);
    // While the rules are shown (the drawer is open) and hold a step, previews run the chain
    // in place of the selected tab.
    bool isRuleChainInUse() const { return m_rulesShown && !m_rules.isEmpty(); }
    void setRulesShown(bool shown);

signals:
    void currProfileFileChanged(const QString& path);
    // A profile (or the empty one) replaced the options.
    void currentSettingsApplied();
    // The steps changed, or whether previews run them.
    void rulesChanged();

private:
    void setCurrProfileFile(const QString& path);
    void saveProfileInUseWhenAutomatic();
    void restoreRules();
    void restoreLastOptions();
    void rebuildMasks();

    Settings& m_settings;
    const ListController& m_list;
    Preferences m_preferences;
    QSettings m_userDefaults;
    QString m_currProfileFile;
    RuleChain m_rules;
    bool m_rulesShown = false;
    bool m_isProfileLoading = false;
};

} // namespace tavrin
