#pragma once

#include <QByteArray>
#include <QList>

// Property lists and XML made to hurt a reader: nested past any sane depth, entities that
// multiply or reach outside, objects that refer to each other in a circle.
namespace tavrin::test {

inline void appendBigEndian(QByteArray& bytes, quint64 value, int size)
{
    for (int i = size - 1; i >= 0; --i)
        bytes.append(char((value >> (8 * i)) & 0xFF));
}

// A binary property list whose objects are arrays; `children[i]` lists the objects array i
// holds (at most 14 each). Object 0 is the top.
inline QByteArray binaryPlistOfArrays(const QList<QList<int>>& children)
{
    QByteArray bytes("bplist00");
    QList<quint64> offsets;
    for (const QList<int>& held : children) {
        offsets.append(quint64(bytes.size()));
        bytes.append(char(0xA0 | held.size()));
        for (int child : held)
            appendBigEndian(bytes, quint64(child), 4);
    }
    const auto table = quint64(bytes.size());
    for (quint64 offset : offsets)
        appendBigEndian(bytes, offset, 4);
    bytes.append(QByteArray(6, '\0')).append(char(4)).append(char(4));
    appendBigEndian(bytes, quint64(children.size()), 8);
    appendBigEndian(bytes, 0, 8);
    appendBigEndian(bytes, table, 8);
    return bytes;
}

// `depth` one-element arrays nested in each other (100,000 of them make a 900 KB file).
inline QByteArray deepBinaryPlist(int depth)
{
    QList<QList<int>> children(depth);
    for (int i = 0; i + 1 < depth; ++i)
        children[i] = {i + 1};
    return binaryPlistOfArrays(children);
}

inline QByteArray deepXmlPlist(int depth)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">" + QByteArray("<array>").repeated(depth)
        + QByteArray("</array>").repeated(depth) + "</plist>\n";
}

inline QByteArray billionLaughsPlist()
{
    QByteArray dtd = "<?xml version=\"1.0\"?>\n<!DOCTYPE plist [\n<!ENTITY l0 \"ha\">\n";
    for (int i = 1; i <= 9; ++i)
        dtd += "<!ENTITY l" + QByteArray::number(i) + " \"" + QByteArray("&l" + QByteArray::number(i - 1) + ";").repeated(10) + "\">\n";
    return dtd + "]>\n<plist version=\"1.0\"><dict><key>defaultLogFolderPath</key><string>&l9;</string></dict></plist>\n";
}

inline QByteArray externalEntityPlist(const QByteArray& path)
{
    return "<?xml version=\"1.0\"?>\n<!DOCTYPE plist [<!ENTITY secret SYSTEM \"file://" + path
        + "\">]>\n<plist version=\"1.0\"><dict><key>defaultLogFolderPath</key><string>&secret;</string></dict></plist>\n";
}

// Two arrays holding each other.
inline QByteArray cyclicBinaryPlist()
{
    return binaryPlistOfArrays({{1}, {0}});
}

}  // namespace tavrin::test
