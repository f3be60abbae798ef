#pragma once

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QList>
#include <cstdint>
#include <cstdlib>
#include <unistd.h>

// What the fuzz targets share: the input as bytes or as fields, and a scratch file to hand to
// readers that take a path.
namespace tavrin::fuzz {

inline QByteArray bytesOf(const uint8_t* data, size_t size)
{
    return QByteArray(reinterpret_cast<const char*>(data), qsizetype(size));
}

// The input cut at its 0x1F bytes: several texts from one input.
inline QList<QByteArray> fields(const uint8_t* data, size_t size, int count)
{
    QList<QByteArray> parts = bytesOf(data, size).split('\x1F');
    while (parts.size() < count)
        parts.append(QByteArray());
    return parts;
}

// A file in the temporary folder, of this process alone, holding the input.
inline QString scratchFile(const QByteArray& bytes, const char* name = "input")
{
    const QString path = QDir::temp().filePath(QStringLiteral("tavrin-fuzz-%1-%2").arg(::getpid()).arg(QLatin1String(name)));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || file.write(bytes) != bytes.size())
        std::abort();
    return path;
}

// A property that must hold: a broken one is a finding, as a crash is.
inline void require(bool holds)
{
    if (!holds)
        std::abort();
}

}  // namespace tavrin::fuzz
