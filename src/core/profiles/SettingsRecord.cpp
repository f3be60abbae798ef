#include "core/profiles/SettingsRecord.h"

#include "core/formats/VersionStamp.h"
#include "core/profiles/Settings.h"
#include "core/formats/KeyedArchive.h"
#include "core/metadata/MetaDataCatalogue.h"
#include "core/text/LocalizedStrings.h"

#include <QDate>
#include <QDateTime>
#include <QMetaProperty>
#include <QRegularExpression>
#include <QTime>
#include <QTimeZone>
#include <optional>

namespace tavrin {

namespace {

// The form in which the original platform describes a date: always with its UTC offset.
constexpr char kDateDescriptionFormat[] = "yyyy-MM-dd HH:mm:ss";

QMetaProperty optionProperty(const QString& key)
{
    const QMetaObject& meta = Settings::staticMetaObject;
    return meta.property(meta.indexOfProperty(key.toUtf8().constData()));
}

QString dateDescription(const QDateTime& date)
{
    return date.toUTC().toString(QLatin1String(kDateDescriptionFormat)) + QLatin1String(" +0000");
}

// Parsed by hand rather than by QDateTime::fromString, which reads the time as local time
// first and so loses the times a daylight-saving change skips.
std::optional<QDateTime> dateFromDescription(const QString& text)
{
    static const QRegularExpression form(
        QStringLiteral(R"(^(\d{4}-\d{2}-\d{2}) (\d{2}:\d{2}:\d{2}) ([+-])(\d{2})(\d{2})$)"));
    const QRegularExpressionMatch match = form.match(text.trimmed());
    if (!match.hasMatch())
        return std::nullopt;
    const QDate date = QDate::fromString(match.captured(1), QStringLiteral("yyyy-MM-dd"));
    const QTime time = QTime::fromString(match.captured(2), QStringLiteral("HH:mm:ss"));
    const int sign = match.captured(3) == QLatin1String("-") ? -1 : 1;
    const int offset = sign * (match.captured(4).toInt() * 3600 + match.captured(5).toInt() * 60);
    if (!date.isValid() || !time.isValid())
        return std::nullopt;
    // The date picker works in local time; holding the date so keeps it equal to one picked there.
    return QDateTime(date, time, QTimeZone(offset)).toLocalTime();
}

std::optional<QStringList> unarchiveTexts(const QByteArray& archive)
{
    const std::optional<QVariant> value = keyedUnarchive(archive);
    if (!value || value->typeId() != QMetaType::QVariantList)
        return std::nullopt;
    QStringList texts;
    for (const QVariant& item : value->toList()) {
        if (item.typeId() != QMetaType::QString)
            return std::nullopt;
        texts.append(item.toString());
    }
    return texts;
}

bool isFieldList(const QString& key)
{
    return key == QLatin1String(Settings::photoMetaDataListKey);
}

// The photo fields are kept as archived fields; a list of their tokens, as earlier versions
// kept it, is read too.
std::optional<QStringList> unarchiveList(const QString& key, const QByteArray& archive)
{
    if (isFieldList(key)) {
        if (const auto fields = unarchiveMetaDataFields(archive))
            return MetaDataField::getTagsList(*fields);
    }
    return unarchiveTexts(archive);
}

QByteArray archivedList(const QString& key, const QStringList& texts)
{
    if (!isFieldList(key))
        return keyedArchive(texts);
    MetaDataCatalogue catalogue;
    catalogue.InitializeMetaDataList();
    return archiveMetaDataFields(catalogue.fieldsForTags(texts));
}

bool refuse(const QString& key, QString* error)
{
    if (error)
        *error = localized("RECORDVALUEINVALID").arg(key);
    return false;
}

bool applyValue(Settings& settings, const QString& key, const QVariant& value, QString* error)
{
    const QMetaProperty property = optionProperty(key);
    const int type = property.metaType().id();
    if (value.typeId() == QMetaType::QByteArray) {
        const std::optional<QStringList> texts
            = type == QMetaType::QStringList ? unarchiveList(key, value.toByteArray()) : std::nullopt;
        if (!texts)
            return refuse(key, error);
        property.write(&settings, *texts);
        return true;
    }
    if (value.typeId() != QMetaType::QString)
        return refuse(key, error);
    if (type == QMetaType::QDateTime) {
        if (const std::optional<QDateTime> date = dateFromDescription(value.toString())) {
            property.write(&settings, *date);
            return true;
        }
    }
    return settings.setOptionFromString(key, value.toString(), error);
}

}  // namespace

QStringList settingsRecordKeys()
{
    return QStringList {QString::fromLatin1(recordkeys::AppVersion)} + Settings::optionKeys();
}

QVariantMap getCurrentSettings(const Settings& settings)
{
    QVariantMap record;
    record.insert(QString::fromLatin1(recordkeys::AppVersion), appVersion());
    for (const QString& key : Settings::optionKeys()) {
        const QMetaProperty property = optionProperty(key);
        switch (property.metaType().id()) {
        case QMetaType::QStringList:
            record.insert(key, archivedList(key, property.read(&settings).toStringList()));
            break;
        case QMetaType::QDateTime:
            record.insert(key, dateDescription(property.read(&settings).toDateTime()));
            break;
        default:
            record.insert(key, settings.optionToString(key));
            break;
        }
    }
    return record;
}

bool setSettings(Settings& settings, const QVariantMap& record, QString* error)
{
    const Settings::ChangeBatch batch(settings);
    // Walking the options rather than the record passes over "appVersion" and unknown keys.
    for (const QString& key : Settings::optionKeys()) {
        const auto value = record.constFind(key);
        if (value != record.cend() && !applyValue(settings, key, *value, error))
            return false;
    }
    return true;
}

QString recordDateText(const QDateTime& date)
{
    return dateDescription(date);
}

std::optional<QDateTime> recordDateFromText(const QString& text)
{
    return dateFromDescription(text);
}

}  // namespace tavrin
