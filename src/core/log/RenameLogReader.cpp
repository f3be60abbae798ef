#include "core/log/RenameLogReader.h"

#include "core/log/RenameLogFormat.h"
#include "core/platform/InputFile.h"

#include <QFile>
#include <QXmlStreamReader>
#include <unistd.h>

namespace tavrin {

namespace {

// A batch of a million renames writes a log of a few hundred megabytes.
constexpr qint64 kLargestLogFile = qint64(1) << 30;

// The value of an attribute, taken whole from its Base64 twin when the writer had to add one.
QString exactValue(const QXmlStreamAttributes& attributes, const char* name)
{
    const QString exactName = QLatin1String(name) + QLatin1String(logxml::ExactSuffix);
    if (attributes.hasAttribute(exactName)) {
        const auto decoded = QByteArray::fromBase64Encoding(
            attributes.value(exactName).toLatin1(), QByteArray::AbortOnBase64DecodingErrors);
        const QString text = QString::fromUtf8(*decoded);
        if (decoded && text.toUtf8() == *decoded)
            return text;
    }
    return attributes.value(QLatin1String(name)).toString();
}

RenameLogEntry entryFrom(const QXmlStreamAttributes& attributes)
{
    const auto value = [&attributes](const char* name) { return exactValue(attributes, name); };
    RenameLogEntry entry {value(logxml::SourceLocation), value(logxml::TargetLocation),
        value(logxml::SourceName), value(logxml::TargetName)};
    for (const char* name :
        {logxml::SourceLocation, logxml::TargetLocation, logxml::SourceName, logxml::TargetName})
        entry.hasAllAttributes = entry.hasAllAttributes && attributes.hasAttribute(QLatin1String(name));
    entry.device = attributes.value(QLatin1String(logxml::Device)).toULongLong();
    entry.inode = attributes.value(QLatin1String(logxml::Inode)).toULongLong();
    return entry;
}

// Reads the children of the root, which the reader has just entered.
void readRootChildren(QXmlStreamReader& reader, RenameLogContents& contents)
{
    while (reader.readNextStartElement()) {
        if (reader.name() == QLatin1String(logxml::Entry))
            contents.entries.append(entryFrom(reader.attributes()));
        reader.skipCurrentElement();
    }
    contents.rootClosed = !reader.hasError();
}

}  // namespace

std::optional<RenameLogContents> readLogEntries(const QString& path)
{
    QFile file;
    const int fd = openInputFile(path, kLargestLogFile);
    if (fd < 0)
        return std::nullopt;
    if (!file.open(fd, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle)) {
        ::close(fd);
        return std::nullopt;
    }
    QXmlStreamReader reader(&file);
    if (!reader.readNextStartElement() || reader.name() != QLatin1String(logxml::Root))
        return std::nullopt;
    RenameLogContents contents;
    contents.appVersion = reader.attributes().value(QLatin1String(logxml::AppVersion)).toString();
    contents.type = reader.attributes().value(QLatin1String(logxml::Type)).toString();
    readRootChildren(reader, contents);
    if (reader.hasError() && reader.error() != QXmlStreamReader::PrematureEndOfDocumentError)
        return std::nullopt;
    return contents;
}

}  // namespace tavrin
