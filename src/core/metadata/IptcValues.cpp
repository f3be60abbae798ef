#include "core/metadata/IptcValues.h"

#include "core/formats/PropertyList.h"
#include "core/text/DateHelpers.h"
#include "core/text/StringUtilities.h"

#include <QFile>
#include <QHash>
#include <QLoggingCategory>
#include <QRegularExpression>
#include <cstdlib>
#include <iterator>
#include <optional>

Q_LOGGING_CATEGORY(lcIptcValues, "tavrin.metadata.iptc")

namespace tavrin {

namespace {

using CodeList = QHash<QString, QString>;

constexpr char kSceneList[] = ":/iptc/scene.plist";
constexpr char kSubjectCodeList[] = ":/iptc/subjectcode.plist";
// The code lists are a few dozen kilobytes; anything far larger is not one of them.
constexpr qint64 kLargestCodeList = 4 * 1024 * 1024;

const char* const kUrgencies[] = {"None",       "High",       "Normal + 3", "Normal + 2", "Normal + 1",
                                  "Normal",     "Normal - 1", "Normal - 2", "Low"};

// Empty when the resource is missing or no dictionary of texts.
CodeList loadCodeList(const char* resource)
{
    QFile file{QString::fromLatin1(resource)};
    if (file.size() > kLargestCodeList || !file.open(QIODevice::ReadOnly)) {
        qCWarning(lcIptcValues, "Can't read the code list %s.", resource);
        return {};
    }
    const Plist plist = parsePlist(file.readAll());
    CodeList codes;
    if (!plist || plist_get_node_type(plist.get()) != PLIST_DICT)
        return codes;
    plist_dict_iter iterator = nullptr;
    plist_dict_new_iter(plist.get(), &iterator);
    for (;;) {
        char* key = nullptr;
        plist_t value = nullptr;
        plist_dict_next_item(plist.get(), iterator, &key, &value);
        if (!key)
            break;
        if (plist_get_node_type(value) == PLIST_STRING)
            codes.insert(QString::fromUtf8(key), plistString(value));
        std::free(key);
    }
    std::free(iterator);
    return codes;
}

// Loaded on first use and kept for the rest of the run.
const CodeList& sceneCodes()
{
    static const CodeList codes = loadCodeList(kSceneList);
    return codes;
}

const CodeList& subjectCodes()
{
    static const CodeList codes = loadCodeList(kSubjectCodeList);
    return codes;
}

// The 8-digit subject code inside a reference such as "IPTC:16009000:politics:...".
QString embeddedSubjectCode(const QString& reference)
{
    static const QRegularExpression code(QStringLiteral("(?<![0-9])[0-9]{8}(?![0-9])"));
    return code.match(reference).captured(0);
}

QString namedCodes(const QStringList& codes, const CodeList& names, const char* operation, bool embedded)
{
    if (names.isEmpty())
        return QString();
    QString text = codes.join(QLatin1Char(','));
    for (const QString& code : codes) {
        auto name = names.constFind(code);
        if (name == names.cend() && embedded)
            name = names.constFind(embeddedSubjectCode(code));
        if (name == names.cend()) {
            qCWarning(lcIptcValues, "Error in %s : no name for the code %s", operation, qUtf8Printable(code));
            return text;
        }
        text.replace(code, *name);
    }
    return text;
}

// The text between the first opening and the first closing tag, both found ignoring case.
std::optional<QString> elementText(const QString& fileText, const QString& element)
{
    const QString opening = QLatin1Char('<') + element + QLatin1Char('>');
    const QString closing = QLatin1String("</") + element + QLatin1Char('>');
    const qsizetype start = fileText.indexOf(opening, 0, Qt::CaseInsensitive);
    const qsizetype end = fileText.indexOf(closing, 0, Qt::CaseInsensitive);
    if (start < 0 || end < 0)
        return std::nullopt;
    const qsizetype from = start + opening.size();
    return end > from ? fileText.mid(from, end - from) : QString();
}

QString dateCreated(const QString& fileText, const QString& pattern)
{
    const std::optional<QString> text = elementText(fileText, QStringLiteral("photoshop:DateCreated"));
    if (!text)
        return QString();
    const std::optional<QDateTime> date = dateFromString(*text);
    return date ? formatDate(*date, pattern) : *text;
}

QString missingValue(const QString& key, const IptcContext& context)
{
    if (key == QLatin1String(iptccodes::CopyrightStatus))
        return getCopyrightStatus(context.fileText);
    if (key == QLatin1String(iptccodes::CopyrightInfoURL))
        return getCopyrightInfoURL(context.fileText);
    if (key == QLatin1String(iptccodes::DateCreated))
        return getDateCreated(context.fileText, context.dateFormat);
    if (key == QLatin1String(iptccodes::TimeCreated))
        return getTimeCreated(context.fileText, context.timeFormat);
    return QString();
}

QString listValue(const QString& key, const QStringList& items)
{
    if (key == QLatin1String(iptccodes::Scene))
        return getScene(items);
    if (key == QLatin1String(iptccodes::SubjectReference))
        return getSubjectCode(items);
    return items.join(QLatin1Char(','));
}

}  // namespace

QString getUrgency(const QString& urgency)
{
    const int value = toInteger(urgency);
    if (value < 0 || value >= int(std::size(kUrgencies)))
        return urgency;
    return QLatin1String(kUrgencies[value]);
}

QString getCopyrightStatus(const QString& fileText)
{
    const std::optional<QString> marked = elementText(fileText, QStringLiteral("xmpRights:Marked"));
    if (!marked)
        return QStringLiteral("Unknown");
    const bool isTrue = marked->trimmed().compare(QLatin1String("true"), Qt::CaseInsensitive) == 0;
    return isTrue ? QStringLiteral("Copyrighted") : QStringLiteral("Public Domain");
}

QString getCopyrightInfoURL(const QString& fileText)
{
    return elementText(fileText, QStringLiteral("xmpRights:WebStatement")).value_or(QString());
}

QString getScene(const QStringList& codes)
{
    return namedCodes(codes, sceneCodes(), "getScene", false);
}

QString getSubjectCode(const QStringList& codes)
{
    return namedCodes(codes, subjectCodes(), "getSubjectCode", true);
}

QString getDateCreated(const QString& fileText, const QString& dateFormat)
{
    return dateCreated(fileText, dateFormat);
}

QString getTimeCreated(const QString& fileText, const QString& timeFormat)
{
    return dateCreated(fileText, timeFormat);
}

QString resolveIptcValue(const QVariantMap* iptc, const QString& metadataCode, const IptcContext& context)
{
    if (!iptc)
        return QString();
    const QStringList parts = metadataCode.split(QLatin1Char('@'));
    const QString& key = parts.first();
    const auto entry = iptc->constFind(key);
    if (entry == iptc->cend())
        return missingValue(key, context);
    switch (entry->typeId()) {
    case QMetaType::QString:
        return key == QLatin1String(iptccodes::Urgency) ? getUrgency(entry->toString()) : entry->toString();
    case QMetaType::QStringList:
        return listValue(key, entry->toStringList());
    case QMetaType::QVariantMap:
        return parts.size() == 2 ? entry->toMap().value(parts.at(1)).toString() : QString();
    default:
        return QString();
    }
}

}  // namespace tavrin
