#include "core/log/RenameLogReader.h"

#include "core/log/RenameLogFormat.h"

#include <QFile>
#include <QXmlStreamReader>

namespace tavrin {

namespace {

RenameLogEntry entryFrom(const QXmlStreamAttributes& attributes)
{
    const auto value
        = [&attributes](const char* name) { return attributes.value(QLatin1String(name)).toString(); };
    RenameLogEntry entry {value(logxml::SourceLocation), value(logxml::TargetLocation),
        value(logxml::SourceName), value(logxml::TargetName)};
    for (const char* name :
        {logxml::SourceLocation, logxml::TargetLocation, logxml::SourceName, logxml::TargetName})
        entry.hasAllAttributes = entry.hasAllAttributes && attributes.hasAttribute(QLatin1String(name));
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
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
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
