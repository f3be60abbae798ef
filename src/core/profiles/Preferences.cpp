#include "core/profiles/Preferences.h"

#include "core/formats/PropertyList.h"
#include "core/platform/FileOperations.h"
#include "core/text/LocalizedStrings.h"
#include "core/text/NameParts.h"
#include "core/text/StringUtilities.h"

#include <QDir>
#include <QFile>
#include <QSaveFile>
#include <QStandardPaths>
#include <QStringList>
#include <filesystem>
#include <system_error>

namespace tavrin {

namespace {

constexpr char kSupportFolder[] = "Palisade Soft/Tavrin3";
constexpr char kPreferencesFile[] = "preferences.plist";

// A preferences file is a few hundred bytes; anything this large is not one.
constexpr qint64 kLargestPreferencesFile = 1024 * 1024;

void setError(QString* error, const QString& message)
{
    if (error)
        *error = message;
}

std::filesystem::path fileSystemPath(const QString& path)
{
    return std::filesystem::path(QFile::encodeName(path).toStdString());
}

QString folderError(const QString& path, const std::error_code& code)
{
    return localized("FOLDERCREATEFAILED").arg(path, QString::fromLocal8Bit(code.message().c_str()));
}

Plist readPlist(const QString& path, QString* error)
{
    Plist plist = readPlistFile(path, kLargestPreferencesFile);
    if (!plist || plist_get_node_type(plist.get()) != PLIST_DICT) {
        setError(error, localized("PREFERENCESREADFAILED").arg(path));
        return nullptr;
    }
    return plist;
}

void readString(plist_t dictionary, const char* key, QString& value)
{
    const plist_t node = plist_dict_get_item(dictionary, key);
    if (!node || plist_get_node_type(node) != PLIST_STRING)
        return;
    value = plistString(node);
}

// The flag is written as "%d" text; a true boolean or a number written by another tool
// is taken as well.
void readFlag(plist_t dictionary, const char* key, bool& value)
{
    const plist_t node = plist_dict_get_item(dictionary, key);
    if (!node)
        return;
    switch (plist_get_node_type(node)) {
    case PLIST_STRING: {
        QString text;
        readString(dictionary, key, text);
        value = toInteger(text) != 0;
        break;
    }
    case PLIST_BOOLEAN: {
        uint8_t flag = 0;
        plist_get_bool_val(node, &flag);
        value = flag != 0;
        break;
    }
    case PLIST_UINT: {
        uint64_t number = 0;
        plist_get_uint_val(node, &number);
        value = number != 0;
        break;
    }
    default:
        break;
    }
}

// A folder path that cannot serve: empty (a log would land in whatever folder the program
// was started from, where undo from elsewhere never finds it), relative for the same reason,
// or the path of something that is not a folder.
bool isUsableFolderPath(const QString& path)
{
    if (path.isEmpty() || !QDir::isAbsolutePath(path))
        return false;
    std::error_code code;
    const std::filesystem::file_status status = std::filesystem::status(fileSystemPath(path), code);
    return !std::filesystem::exists(status) || std::filesystem::is_directory(status);
}

void readFolder(plist_t dictionary, const char* key, QString& value, QStringList& problems)
{
    QString path = value;
    readString(dictionary, key, path);
    if (isUsableFolderPath(path))
        value = path;
    else
        problems.append(localized("PREFERENCESFOLDERFALLBACK").arg(path, value));
}

void setString(plist_t dictionary, const char* key, const QString& value)
{
    plist_dict_set_item(dictionary, key, plist_new_string(value.toUtf8().constData()));
}

QByteArray preferencesXml(const Preferences& preferences)
{
    const Plist dictionary(plist_new_dict());
    setString(dictionary.get(), preferencekeys::DefaultRulesFolderPath, preferences.defaultRulesFolderPath);
    setString(dictionary.get(), preferencekeys::DefaultProfileFolderPath, preferences.defaultProfileFolderPath);
    setString(dictionary.get(), preferencekeys::DefaultLogFolderPath, preferences.defaultLogFolderPath);
    setString(dictionary.get(), preferencekeys::AutomaticSaveCurrProfile,
              preferences.automaticSaveCurrProfile ? QStringLiteral("1") : QStringLiteral("0"));
    return plistToXml(dictionary.get());
}

}  // namespace

QString getAppPath()
{
    const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    if (data.isEmpty())
        return {};
    return joinPath(data, QString::fromLatin1(kSupportFolder));
}

QString preferencesFilePath()
{
    const QString support = getAppPath();
    return support.isEmpty() ? QString() : joinPath(support, QString::fromLatin1(kPreferencesFile));
}

bool createApplicationUsersFolder(const QString& name, QString* error)
{
    const QString support = getAppPath();
    if (support.isEmpty()) {
        setError(error, localized("NOSUPPORTFOLDER"));
        return false;
    }
    const QString path = joinPath(support, name);
    const std::filesystem::path folder = fileSystemPath(path);
    std::error_code code;
    if (std::filesystem::is_directory(folder, code))
        return true;
    std::filesystem::create_directories(folder, code);
    if (code) {
        setError(error, folderError(path, code));
        return false;
    }
    // Something that is not a folder may already stand at the path.
    if (!std::filesystem::is_directory(folder, code)) {
        setError(error, folderError(path, std::make_error_code(std::errc::not_a_directory)));
        return false;
    }
    return true;
}

Preferences Preferences::defaults()
{
    const QString support = getAppPath();
    Preferences preferences;
    preferences.defaultRulesFolderPath = joinPath(support, QString::fromLatin1(supportfolders::Rules));
    preferences.defaultProfileFolderPath = joinPath(support, QString::fromLatin1(supportfolders::Profiles));
    preferences.defaultLogFolderPath = joinPath(support, QString::fromLatin1(supportfolders::Logs));
    return preferences;
}

Preferences loadPreferences(QString* error)
{
    Preferences preferences = Preferences::defaults();
    const QString path = preferencesFilePath();
    if (!pathExists(path)) {
        savePreferences(preferences, error);
        return preferences;
    }
    const Plist dictionary = readPlist(path, error);
    if (!dictionary)
        return preferences;
    QStringList problems;
    readFolder(dictionary.get(), preferencekeys::DefaultLogFolderPath, preferences.defaultLogFolderPath, problems);
    readFolder(
        dictionary.get(), preferencekeys::DefaultProfileFolderPath, preferences.defaultProfileFolderPath, problems);
    readFolder(dictionary.get(), preferencekeys::DefaultRulesFolderPath, preferences.defaultRulesFolderPath, problems);
    if (!problems.isEmpty())
        setError(error, problems.join(QLatin1Char('\n')));
    readFlag(dictionary.get(), preferencekeys::AutomaticSaveCurrProfile, preferences.automaticSaveCurrProfile);
    return preferences;
}

bool savePreferences(const Preferences& preferences, QString* error)
{
    const QString path = preferencesFilePath();
    if (path.isEmpty()) {
        setError(error, localized("NOSUPPORTFOLDER"));
        return false;
    }
    QDir().mkpath(getAppPath());
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(preferencesXml(preferences)) < 0 || !file.commit()) {
        setError(error, localized("PREFERENCESSAVEFAILED").arg(path, file.errorString()));
        return false;
    }
    return true;
}

ApplicationSupport prepareApplicationSupport()
{
    ApplicationSupport support;
    for (const char* name : {supportfolders::Logs, supportfolders::Profiles, supportfolders::Rules}) {
        QString error;
        if (!createApplicationUsersFolder(QString::fromLatin1(name), &error)) {
            support.preferences = Preferences::defaults();
            support.errorTitle = localized("APPLICATIONINITTITLE");
            support.errorMessage = localized("APPLICATIONCREATEFOLDERFAILED").arg(error);
            return support;
        }
    }
    QString problem;
    support.preferences = loadPreferences(&problem);
    if (!problem.isEmpty())
        qWarning("%s", qPrintable(problem));
    return support;
}

}  // namespace tavrin
