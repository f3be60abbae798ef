#include "core/formats/KeyedArchive.h"

#include "core/formats/PropertyList.h"

#include <QDateTime>
#include <QHash>
#include <QTimeZone>
#include <cmath>
#include <cstdlib>
#include <initializer_list>
#include <vector>

namespace tavrin {

namespace {

constexpr char kArchiverName[] = "NSKeyedArchiver";
constexpr uint64_t kArchiveVersion = 100000;
constexpr char kNullObject[] = "$null";

// Far deeper than a rule chain nests; it keeps a crafted archive from exhausting the stack.
constexpr int kDeepestNesting = 256;

// Archived dates count seconds from 2001-01-01T00:00:00Z.
constexpr qint64 kReferenceDateInUnixSeconds = 978307200;
// Beyond this many seconds a time no longer fits QDateTime's milliseconds.
constexpr double kFarthestTime = 1e15;

bool isString(plist_t node, const char* text)
{
    return node && plist_get_node_type(node) == PLIST_STRING && plist_string_val_compare(node, text) == 0;
}

bool isOneOf(const QByteArray& name, std::initializer_list<const char*> names)
{
    for (const char* candidate : names)
        if (name == candidate)
            return true;
    return false;
}

class ArchiveWriter {
public:
    QByteArray archive(const QVariant& root);

private:
    std::optional<uint64_t> encode(const QVariant& value, int depth);
    std::optional<uint64_t> encodeList(const QVariantList& items, int depth);
    std::optional<uint64_t> encodeMap(const QVariantMap& entries, int depth);
    std::optional<uint64_t> encodeObject(const ArchivedObject& object, int depth);
    uint64_t encodeDate(const QDateTime& date);
    uint64_t stringReference(const QString& text);
    uint64_t classReference(std::initializer_list<const char*> hierarchy);
    uint64_t classReference(const QByteArrayList& hierarchy);
    uint64_t append(plist_t node);

    std::vector<Plist> m_objects;
    QHash<QString, uint64_t> m_strings;
    QHash<QByteArray, uint64_t> m_classes;
};

QByteArray ArchiveWriter::archive(const QVariant& root)
{
    append(plist_new_string(kNullObject));
    const std::optional<uint64_t> rootReference = encode(root, 0);
    if (!rootReference)
        return {};
    const Plist top(plist_new_dict());
    plist_dict_set_item(top.get(), "$version", plist_new_uint(kArchiveVersion));
    plist_dict_set_item(top.get(), "$archiver", plist_new_string(kArchiverName));
    plist_t topObject = plist_new_dict();
    plist_dict_set_item(topObject, "root", plist_new_uid(*rootReference));
    plist_dict_set_item(top.get(), "$top", topObject);
    plist_t objects = plist_new_array();
    for (Plist& object : m_objects)
        plist_array_append_item(objects, object.release());
    plist_dict_set_item(top.get(), "$objects", objects);

    char* bytes = nullptr;
    uint32_t length = 0;
    plist_to_bin(top.get(), &bytes, &length);
    const QByteArray archive(bytes, qsizetype(length));
    plist_to_bin_free(bytes);
    return archive;
}

std::optional<uint64_t> ArchiveWriter::encode(const QVariant& value, int depth)
{
    if (depth > kDeepestNesting)
        return std::nullopt;
    switch (value.typeId()) {
    case QMetaType::UnknownType:
    case QMetaType::Nullptr:
        return 0;
    case QMetaType::QString:
        return stringReference(value.toString());
    case QMetaType::Bool:
        return append(plist_new_bool(value.toBool()));
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
        // Negative numbers keep their two's complement bits, which is how integers are read back.
        return append(plist_new_uint(uint64_t(value.toLongLong())));
    case QMetaType::Double:
    case QMetaType::Float:
        return append(plist_new_real(value.toDouble()));
    case QMetaType::QByteArray: {
        const QByteArray data = value.toByteArray();
        return append(plist_new_data(data.constData(), uint64_t(data.size())));
    }
    case QMetaType::QDateTime:
        if (!value.toDateTime().isValid())
            return std::nullopt;
        return encodeDate(value.toDateTime());
    case QMetaType::QVariantList:
    case QMetaType::QStringList:
        return encodeList(value.toList(), depth);
    case QMetaType::QVariantMap:
        return encodeMap(value.toMap(), depth);
    default:
        if (value.metaType() == QMetaType::fromType<ArchivedObject>())
            return encodeObject(value.value<ArchivedObject>(), depth);
        return std::nullopt;
    }
}

// A container takes its place in the table before its members, and its class description
// comes after them: the order in which the archiver itself numbers objects.
std::optional<uint64_t> ArchiveWriter::encodeList(const QVariantList& items, int depth)
{
    plist_t object = plist_new_dict();
    const uint64_t reference = append(object);
    plist_t references = plist_new_array();
    plist_dict_set_item(object, "NS.objects", references);
    for (const QVariant& item : items) {
        const std::optional<uint64_t> itemReference = encode(item, depth + 1);
        if (!itemReference)
            return std::nullopt;
        plist_array_append_item(references, plist_new_uid(*itemReference));
    }
    plist_dict_set_item(object, "$class", plist_new_uid(classReference({"NSMutableArray", "NSArray", "NSObject"})));
    return reference;
}

std::optional<uint64_t> ArchiveWriter::encodeMap(const QVariantMap& entries, int depth)
{
    plist_t object = plist_new_dict();
    const uint64_t reference = append(object);
    plist_t keys = plist_new_array();
    plist_t values = plist_new_array();
    plist_dict_set_item(object, "NS.keys", keys);
    plist_dict_set_item(object, "NS.objects", values);
    for (auto entry = entries.cbegin(); entry != entries.cend(); ++entry)
        plist_array_append_item(keys, plist_new_uid(stringReference(entry.key())));
    for (const QVariant& value : entries) {
        const std::optional<uint64_t> valueReference = encode(value, depth + 1);
        if (!valueReference)
            return std::nullopt;
        plist_array_append_item(values, plist_new_uid(*valueReference));
    }
    plist_dict_set_item(object, "$class",
                        plist_new_uid(classReference({"NSMutableDictionary", "NSDictionary", "NSObject"})));
    return reference;
}

std::optional<uint64_t> ArchiveWriter::encodeObject(const ArchivedObject& object, int depth)
{
    plist_t node = plist_new_dict();
    const uint64_t reference = append(node);
    for (auto entry = object.keys.cbegin(); entry != object.keys.cend(); ++entry) {
        const std::optional<uint64_t> valueReference = encode(entry.value(), depth + 1);
        if (!valueReference)
            return std::nullopt;
        plist_dict_set_item(node, entry.key().toUtf8().constData(), plist_new_uid(*valueReference));
    }
    plist_dict_set_item(node, "$class", plist_new_uid(classReference({object.className, "NSObject"})));
    return reference;
}

uint64_t ArchiveWriter::encodeDate(const QDateTime& date)
{
    const double seconds = double(date.toMSecsSinceEpoch() - kReferenceDateInUnixSeconds * 1000) / 1000.0;
    plist_t object = plist_new_dict();
    plist_dict_set_item(object, "NS.time", plist_new_real(seconds));
    const uint64_t reference = append(object);
    plist_dict_set_item(object, "$class", plist_new_uid(classReference({"NSDate", "NSObject"})));
    return reference;
}

uint64_t ArchiveWriter::stringReference(const QString& text)
{
    if (const auto found = m_strings.constFind(text); found != m_strings.cend())
        return *found;
    const uint64_t reference = append(plist_new_string(text.toUtf8().constData()));
    m_strings.insert(text, reference);
    return reference;
}

uint64_t ArchiveWriter::classReference(std::initializer_list<const char*> hierarchy)
{
    QByteArrayList names;
    for (const char* className : hierarchy)
        names.append(className);
    return classReference(names);
}

uint64_t ArchiveWriter::classReference(const QByteArrayList& hierarchy)
{
    const QByteArray& name = hierarchy.first();
    if (const auto found = m_classes.constFind(name); found != m_classes.cend())
        return *found;
    plist_t classes = plist_new_array();
    for (const QByteArray& className : hierarchy)
        plist_array_append_item(classes, plist_new_string(className.constData()));
    plist_t description = plist_new_dict();
    plist_dict_set_item(description, "$classes", classes);
    plist_dict_set_item(description, "$classname", plist_new_string(name.constData()));
    const uint64_t reference = append(description);
    m_classes.insert(name, reference);
    return reference;
}

uint64_t ArchiveWriter::append(plist_t node)
{
    m_objects.emplace_back(node);
    return m_objects.size() - 1;
}

// A reference is a UID, or in XML archives the dictionary {"CF$UID": n} that stands for one.
std::optional<uint64_t> referenceValue(plist_t node)
{
    uint64_t value = 0;
    if (!node)
        return std::nullopt;
    if (plist_get_node_type(node) == PLIST_UID) {
        plist_get_uid_val(node, &value);
        return value;
    }
    if (plist_get_node_type(node) != PLIST_DICT || plist_dict_get_size(node) != 1)
        return std::nullopt;
    const plist_t number = plist_dict_get_item(node, "CF$UID");
    if (!number || plist_get_node_type(number) != PLIST_UINT)
        return std::nullopt;
    plist_get_uint_val(number, &value);
    return value;
}

// Every object is decoded once and kept: references may be shared, and decoding a shared
// object again at each use would take exponential time on a crafted archive.
class ArchiveReader {
public:
    ArchiveReader(plist_t objects, const QByteArrayList& objectClasses);
    std::optional<QVariant> decodeReference(plist_t reference, int depth);

private:
    enum class State { Pending, Decoding, Decoded };

    std::optional<QVariant> decodeObject(uint64_t reference, int depth);
    std::optional<QVariant> decodeValue(plist_t node, int depth);
    std::optional<QVariant> decodeInstance(plist_t object, int depth);
    std::optional<QVariantList> decodeReferences(plist_t array, int depth);
    std::optional<QVariant> decodeDictionary(plist_t object, int depth);
    std::optional<QVariant> decodeObjectKeys(plist_t object, const QByteArray& name, int depth);
    std::optional<QByteArray> className(plist_t object) const;

    plist_t m_objects;
    QByteArrayList m_objectClasses;
    uint32_t m_count;
    std::vector<State> m_states;
    std::vector<QVariant> m_decoded;
};

ArchiveReader::ArchiveReader(plist_t objects, const QByteArrayList& objectClasses)
    : m_objects(objects)
    , m_objectClasses(objectClasses)
    , m_count(plist_array_get_size(objects))
    , m_states(m_count, State::Pending)
    , m_decoded(m_count)
{
}

std::optional<QVariant> ArchiveReader::decodeReference(plist_t reference, int depth)
{
    const std::optional<uint64_t> index = referenceValue(reference);
    if (!index)
        return std::nullopt;
    return decodeObject(*index, depth);
}

std::optional<QVariant> ArchiveReader::decodeObject(uint64_t reference, int depth)
{
    if (reference == 0)
        return QVariant();
    if (reference >= m_count || depth > kDeepestNesting)
        return std::nullopt;
    switch (m_states[reference]) {
    case State::Decoding:
        return std::nullopt;
    case State::Decoded:
        return m_decoded[reference];
    case State::Pending:
        break;
    }
    m_states[reference] = State::Decoding;
    std::optional<QVariant> value = decodeValue(plist_array_get_item(m_objects, uint32_t(reference)), depth);
    if (!value)
        return std::nullopt;
    m_states[reference] = State::Decoded;
    m_decoded[reference] = *value;
    return value;
}

std::optional<QVariant> ArchiveReader::decodeValue(plist_t node, int depth)
{
    switch (plist_get_node_type(node)) {
    case PLIST_STRING:
        return QVariant(plistString(node));
    case PLIST_BOOLEAN:
        return QVariant(plist_bool_val_is_true(node) != 0);
    case PLIST_UINT: {
        uint64_t number = 0;
        plist_get_uint_val(node, &number);
        return QVariant(qlonglong(number));
    }
    case PLIST_REAL: {
        double number = 0;
        plist_get_real_val(node, &number);
        return QVariant(number);
    }
    case PLIST_DATA: {
        uint64_t length = 0;
        const char* bytes = plist_get_data_ptr(node, &length);
        return QVariant(QByteArray(bytes, qsizetype(length)));
    }
    case PLIST_DICT:
        return decodeInstance(node, depth);
    default:
        return std::nullopt;
    }
}

std::optional<QVariant> ArchiveReader::decodeInstance(plist_t object, int depth)
{
    const std::optional<QByteArray> name = className(object);
    if (!name)
        return std::nullopt;
    if (isOneOf(*name, {"NSArray", "NSMutableArray"})) {
        std::optional<QVariantList> items = decodeReferences(plist_dict_get_item(object, "NS.objects"), depth);
        return items ? std::optional<QVariant>(*items) : std::nullopt;
    }
    if (isOneOf(*name, {"NSDictionary", "NSMutableDictionary"}))
        return decodeDictionary(object, depth);
    if (isOneOf(*name, {"NSString", "NSMutableString"})) {
        const plist_t text = plist_dict_get_item(object, "NS.string");
        if (!text || plist_get_node_type(text) != PLIST_STRING)
            return std::nullopt;
        return QVariant(plistString(text));
    }
    if (*name == "NSDate") {
        const plist_t time = plist_dict_get_item(object, "NS.time");
        double seconds = 0;
        if (!time || plist_get_node_type(time) != PLIST_REAL)
            return std::nullopt;
        plist_get_real_val(time, &seconds);
        if (!std::isfinite(seconds) || std::abs(seconds) > kFarthestTime)
            return std::nullopt;
        const qint64 milliseconds = std::llround(seconds * 1000.0) + kReferenceDateInUnixSeconds * 1000;
        return QVariant(QDateTime::fromMSecsSinceEpoch(milliseconds, QTimeZone::utc()));
    }
    if (m_objectClasses.contains(*name))
        return decodeObjectKeys(object, *name, depth);
    return std::nullopt;
}

std::optional<QVariant> ArchiveReader::decodeObjectKeys(plist_t object, const QByteArray& name, int depth)
{
    ArchivedObject decoded{name, {}};
    plist_dict_iter iterator = nullptr;
    plist_dict_new_iter(object, &iterator);
    bool valid = true;
    for (;;) {
        char* key = nullptr;
        plist_t value = nullptr;
        plist_dict_next_item(object, iterator, &key, &value);
        if (!key)
            break;
        const QString keyText = QString::fromUtf8(key);
        std::free(key);
        if (keyText == QLatin1String("$class"))
            continue;
        const std::optional<QVariant> item = decodeReference(value, depth + 1);
        if (!item) {
            valid = false;
            break;
        }
        decoded.keys.insert(keyText, *item);
    }
    std::free(iterator);
    if (!valid)
        return std::nullopt;
    return QVariant::fromValue(decoded);
}

std::optional<QVariantList> ArchiveReader::decodeReferences(plist_t array, int depth)
{
    if (!array || plist_get_node_type(array) != PLIST_ARRAY)
        return std::nullopt;
    QVariantList items;
    const uint32_t count = plist_array_get_size(array);
    items.reserve(count);
    for (uint32_t index = 0; index < count; ++index) {
        std::optional<QVariant> item = decodeReference(plist_array_get_item(array, index), depth + 1);
        if (!item)
            return std::nullopt;
        items.append(*item);
    }
    return items;
}

std::optional<QVariant> ArchiveReader::decodeDictionary(plist_t object, int depth)
{
    const std::optional<QVariantList> keys = decodeReferences(plist_dict_get_item(object, "NS.keys"), depth);
    const std::optional<QVariantList> values = decodeReferences(plist_dict_get_item(object, "NS.objects"), depth);
    if (!keys || !values || keys->size() != values->size())
        return std::nullopt;
    QVariantMap entries;
    for (qsizetype index = 0; index < keys->size(); ++index) {
        if (keys->at(index).typeId() != QMetaType::QString)
            return std::nullopt;
        entries.insert(keys->at(index).toString(), values->at(index));
    }
    return QVariant(entries);
}

std::optional<QByteArray> ArchiveReader::className(plist_t object) const
{
    const std::optional<uint64_t> reference = referenceValue(plist_dict_get_item(object, "$class"));
    if (!reference || *reference == 0 || *reference >= m_count)
        return std::nullopt;
    const plist_t description = plist_array_get_item(m_objects, uint32_t(*reference));
    if (plist_get_node_type(description) != PLIST_DICT)
        return std::nullopt;
    const plist_t name = plist_dict_get_item(description, "$classname");
    if (!name || plist_get_node_type(name) != PLIST_STRING)
        return std::nullopt;
    return plistString(name).toUtf8();
}

}  // namespace

QByteArray keyedArchive(const QVariant& root)
{
    return ArchiveWriter().archive(root);
}

std::optional<QVariant> keyedUnarchive(const QByteArray& data, const QByteArrayList& objectClasses)
{
    const Plist archive = parsePlist(data);
    const plist_t parsed = archive.get();
    if (!archive || plist_get_node_type(parsed) != PLIST_DICT)
        return std::nullopt;
    if (!isString(plist_dict_get_item(parsed, "$archiver"), kArchiverName))
        return std::nullopt;
    const plist_t top = plist_dict_get_item(parsed, "$top");
    const plist_t objects = plist_dict_get_item(parsed, "$objects");
    if (!top || plist_get_node_type(top) != PLIST_DICT || !objects || plist_get_node_type(objects) != PLIST_ARRAY)
        return std::nullopt;
    return ArchiveReader(objects, objectClasses).decodeReference(plist_dict_get_item(top, "root"), 0);
}

}  // namespace tavrin
