#include "core/profiles/ProfileFile.h"

#include "core/formats/VersionStamp.h"
#include "core/formats/PropertyList.h"
#include "core/profiles/SettingsRecord.h"
#include "core/text/LocalizedStrings.h"

#include <QSaveFile>
#include <QVariantMap>
#include <cstdlib>
#include <optional>

namespace tavrin {

namespace {

// A profile is a few kilobytes; anything this large is not one.
constexpr qint64 kLargestProfileFile = 16 * 1024 * 1024;

void setError(QString* error, const QString& message)
{
    if (error)
        *error = message;
}

QByteArray profileXml(const QVariantMap& record)
{
    const Plist dictionary(plist_new_dict());
    for (const QString& key : settingsRecordKeys()) {
        const QVariant value = record.value(key);
        plist_t node = nullptr;
        if (value.typeId() == QMetaType::QByteArray) {
            const QByteArray data = value.toByteArray();
            node = plist_new_data(data.constData(), uint64_t(data.size()));
        } else {
            node = plist_new_string(value.toString().toUtf8().constData());
        }
        plist_dict_set_item(dictionary.get(), key.toUtf8().constData(), node);
    }
    return plistToXml(dictionary.get());
}

// Texts and data are what a record holds; any other value is kept as a null QVariant, which
// setSettings refuses when its key names an option.
QVariant recordValue(plist_t node)
{
    uint64_t length = 0;
    switch (plist_get_node_type(node)) {
    case PLIST_STRING:
        return plistString(node);
    case PLIST_DATA: {
        const char* bytes = plist_get_data_ptr(node, &length);
        return QByteArray(bytes, qsizetype(length));
    }
    default:
        return {};
    }
}

std::optional<QVariantMap> readRecord(const QString& path)
{
    const Plist plist = readPlistFile(path, kLargestProfileFile);
    if (!plist || plist_get_node_type(plist.get()) != PLIST_DICT)
        return std::nullopt;
    const plist_t root = plist.get();
    QVariantMap record;
    plist_dict_iter iterator = nullptr;
    plist_dict_new_iter(root, &iterator);
    for (;;) {
        char* key = nullptr;
        plist_t value = nullptr;
        plist_dict_next_item(root, iterator, &key, &value);
        if (!value)
            break;
        record.insert(QString::fromUtf8(key), recordValue(value));
        std::free(key);
    }
    std::free(iterator);
    return record;
}

}  // namespace

bool saveProfileFile(const Settings& settings, const QString& path, QString* error)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(profileXml(getCurrentSettings(settings))) < 0
        || !file.commit()) {
        setError(error, localized("PROFILEWRITEFAILED").arg(path, file.errorString()));
        return false;
    }
    return true;
}

ProfileLoadResult loadProfileFile(Settings& settings, const QString& path, QString* error)
{
    const std::optional<QVariantMap> record = readRecord(path);
    if (!record) {
        setError(error, localized("PROFILEREADFAILED").arg(path));
        return ProfileLoadResult::Failed;
    }
    const QVariant version = record->value(QString::fromLatin1(recordkeys::AppVersion));
    if (version.typeId() != QMetaType::QString || !isFileVersionMatch(version.toString())) {
        setError(error, localized("PROFILEOTHERVERSION").arg(path));
        return ProfileLoadResult::Incompatible;
    }
    QString problem;
    if (!setSettings(settings, *record, &problem)) {
        setError(error, localized("PROFILEAPPLYFAILED").arg(path, problem));
        return ProfileLoadResult::Failed;
    }
    return ProfileLoadResult::Loaded;
}

}  // namespace tavrin
