#include "core/log/RenameLogFormat.h"

#include <QXmlStreamWriter>
#include <utility>

namespace tavrin::logxml {

namespace {

constexpr int indentWidth = 4;

void writeRootStart(QXmlStreamWriter& writer, const QString& type, const QString& appVersion)
{
    writer.writeStartDocument();
    writer.writeStartElement(QLatin1String(Root));
    writer.writeAttribute(QLatin1String(AppVersion), appVersion);
    writer.writeAttribute(QLatin1String(Type), type);
}

// Escapes an attribute value exactly as QXmlStreamWriter does: markup characters and the
// three whitespace controls become references, other characters XML cannot hold are left out.
void appendEscapedAttribute(QString& out, const QString& value)
{
    for (const QChar c : value) {
        switch (c.unicode()) {
        case '<': out += QLatin1String("&lt;"); break;
        case '>': out += QLatin1String("&gt;"); break;
        case '&': out += QLatin1String("&amp;"); break;
        case '"': out += QLatin1String("&quot;"); break;
        case '\t': out += QLatin1String("&#9;"); break;
        case '\n': out += QLatin1String("&#10;"); break;
        case '\r': out += QLatin1String("&#13;"); break;
        default:
            if (c.unicode() >= 0x20 && c.unicode() < 0xFFFE)
                out += c;
            break;
        }
    }
}

// The writer closes a pending tag only when something follows it; empty characters make it
// do so without adding anything.
void closePendingTag(QXmlStreamWriter& writer)
{
    writer.writeCharacters(QString());
}

QByteArray head(const QString& type, const QString& appVersion)
{
    QByteArray text;
    {
        QXmlStreamWriter writer(&text);
        writer.setAutoFormatting(true);
        writer.setAutoFormattingIndent(indentWidth);
        writeRootStart(writer, type, appVersion);
        closePendingTag(writer);
    }
    return text + '\n';
}

}  // namespace

QByteArray documentHead(const QString& type)
{
    return head(type, QStringLiteral(TAVRIN_VERSION));
}

QByteArray entryLine(const RenameLogEntry& entry)
{
    // Written by hand rather than through a QXmlStreamWriter per entry: a batch of 100,000
    // renames writes 100,000 of these lines, and the escaping is the writer's own.
    QString line = QString(indentWidth, QLatin1Char(' ')) + QLatin1Char('<') + QLatin1String(Entry);
    const std::pair<const char*, const QString*> attributes[] = {
        {SourceLocation, &entry.sourceLocation},
        {TargetLocation, &entry.targetLocation},
        {SourceName, &entry.sourceName},
        {TargetName, &entry.targetName},
    };
    for (const auto& [name, value] : attributes) {
        line += QLatin1Char(' ') + QLatin1String(name) + QLatin1String("=\"");
        appendEscapedAttribute(line, *value);
        line += QLatin1Char('"');
    }
    line += QLatin1String("/>\n");
    return line.toUtf8();
}

QByteArray document(const QString& type, const QList<RenameLogEntry>& entries, const QString& appVersion)
{
    if (!entries.isEmpty()) {
        QByteArray text = head(type, appVersion);
        for (const RenameLogEntry& entry : entries)
            text += entryLine(entry);
        return text + "</" + Root + ">\n";
    }
    // An empty root is closed in one tag, as the writer does it.
    QByteArray text;
    QXmlStreamWriter writer(&text);
    writer.setAutoFormatting(true);
    writer.setAutoFormattingIndent(indentWidth);
    writeRootStart(writer, type, appVersion);
    writer.writeEndElement();
    writer.writeEndDocument();
    return text;
}

}  // namespace tavrin::logxml
