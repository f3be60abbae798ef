#include "gui/control/SessionController.h"

#include "core/formats/KeyedArchive.h"
#include "core/profiles/Settings.h"
#include "core/profiles/SettingsRecord.h"
#include "core/text/LocalizedStrings.h"
#include "gui/control/ListController.h"
#include "gui/control/LivePreview.h"

#include <QDebug>
#include <QFileInfo>

namespace tavrin {

namespace {

// Profile loading sets the flag for its whole length, whatever way it ends.
class ProfileLoading {
public:
    explicit ProfileLoading(bool& flag)
        : m_flag(flag)
    {
        m_flag = true;
    }
    ~ProfileLoading() { m_flag = false; }
    ProfileLoading(const ProfileLoading&) = delete;
    ProfileLoading& operator=(const ProfileLoading&) = delete;

private:
    bool& m_flag;
};

// A profile that could not be opened, and why.
struct LoadFailure {
    ProfileLoadResult result;
    QString path;
    QString reason;
};

ProfileOutcome failureOutcome(const LoadFailure& failure)
{
    const QString name = QFileInfo(failure.path).fileName();
    if (failure.result == ProfileLoadResult::Incompatible)
        return { failure.result, localized("PROFILEINCOMPATIBLE").arg(name) };
    QString message = localized("PROFILELOADFAILED").arg(name);
    if (!failure.reason.isEmpty())
        message += QLatin1Char('\n') + failure.reason;
    return { failure.result, message };
}

} // namespace

SessionController::SessionController(Settings& settings, const ListController& list, QObject* parent)
    : QObject(parent)
    , m_settings(settings)
    , m_list(list)
    , m_preferences(Preferences::defaults())
    , m_userDefaults(QSettings::NativeFormat, QSettings::UserScope, QStringLiteral("Palisade Soft"),
          QStringLiteral("Tavrin3"))
{
}

// The launch: the options start from their start values; the profile in use at the last
// quit is opened again, or else the options of the last quit are applied.
std::optional<ProfileOutcome> SessionController::applicationDidFinishLaunching()
{
    std::optional<ProfileOutcome> failure;
    restoreRules();
    const QString lastProfile = m_userDefaults.value(QLatin1String(userdefaults::LastProfile)).toString();
    if (!lastProfile.isEmpty()) {
        const ProfileOutcome outcome = setCurrentSettings(lastProfile);
        if (outcome.result != ProfileLoadResult::Loaded) {
            m_userDefaults.remove(QLatin1String(userdefaults::LastProfile));
            failure = outcome;
        }
    }
    if (m_currProfileFile.isEmpty())
        restoreLastOptions();
    m_userDefaults.sync();
    return failure;
}

void SessionController::restoreLastOptions()
{
    const QVariantMap record = m_userDefaults.value(QLatin1String(userdefaults::Defaults)).toMap();
    const ProfileLoading loading(m_isProfileLoading);
    QString error;
    if (!record.isEmpty() && !setSettings(m_settings, record, &error))
        qWarning().noquote() << QStringLiteral("Error in applicationDidFinishLaunching : %1").arg(error);
    rebuildMasks();
}

// The masks the window shows are made of the chosen tokens; a mask set on the command line
// has no tokens behind it and stays as it is.
void SessionController::rebuildMasks()
{
    if (!m_settings.photoMetaDataList().isEmpty())
        m_settings.resetPhotoMask();
    if (!m_settings.id3RenamingTagsList().isEmpty())
        m_settings.resetID3Mask();
}

// A rule chain that cannot be read back is dropped, so that the next start does not trip
// over it again.
void SessionController::restoreRules()
{
    m_rules.clear();
    const QVariant stored = m_userDefaults.value(QLatin1String(userdefaults::LastRule));
    if (!stored.isValid())
        return;
    const std::optional<RuleChain> rules = chainFromVariant(keyedUnarchive(stored.toByteArray()).value_or(QVariant()));
    if (rules) {
        setRules(*rules);
        return;
    }
    qWarning("Error in applicationDidFinishLaunching : the saved rule chain cannot be read; it is dropped");
    m_userDefaults.remove(QLatin1String(userdefaults::LastRule));
}

LivePreviewChoice SessionController::restoredLivePreview() const
{
    LivePreviewChoice choice;
    choice.enabled = m_userDefaults.value(QLatin1String(userdefaults::LivePreview), false).toBool();
    choice.allFiles = m_userDefaults.value(QLatin1String(userdefaults::LivePreviewAllFiles), false).toBool();
    choice.filesLimit = m_userDefaults
                            .value(QLatin1String(userdefaults::LivePreviewFilesLimit),
                                QString::fromLatin1(LivePreview::DefaultFilesLimit))
                            .toString();
    return choice;
}

bool SessionController::sortsOnArrival() const
{
    return m_userDefaults.value(QLatin1String(userdefaults::SortOnArrival), true).toBool();
}

void SessionController::rememberSortOnArrival(bool sort)
{
    m_userDefaults.setValue(QLatin1String(userdefaults::SortOnArrival), sort);
    m_userDefaults.sync();
}

void SessionController::rememberLivePreview(const LivePreviewChoice& choice)
{
    m_userDefaults.setValue(QLatin1String(userdefaults::LivePreview), choice.enabled);
    m_userDefaults.setValue(QLatin1String(userdefaults::LivePreviewAllFiles), choice.allFiles);
    m_userDefaults.setValue(QLatin1String(userdefaults::LivePreviewFilesLimit), choice.filesLimit);
    m_userDefaults.sync();
}

void SessionController::applicationShouldTerminate()
{
    saveProfileInUseWhenAutomatic();
    m_userDefaults.setValue(QLatin1String(userdefaults::Defaults), getCurrentSettings(m_settings));
    if (m_currProfileFile.isEmpty())
        m_userDefaults.remove(QLatin1String(userdefaults::LastProfile));
    else
        m_userDefaults.setValue(QLatin1String(userdefaults::LastProfile), m_currProfileFile);
    m_userDefaults.setValue(QLatin1String(userdefaults::LastRule), keyedArchive(chainToVariant(m_rules)));
    m_userDefaults.sync();
}

void SessionController::saveProfileInUseWhenAutomatic()
{
    if (m_currProfileFile.isEmpty() || !m_preferences.automaticSaveCurrProfile)
        return;
    QString error;
    if (!saveProfileFile(m_settings, m_currProfileFile, &error))
        qWarning().noquote() << QStringLiteral("Error in saveProfile : %1").arg(error);
}

ProfileOutcome SessionController::setCurrentSettings(const QString& path)
{
    if (m_list.isExecuting())
        return { ProfileLoadResult::Failed, localized("PROFILELOADBUSY") };
    if (path != m_currProfileFile)
        saveProfileInUseWhenAutomatic();
    ProfileLoadResult result = ProfileLoadResult::Failed;
    QString error;
    {
        const ProfileLoading loading(m_isProfileLoading);
        result = loadProfileFile(m_settings, path, &error);
        if (result == ProfileLoadResult::Loaded)
            rebuildMasks();
    }
    if (result != ProfileLoadResult::Loaded)
        return failureOutcome({ result, path, error });
    setCurrProfileFile(path);
    emit currentSettingsApplied();
    return {};
}

bool SessionController::saveProfile(const QString& path, QString* error)
{
    if (!saveProfileFile(m_settings, path, error))
        return false;
    setCurrProfileFile(path);
    return true;
}

void SessionController::loadDefaultProfile()
{
    if (m_list.isExecuting())
        return;
    saveProfileInUseWhenAutomatic();
    {
        const ProfileLoading loading(m_isProfileLoading);
        const Settings::ChangeBatch batch(m_settings);
        m_settings.resetToDefaults();
    }
    setCurrProfileFile(QString());
    m_userDefaults.remove(QLatin1String(userdefaults::LastProfile));
    emit currentSettingsApplied();
}

void SessionController::whileLoading(const std::function<void()>& load)
{
    const ProfileLoading loading(m_isProfileLoading);
    load();
}

void SessionController::setRules(const RuleChain& rules)
{
    m_rules = rules;
    emit rulesChanged();
}

void SessionController::setRulesShown(bool shown)
{
    if (shown == m_rulesShown)
        return;
    m_rulesShown = shown;
    emit rulesChanged();
}

void SessionController::closeProfile()
{
    setCurrProfileFile(QString());
    m_userDefaults.remove(QLatin1String(userdefaults::LastProfile));
}

void SessionController::setCurrProfileFile(const QString& path)
{
    if (path == m_currProfileFile)
        return;
    m_currProfileFile = path;
    emit currProfileFileChanged(path);
}

bool SessionController::applyPreferences(const Preferences& preferences, QString* error)
{
    m_preferences = preferences;
    return savePreferences(preferences, error);
}

} // namespace tavrin
