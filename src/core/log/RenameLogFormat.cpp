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

const char* replacementFor(char c)
{
    switch (c) {
    case '<': return "&lt;";
    case '>': return "&gt;";
    case '&': return "&amp;";
    case '"': return "&quot;";
    case '\t': return "&#9;";
    case '\n': return "&#10;";
    case '\r': return "&#13;";
    default: return nullptr;
    }
}

// U+FFFE and U+FFFF, which XML cannot hold, as UTF-8 bytes.
bool isNonCharacterAt(const QByteArray& text, qsizetype i)
{
    return i + 2 < text.size() && uchar(text[i]) == 0xEF && uchar(text[i + 1]) == 0xBF
        && (uchar(text[i + 2]) == 0xBE || uchar(text[i + 2]) == 0xBF);
}

// Escapes an attribute value exactly as QXmlStreamWriter does: markup characters and the
// three whitespace controls become references, other characters XML cannot hold are left
// out. Works on the UTF-8 bytes, where every character to look at is a single byte.
void appendEscapedAttribute(QByteArray& out, const QString& value)
{
    const QByteArray text = value.toUtf8();
    for (qsizetype i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (const char* replacement = replacementFor(c))
            out += replacement;
        else if (isNonCharacterAt(text, i))
            i += 2;
        else if (uchar(c) >= 0x20)
            out += c;
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
    // renames writes 100,000 of these lines.
    QByteArray line;
    line.reserve(96 + 3 * (entry.sourceLocation.size() + entry.targetLocation.size() + entry.sourceName.size()
                           + entry.targetName.size()));
    line.append(indentWidth, ' ').append('<').append(Entry);
    const std::pair<const char*, const QString*> attributes[] = {
        {SourceLocation, &entry.sourceLocation},
        {TargetLocation, &entry.targetLocation},
        {SourceName, &entry.sourceName},
        {TargetName, &entry.targetName},
    };
    for (const auto& [name, value] : attributes) {
        line.append(' ').append(name).append("=\"");
        appendEscapedAttribute(line, *value);
        line.append('"');
    }
    for (const auto& [name, value] : attributes) {
        if (!isXmlText(*value))
            line.append(' ').append(name).append(ExactSuffix).append("=\"").append(value->toUtf8().toBase64()).append('"');
    }
    if (entry.hasIdentity()) {
        line.append(' ').append(Device).append("=\"").append(QByteArray::number(entry.device)).append('"');
        line.append(' ').append(Inode).append("=\"").append(QByteArray::number(entry.inode)).append('"');
    }
    return line.append("/>\n");
}

bool isXmlText(const QString& text)
{
    for (const QChar c : text) {
        const char16_t code = c.unicode();
        if ((code < 0x20 && code != '\t' && code != '\n' && code != '\r') || code == 0xFFFE || code == 0xFFFF)
            return false;
    }
    return true;
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
