#include "core/formats/PropertyList.h"

#include "core/formats/PlistNesting.h"
#include "core/platform/InputFile.h"

#include <limits>

namespace tavrin {

Plist parsePlist(const QByteArray& bytes)
{
    if (bytes.isEmpty() || quint64(bytes.size()) > std::numeric_limits<uint32_t>::max()
        || !isSafeToParse(bytes))
        return nullptr;
    plist_t root = nullptr;
    plist_from_memory(bytes.constData(), uint32_t(bytes.size()), &root);
    return Plist(root);
}

Plist readPlistFile(const QString& path, qint64 largestSize)
{
    const std::optional<QByteArray> bytes = readInputFile(path, largestSize);
    return bytes ? parsePlist(*bytes) : nullptr;
}

QByteArray plistToXml(plist_t node)
{
    char* xml = nullptr;
    uint32_t length = 0;
    plist_to_xml(node, &xml, &length);
    const QByteArray bytes(xml, qsizetype(length));
    plist_to_xml_free(xml);
    return bytes;
}

QString plistString(plist_t node)
{
    uint64_t length = 0;
    const char* text = plist_get_string_ptr(node, &length);
    return QString::fromUtf8(text, qsizetype(length));
}

}  // namespace tavrin
