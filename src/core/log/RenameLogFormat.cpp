#include "core/log/RenameLogFormat.h"

#include <QXmlStreamWriter>

namespace tavrin::logxml {

namespace {

constexpr int indentWidth = 4;

void writeRootStart(QXmlStreamWriter& writer, const QString& type)
{
    writer.writeStartDocument();
    writer.writeStartElement(QLatin1String(Root));
    writer.writeAttribute(QLatin1String(AppVersion), QStringLiteral(TAVRIN_VERSION));
    writer.writeAttribute(QLatin1String(Type), type);
}

void writeEntry(QXmlStreamWriter& writer, const RenameLogEntry& entry)
{
    writer.writeEmptyElement(QLatin1String(Entry));
    writer.writeAttribute(QLatin1String(SourceLocation), entry.sourceLocation);
    writer.writeAttribute(QLatin1String(TargetLocation), entry.targetLocation);
    writer.writeAttribute(QLatin1String(SourceName), entry.sourceName);
    writer.writeAttribute(QLatin1String(TargetName), entry.targetName);
}

// The writer closes a pending tag only when something follows it; empty characters make it
// do so without adding anything.
void closePendingTag(QXmlStreamWriter& writer)
{
    writer.writeCharacters(QString());
}

}  // namespace

QByteArray documentHead(const QString& type)
{
    QByteArray head;
    {
        QXmlStreamWriter writer(&head);
        writer.setAutoFormatting(true);
        writer.setAutoFormattingIndent(indentWidth);
        writeRootStart(writer, type);
        closePendingTag(writer);
    }
    return head + '\n';
}

QByteArray entryLine(const RenameLogEntry& entry)
{
    QByteArray element;
    {
        QXmlStreamWriter writer(&element);
        writeEntry(writer, entry);
        closePendingTag(writer);
    }
    return QByteArray(indentWidth, ' ') + element + '\n';
}

QByteArray document(const QString& type, const QList<RenameLogEntry>& entries)
{
    QByteArray text;
    QXmlStreamWriter writer(&text);
    writer.setAutoFormatting(true);
    writer.setAutoFormattingIndent(indentWidth);
    writeRootStart(writer, type);
    for (const RenameLogEntry& entry : entries)
        writeEntry(writer, entry);
    writer.writeEndElement();
    writer.writeEndDocument();
    return text;
}

}  // namespace tavrin::logxml
