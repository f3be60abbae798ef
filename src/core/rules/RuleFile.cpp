#include "core/rules/RuleFile.h"

#include "core/engine/ActionRegistry.h"
#include "core/formats/PropertyList.h"
#include "core/formats/VersionStamp.h"
#include "core/platform/InputFile.h"
#include "core/text/LocalizedStrings.h"

#include <QFile>
#include <QSaveFile>
#include <QXmlStreamReader>
#include <cstdlib>

namespace tavrin {

namespace {

// A rule chain is a few kilobytes; anything this large is not one.
constexpr qint64 kLargestRuleFile = 16 * 1024 * 1024;
constexpr char kVersionAttribute[] = "appversion";

void setError(QString* error, const QString& message)
{
    if (error)
        *error = message;
}

plist_t plistValue(const QVariant& value)
{
    switch (value.typeId()) {
    case QMetaType::Bool:
        return plist_new_bool(value.toBool() ? 1 : 0);
    case QMetaType::Int:
    case QMetaType::LongLong:
    case QMetaType::UInt:
    case QMetaType::ULongLong:
        return plist_new_uint(uint64_t(value.toLongLong()));
    case QMetaType::Double:
        return plist_new_real(value.toDouble());
    case QMetaType::QByteArray: {
        const QByteArray data = value.toByteArray();
        return plist_new_data(data.constData(), uint64_t(data.size()));
    }
    case QMetaType::QVariantList:
    case QMetaType::QStringList: {
        plist_t array = plist_new_array();
        for (const QVariant& item : value.toList())
            plist_array_append_item(array, plistValue(item));
        return array;
    }
    default:
        return plist_new_string(value.toString().toUtf8().constData());
    }
}

// The common keys first, then the options of the step's kind in their order, then anything
// else the step holds.
QStringList orderedKeys(const RuleStep& step)
{
    QStringList keys = {QString::fromLatin1(stepkeys::Rule), QString::fromLatin1(stepkeys::Type),
                        QString::fromLatin1(stepkeys::IsActive)};
    if (const ActionEntry* action = actionForRule(stepRule(step))) {
        if (const StepForm* form = stepFormOf(*action, stepType(step))) {
            for (const char* key : form->keys)
                keys.append(QString::fromLatin1(key));
        }
    }
    for (auto it = step.cbegin(); it != step.cend(); ++it) {
        if (!keys.contains(it.key()))
            keys.append(it.key());
    }
    return keys;
}

plist_t plistStep(const RuleStep& step)
{
    plist_t dictionary = plist_new_dict();
    for (const QString& key : orderedKeys(step)) {
        const auto value = step.constFind(key);
        if (value != step.cend())
            plist_dict_set_item(dictionary, key.toUtf8().constData(), plistValue(*value));
    }
    return dictionary;
}

// A step holds texts, numbers, data and arrays of them; anything else is not a step's.
std::optional<QVariant> stepValue(plist_t node)
{
    uint64_t length = 0;
    switch (plist_get_node_type(node)) {
    case PLIST_STRING:
        return plistString(node);
    case PLIST_UINT: {
        uint64_t number = 0;
        plist_get_uint_val(node, &number);
        return QVariant(qlonglong(number));
    }
    case PLIST_REAL: {
        double number = 0;
        plist_get_real_val(node, &number);
        return number;
    }
    case PLIST_BOOLEAN: {
        uint8_t flag = 0;
        plist_get_bool_val(node, &flag);
        return flag != 0;
    }
    case PLIST_DATA: {
        const char* bytes = plist_get_data_ptr(node, &length);
        return QByteArray(bytes, qsizetype(length));
    }
    case PLIST_ARRAY: {
        QVariantList items;
        for (uint32_t index = 0; index < plist_array_get_size(node); ++index) {
            const std::optional<QVariant> item = stepValue(plist_array_get_item(node, index));
            if (!item)
                return std::nullopt;
            items.append(*item);
        }
        return items;
    }
    default:
        return std::nullopt;
    }
}

std::optional<RuleStep> readStep(plist_t node)
{
    if (plist_get_node_type(node) != PLIST_DICT)
        return std::nullopt;
    RuleStep step;
    plist_dict_iter iterator = nullptr;
    plist_dict_new_iter(node, &iterator);
    bool readable = true;
    while (readable) {
        char* key = nullptr;
        plist_t value = nullptr;
        plist_dict_next_item(node, iterator, &key, &value);
        if (!value)
            break;
        const std::optional<QVariant> converted = stepValue(value);
        readable = converted.has_value();
        if (readable)
            step.insert(QString::fromUtf8(key), *converted);
        std::free(key);
    }
    std::free(iterator);
    return readable ? std::optional<RuleStep>(step) : std::nullopt;
}

// The root's start tag with the stamp among its attributes, any earlier stamp replaced.
std::optional<QString> stampedDocument(const QString& document)
{
    QXmlStreamReader reader(document);
    if (!reader.readNextStartElement())
        return std::nullopt;
    const qsizetype end = qsizetype(reader.characterOffset());
    const qsizetype start = document.lastIndexOf(QLatin1Char('<'), end - 1);
    if (start < 0)
        return std::nullopt;
    QString tag = QLatin1Char('<') + reader.qualifiedName().toString();
    for (const QXmlStreamAttribute& attribute : reader.attributes()) {
        if (attribute.qualifiedName() != QLatin1String(kVersionAttribute))
            tag += QStringLiteral(" %1=\"%2\"").arg(attribute.qualifiedName(), attribute.value().toString().toHtmlEscaped());
    }
    tag += QStringLiteral(" %1=\"%2\">").arg(QLatin1String(kVersionAttribute), appVersion().toHtmlEscaped());
    return document.left(start) + tag + document.mid(end);
}

}  // namespace

QByteArray ruleFileXml(const RuleChain& rules)
{
    const Plist array(plist_new_array());
    for (const RuleStep& step : rules)
        plist_array_append_item(array.get(), plistStep(step));
    return plistToXml(array.get());
}

bool addAppVersionToRuleFile(const QString& path)
{
    const std::optional<QByteArray> bytes = readInputFile(path, kLargestRuleFile);
    const std::optional<QString> stamped
        = bytes ? stampedDocument(QString::fromUtf8(*bytes)) : std::nullopt;
    if (!stamped) {
        qWarning("Error in addAppVersionToRuleFile : %s cannot be read as XML", qPrintable(path));
        return false;
    }
    QSaveFile file(path);
    const QByteArray content = stamped->toUtf8();
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size() || !file.commit()) {
        qWarning("Error in addAppVersionToRuleFile : %s", qPrintable(file.errorString()));
        return false;
    }
    return true;
}

bool saveRuleFile(const RuleChain& rules, const QString& path, QString* error)
{
    QFile file(path);
    const QByteArray content = ruleFileXml(rules);
    const bool written = file.open(QIODevice::WriteOnly | QIODevice::Truncate) && file.write(content) == content.size();
    file.close();
    if (written && addAppVersionToRuleFile(path))
        return true;
    QFile::remove(path);
    setError(error, localized("RULESETTINGSFILEUNABLETOSAVE").arg(path));
    return false;
}

std::optional<RuleChain> readRuleSteps(const QString& path)
{
    const Plist root = readPlistFile(path, kLargestRuleFile);
    if (!root || plist_get_node_type(root.get()) != PLIST_ARRAY)
        return std::nullopt;
    RuleChain rules;
    for (uint32_t index = 0; index < plist_array_get_size(root.get()); ++index) {
        const std::optional<RuleStep> step = readStep(plist_array_get_item(root.get(), index));
        if (!step)
            return std::nullopt;
        rules.append(*step);
    }
    return rules;
}

RuleFileOutcome openRuleFile(const QString& path)
{
    RuleFileOutcome outcome;
    const QString name = path.section(QLatin1Char('/'), -1);
    const std::optional<QString> version = appVersionInPlist(path);
    const std::optional<RuleChain> rules = readRuleSteps(path);
    if (!rules && !version) {
        outcome.message = localized("RULEUNREADABLE").arg(name);
    } else if (!isFileVersionMatch(version)) {
        outcome.status = RuleFileStatus::Incompatible;
        outcome.message = localized("OPENRULEINCOMPATIBLE").arg(name);
    } else if (!rules) {
        outcome.message = localized("RULEUNREADABLE").arg(name);
    } else {
        outcome.status = RuleFileStatus::Opened;
        outcome.rules = *rules;
    }
    return outcome;
}

}  // namespace tavrin
