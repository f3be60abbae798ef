#include "core/formats/PlistNesting.h"

#include <QXmlStreamReader>
#include <vector>

namespace tavrin {

namespace {

constexpr char binaryMagic[] = "bplist";
constexpr qsizetype trailerSize = 32;

quint64 bigEndian(const QByteArray& bytes, qsizetype at, int size)
{
    quint64 value = 0;
    for (int i = 0; i < size; ++i)
        value = (value << 8) | uchar(bytes[at + i]);
    return value;
}

// The layout of a binary property list, read from its trailer.
struct BinaryLayout {
    const QByteArray& bytes;
    int offsetSize = 0;
    int refSize = 0;
    quint64 objectCount = 0;
    quint64 top = 0;
    qsizetype offsetTable = 0;

    bool read()
    {
        if (bytes.size() < trailerSize + 8)
            return false;
        const qsizetype trailer = bytes.size() - trailerSize;
        offsetSize = uchar(bytes[trailer + 6]);
        refSize = uchar(bytes[trailer + 7]);
        objectCount = bigEndian(bytes, trailer + 8, 8);
        top = bigEndian(bytes, trailer + 16, 8);
        const quint64 table = bigEndian(bytes, trailer + 24, 8);
        if (offsetSize < 1 || offsetSize > 8 || refSize < 1 || refSize > 8 || top >= objectCount
            || table >= quint64(trailer) || objectCount > quint64(trailer - table) / quint64(offsetSize))
            return false;
        offsetTable = qsizetype(table);
        return true;
    }

    qsizetype offsetOf(quint64 object) const
    {
        const quint64 offset = bigEndian(bytes, offsetTable + qsizetype(object) * offsetSize, offsetSize);
        return offset < quint64(offsetTable) ? qsizetype(offset) : -1;
    }

    // The objects a container refers to (keys and values of a dictionary alike); false for a
    // container that does not fit in the file or a dictionary with a key that is not a string.
    bool children(quint64 object, std::vector<quint64>& out) const
    {
        out.clear();
        qsizetype at = offsetOf(object);
        if (at < 0)
            return false;
        const int type = uchar(bytes[at]) >> 4;
        if (type != 0xA && type != 0xC && type != 0xD)
            return true;
        const qsizetype length = lengthAt(at);
        if (length < 0)
            return false;
        auto count = quint64(length);
        if (type == 0xD)
            count *= 2;
        if (count > quint64(offsetTable - at) / quint64(refSize))
            return false;
        for (quint64 i = 0; i < count; ++i) {
            const quint64 child = bigEndian(bytes, at + qsizetype(i) * refSize, refSize);
            if (child >= objectCount || (type == 0xD && i < count / 2 && !isKeyString(child)))
                return false;
            out.push_back(child);
        }
        return true;
    }

    // The length in the marker, or in the integer object after it; -1 past the end.
    qsizetype lengthAt(qsizetype& at) const
    {
        const quint64 length = uchar(bytes[at]) & 0xF;
        ++at;
        if (length != 0xF)
            return qsizetype(length);
        if (at >= offsetTable || (uchar(bytes[at]) >> 4) != 0x1)
            return -1;
        const int size = 1 << (uchar(bytes[at]) & 0xF);
        if (size > 8 || at + 1 + size > offsetTable)
            return -1;
        const quint64 value = bigEndian(bytes, at + 1, size);
        at += 1 + size;
        return value > quint64(offsetTable) ? -1 : qsizetype(value);
    }

    // An ASCII or UTF-16 string without a NUL: what a dictionary key must be, or the parser
    // trips over it.
    bool isKeyString(quint64 object) const
    {
        qsizetype at = offsetOf(object);
        if (at < 0)
            return false;
        const int type = uchar(bytes[at]) >> 4;
        const int unit = type == 0x5 ? 1 : (type == 0x6 ? 2 : 0);
        const qsizetype length = unit ? lengthAt(at) : -1;
        if (length < 0 || at + length * unit > offsetTable)
            return false;
        for (qsizetype i = 0; i < length; ++i) {
            if (bigEndian(bytes, at + i * unit, unit) == 0)
                return false;
        }
        return true;
    }
};

// Depth-first over the object graph with an explicit stack. The height of each object (the
// objects on the longest way down from it, itself included) is worked out once, so a shared
// object costs nothing more, and a circle is seen as such.
bool binaryNestingWithin(const QByteArray& bytes, int deepest)
{
    BinaryLayout layout {bytes};
    if (!layout.read())
        return true;
    constexpr int unknown = -1;
    constexpr int onPath = -2;
    std::vector<int> depth(layout.objectCount, unknown);
    struct Frame {
        quint64 object;
        std::vector<quint64> children;
        size_t next = 0;
        int below = 0;
    };
    std::vector<Frame> path;
    std::vector<quint64> children;
    auto enter = [&](quint64 object) {
        if (!layout.children(object, children))
            return false;
        depth[object] = onPath;
        path.push_back({object, children});
        return int(path.size()) <= deepest;
    };
    if (!enter(layout.top))
        return false;
    while (!path.empty()) {
        Frame& frame = path.back();
        if (frame.next == frame.children.size()) {
            const int own = frame.below + 1;
            depth[frame.object] = own;
            path.pop_back();
            if (!path.empty())
                path.back().below = std::max(path.back().below, own);
            continue;
        }
        const quint64 child = frame.children[frame.next++];
        if (depth[child] == onPath)
            return false;
        if (depth[child] == unknown) {
            if (!enter(child))
                return false;
        } else if (int(path.size()) + depth[child] > deepest) {
            return false;
        } else {
            frame.below = std::max(frame.below, depth[child]);
        }
    }
    return true;
}

bool xmlNestingWithin(const QByteArray& bytes, int deepest)
{
    QXmlStreamReader reader(bytes);
    int depth = 0;
    while (!reader.atEnd()) {
        switch (reader.readNext()) {
        case QXmlStreamReader::DTD:
            if (!reader.entityDeclarations().isEmpty())
                return false;
            break;
        case QXmlStreamReader::EntityReference:
            return false;
        case QXmlStreamReader::StartElement:
            if (++depth > deepest)
                return false;
            break;
        case QXmlStreamReader::EndElement:
            --depth;
            break;
        default:
            break;
        }
    }
    return !reader.hasError();
}

}  // namespace

bool isSafeToParse(const QByteArray& bytes, int deepest)
{
    if (bytes.startsWith(binaryMagic))
        return binaryNestingWithin(bytes, deepest);
    return xmlNestingWithin(bytes, deepest);
}

}  // namespace tavrin
