#include "core/profiles/Settings.h"

#include "core/profiles/SettingsDefaults.h"
#include "core/text/LocalizedStrings.h"
#include "core/text/StringUtilities.h"

#include <QMetaProperty>
#include <QMetaType>
#include <QVariant>
#include <array>
#include <optional>

namespace tavrin {

namespace {

// QObject's own "objectName" comes before the options and is not one of them.
QMetaProperty optionProperty(const QByteArray& key)
{
    const QMetaObject& meta = Settings::staticMetaObject;
    const int index = meta.indexOfProperty(key.constData());
    if (index < meta.propertyOffset())
        return {};
    return meta.property(index);
}

QMetaProperty optionProperty(const QString& key)
{
    return optionProperty(key.toUtf8());
}

std::optional<int> strictInteger(const QString& text)
{
    bool ok = false;
    const int value = text.trimmed().toInt(&ok, 10);
    return ok ? std::optional<int>(value) : std::nullopt;
}

std::optional<bool> strictBoolean(const QString& text)
{
    const QString trimmed = text.trimmed();
    if (trimmed.compare(QLatin1String("true"), Qt::CaseInsensitive) == 0)
        return true;
    if (trimmed.compare(QLatin1String("false"), Qt::CaseInsensitive) == 0)
        return false;
    if (const std::optional<int> number = strictInteger(trimmed))
        return *number != 0;
    return std::nullopt;
}

QStringList listFromText(const QString& text)
{
    QStringList items;
    for (const QString& item : text.split(u','))
        if (const QString trimmed = item.trimmed(); !trimmed.isEmpty())
            items.append(trimmed);
    return items;
}

// The value a text stands for, typed as the option holds it; none when it is malformed.
std::optional<QVariant> parseOptionValue(QMetaType type, const QString& text)
{
    switch (type.id()) {
    case QMetaType::Bool:
        if (const std::optional<bool> value = strictBoolean(text))
            return QVariant(*value);
        return std::nullopt;
    case QMetaType::Int:
        if (const std::optional<int> value = strictInteger(text))
            return QVariant(*value);
        return std::nullopt;
    case QMetaType::QStringList:
        return QVariant(listFromText(text));
    case QMetaType::QDateTime:
        if (const QDateTime date = QDateTime::fromString(text.trimmed(), Qt::ISODate); date.isValid())
            return QVariant(date);
        return std::nullopt;
    default:
        return QVariant(text);
    }
}

// How the message about a malformed value describes what was expected. Texts and lists
// take any text, so only booleans, integers and dates can be malformed.
const char* expectedFormKey(QMetaType type)
{
    switch (type.id()) {
    case QMetaType::Bool:
        return "OPTIONFORMBOOLEAN";
    case QMetaType::Int:
        return "OPTIONFORMINTEGER";
    default:
        return "OPTIONFORMDATE";
    }
}

void setError(QString* error, const QString& message)
{
    if (error)
        *error = message;
}

struct RadioGroup {
    const char* indexKey;
    bool (Settings::*choose)(int);
};

// Both general indexes name the same choice: the panel's radio index and the action's
// option index are kept equal.
constexpr std::array<RadioGroup, 12> kRadioGroups = {{
    {Settings::fileFolderIndexKey, &Settings::chooseFilesOrFolders},
    {Settings::alphaNumericIncrementDecrementIndexKey, &Settings::chooseIncrementOrDecrement},
    {Settings::alphaNumericNumericAlphabeticIndexKey, &Settings::chooseNumericOrAlphabetic},
    {Settings::insertDeleteIndexKey, &Settings::chooseInsertOrDelete},
    {Settings::insertDeleteInsertOptionIndexKey, &Settings::chooseInsertPosition},
    {Settings::removeReplaceIndexKey, &Settings::chooseReplaceRemoveMode},
    {Settings::prefixSuffixIndexKey, &Settings::choosePrefixSuffixMode},
    {Settings::dateTimeDateOptionIndexKey, &Settings::chooseDateTimeSource},
    {Settings::dateTimeOptionsIndexKey, &Settings::chooseDateTimePlacement},
    {Settings::generalOptionIndexKey, &Settings::chooseGeneralOption},
    {Settings::generalOptionsIndexKey, &Settings::chooseGeneralOption},
    {Settings::pathComponentsOptionsIndexKey, &Settings::choosePathComponentsPlacement},
}};

const RadioGroup* radioGroup(const QString& key)
{
    for (const RadioGroup& group : kRadioGroups)
        if (key == QLatin1String(group.indexKey))
            return &group;
    return nullptr;
}

}  // namespace

Settings::ChangeBatch::ChangeBatch(Settings& settings)
    : m_settings(settings)
{
    ++m_settings.m_batchDepth;
}

Settings::ChangeBatch::~ChangeBatch()
{
    if (--m_settings.m_batchDepth == 0 && m_settings.m_changedInBatch) {
        m_settings.m_changedInBatch = false;
        emit m_settings.settingsChanged();
    }
}

Settings::QuietChange::QuietChange(Settings& settings)
    : m_settings(settings)
{
    ++m_settings.m_quietDepth;
}

Settings::QuietChange::~QuietChange()
{
    --m_settings.m_quietDepth;
}

Settings::Settings(QObject* parent)
    : QObject(parent)
{
    resetToDefaults();
}

void Settings::resetToDefaults()
{
    applyValues(emptyProfileValues());
}

void Settings::resetToStartValues()
{
    QVariantHash values = emptyProfileValues();
    values.insert(QString::fromLatin1(isIncludeSubFoldersKey), false);
    applyValues(values);
}

// Every option gets its value from the table or else its type's empty value, each written
// once, so an option that already holds its default sends no change signal.
void Settings::applyValues(const QVariantHash& values)
{
    const ChangeBatch batch(*this);
    const QMetaObject& meta = staticMetaObject;
    for (int index = meta.propertyOffset(); index < meta.propertyCount(); ++index) {
        const QMetaProperty property = meta.property(index);
        property.write(this, values.value(QString::fromLatin1(property.name()), QVariant(property.metaType())));
    }
}

QStringList Settings::optionKeys()
{
    static const QStringList keys = [] {
        QStringList names;
        const QMetaObject& meta = staticMetaObject;
        for (int index = meta.propertyOffset(); index < meta.propertyCount(); ++index)
            names.append(QString::fromLatin1(meta.property(index).name()));
        return names;
    }();
    return keys;
}

bool Settings::hasOption(const QString& key)
{
    return optionProperty(key).isValid();
}

bool Settings::setOptionFromString(const QString& key, const QString& value, QString* error)
{
    const QMetaProperty property = optionProperty(key);
    if (!property.isValid()) {
        setError(error, localized("UNKNOWNOPTIONKEY").arg(key));
        return false;
    }
    const std::optional<QVariant> parsed = parseOptionValue(property.metaType(), value);
    if (!parsed) {
        setError(error, localized("INVALIDOPTIONVALUE").arg(value, key, localized(expectedFormKey(property.metaType()))));
        return false;
    }
    property.write(this, *parsed);
    return true;
}

QString Settings::optionToString(const QString& key) const
{
    const QMetaProperty property = optionProperty(key);
    if (!property.isValid())
        return {};
    const QVariant value = property.read(this);
    switch (property.metaType().id()) {
    case QMetaType::Bool:
        return value.toBool() ? QStringLiteral("1") : QStringLiteral("0");
    case QMetaType::QStringList:
        return value.toStringList().join(u',');
    case QMetaType::QDateTime:
        return value.toDateTime().toString(Qt::ISODate);
    default:
        return value.toString();
    }
}

int Settings::integerValue(const char* key) const
{
    const QMetaProperty property = optionProperty(QByteArray(key));
    if (!property.isValid()) {
        qWarning("Unknown option key %s", key);
        return 0;
    }
    const QVariant value = property.read(this);
    switch (property.metaType().id()) {
    case QMetaType::Bool:
        return value.toBool() ? 1 : 0;
    case QMetaType::Int:
        return value.toInt();
    case QMetaType::QString:
        return toInteger(value.toString());
    default:
        return 0;
    }
}

bool Settings::booleanValue(const char* key) const
{
    return integerValue(key) != 0;
}

QString Settings::textValue(const char* key) const
{
    return optionToString(QString::fromLatin1(key));
}

bool Settings::setMirrors(int index, std::initializer_list<void (Settings::*)(bool)> mirrors)
{
    if (index < 0 || index >= int(mirrors.size()))
        return false;
    int position = 0;
    for (const auto setter : mirrors)
        (this->*setter)(position++ == index);
    return true;
}

bool Settings::chooseFilesOrFolders(int index)
{
    const ChangeBatch batch(*this);
    if (!setMirrors(index, {&Settings::setIsFiles, &Settings::setIsFolders}))
        return false;
    setFileFolderIndex(index);
    return true;
}

bool Settings::chooseIncrementOrDecrement(int index)
{
    const ChangeBatch batch(*this);
    if (!setMirrors(index, {&Settings::setIsAlphaNumericIncrement, &Settings::setIsAlphaNumericDecrement}))
        return false;
    setAlphaNumericIncrementDecrementIndex(index);
    return true;
}

bool Settings::chooseNumericOrAlphabetic(int index)
{
    const ChangeBatch batch(*this);
    if (!setMirrors(index, {&Settings::setIsAlphaNumericNumeric, &Settings::setIsAlphaNumericAlphabetic}))
        return false;
    setAlphaNumericNumericAlphabeticIndex(index);
    return true;
}

bool Settings::chooseInsertOrDelete(int index)
{
    const ChangeBatch batch(*this);
    if (!setMirrors(index, {&Settings::setIsInsertDeleteInsert, &Settings::setIsInsertDeleteDelete}))
        return false;
    setInsertDeleteIndex(index);
    return true;
}

bool Settings::chooseInsertPosition(int index)
{
    const ChangeBatch batch(*this);
    if (!setMirrors(index,
                    {&Settings::setIsInsertDeleteInsertAtBeginning, &Settings::setIsInsertDeleteInsertAtEnd,
                     &Settings::setIsInsertDeleteInsertAtPosition, &Settings::setIsInsertDeleteInsertAtBeforeText,
                     &Settings::setIsInsertDeleteInsertAtAfterText}))
        return false;
    setInsertDeleteInsertOptionIndex(index);
    return true;
}

bool Settings::chooseReplaceRemoveMode(int index)
{
    const ChangeBatch batch(*this);
    if (!setMirrors(index, {&Settings::setIsReplaceRemoveReplace, &Settings::setIsReplaceRemoveRemove,
                            &Settings::setIsReplaceRemoveRemoveCharacters}))
        return false;
    setRemoveReplaceIndex(index);
    return true;
}

bool Settings::choosePrefixSuffixMode(int index)
{
    const ChangeBatch batch(*this);
    if (!setMirrors(index, {&Settings::setIsPrefixSuffixString, &Settings::setIsPrefixSuffixDate}))
        return false;
    setPrefixSuffixIndex(index);
    return true;
}

// Only the custom date (2) has a mirror: it enables the date picker.
bool Settings::chooseDateTimeSource(int index)
{
    constexpr int customDate = 2;
    if (index < 0 || index > customDate)
        return false;
    const ChangeBatch batch(*this);
    setHasDateTimeCustomDate(index == customDate);
    setDateTimeDateOptionIndex(index);
    return true;
}

bool Settings::chooseDateTimePlacement(int index)
{
    const ChangeBatch batch(*this);
    if (!setMirrors(index, {&Settings::setIsDateTimeAtBeginning, &Settings::setIsDateTimeAtEnd,
                            &Settings::setIsDateTimeAtPosition, &Settings::setIsDateTimeAtBeforeText,
                            &Settings::setIsDateTimeAtAfterText}))
        return false;
    setDateTimeOptionsIndex(index);
    return true;
}

// The mirrors in the order of the option indexes, which is not the order of the record.
bool Settings::chooseGeneralOption(int index)
{
    const ChangeBatch batch(*this);
    if (!setMirrors(index, {&Settings::setIsGeneralConvertFilenameCase, &Settings::setIsGeneralConvertExtension,
                            &Settings::setIsGeneralRemoveExtension, &Settings::setIsGeneralChangeExtension,
                            &Settings::setIsGeneralReverseFileName, &Settings::setIsGeneralRemoveSpaces,
                            &Settings::setIsGeneralSwapFromSeperator, &Settings::setIsGeneralSwapFromPostion,
                            &Settings::setIsGeneralRemoveAfterString, &Settings::setIsGeneralRemoveFromString,
                            &Settings::setIsGeneralFilenameMask, &Settings::setIsGeneralConvertWindowsCompatible}))
        return false;
    setGeneralOptionIndex(index);
    setGeneralOptionsIndex(index);
    return true;
}

bool Settings::choosePathComponentsPlacement(int index)
{
    const ChangeBatch batch(*this);
    if (!setMirrors(index, {&Settings::setIsPathComponentsAtBeginning, &Settings::setIsPathComponentsAtEnd,
                            &Settings::setIsPathComponentsAtPosition, &Settings::setIsPathComponentsAtBeforeText,
                            &Settings::setIsPathComponentsAtAfterText}))
        return false;
    setPathComponentsOptionsIndex(index);
    return true;
}

void Settings::resetID3Mask()
{
    QString mask;
    for (const QString& token : std::as_const(m_id3RenamingTagsList)) {
        if (m_isID3RenamingSeperator && !mask.isEmpty())
            mask += m_id3RenamingSeperator;
        mask += token;
    }
    setId3RenamingMask(mask);
}

void Settings::resetPhotoMask()
{
    QString mask;
    for (const QString& token : std::as_const(m_photoMetaDataList)) {
        if (m_isPhotoRenamingSeperator && !mask.isEmpty())
            mask += m_photoRenamingSeperator;
        mask += token;
    }
    setPhotoRenamingMask(mask);
}

bool Settings::isRadioIndexKey(const QString& key)
{
    return radioGroup(key) != nullptr;
}

bool Settings::chooseRadioOption(const QString& key, int index)
{
    const RadioGroup* group = radioGroup(key);
    return group && (this->*group->choose)(index);
}

void Settings::noteChange()
{
    if (m_quietDepth > 0)
        return;
    if (m_batchDepth > 0)
        m_changedInBatch = true;
    else
        emit settingsChanged();
}

}  // namespace tavrin
