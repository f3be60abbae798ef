#include "core/io/ExportList.h"

#include "core/list/FileList.h"
#include "core/text/LocalizedStrings.h"

#include <QFile>

namespace tavrin {

namespace {

void appendField(QString& line, const QString& value)
{
    if (!line.isEmpty())
        line += QLatin1Char('\t');
    line += value;
}

bool writesLocationColumn(const ExportColumns& columns)
{
    return columns.isLocation && !columns.isIncludeLocation;
}

QString headerLine(const ExportColumns& columns)
{
    QString header;
    if (columns.isFilename)
        appendField(header, localized("FILENAME"));
    if (columns.isNewFilename)
        appendField(header, localized("NEWFILENAME"));
    if (writesLocationColumn(columns))
        appendField(header, localized("LOCATION"));
    return header + QLatin1Char('\n');
}

QString itemLine(const FileSystemItem& item, const ExportColumns& columns)
{
    const QString location = item.displayField(QString::fromLatin1(itemkeys::FileLocation));
    QString line;
    if (columns.isFilename)
        line = item.displayField(QString::fromLatin1(
            columns.isIncludeLocation ? itemkeys::FileWithPath : itemkeys::FilenameWithExtension));
    if (columns.isNewFilename) {
        const QString newName = item.hasStatus()
            ? QString() : item.displayField(QString::fromLatin1(itemkeys::NewFilename));
        if (!line.isEmpty())
            line += QLatin1Char('\t');
        line += columns.isIncludeLocation ? location + QLatin1Char('/') + newName : newName;
    }
    if (writesLocationColumn(columns)) {
        if (!line.isEmpty())
            line += QLatin1Char('\t');
        line += location;
    }
    return line;
}

}  // namespace

const char* exportRefusal(const ExportColumns& columns)
{
    if (!columns.isFilename && !columns.isNewFilename && !columns.isLocation)
        return "EXPORTNOCOLUMN";
    if (!columns.isFilename && !columns.isNewFilename && columns.isIncludeLocation)
        return "EXPORTFILESFAILED";
    return nullptr;
}

QByteArray exportListText(const FileList& list, const ExportColumns& columns)
{
    QString body;
    for (const FileSystemItem& item : list.items()) {
        body += itemLine(item, columns);
        if (!body.isEmpty())
            body += QLatin1Char('\n');
    }
    const QString header = columns.addColumnNamesInHeader ? headerLine(columns) : QString();
    return (header + body).toUtf8();
}

bool writeExportFile(const QString& path, const QByteArray& text, bool replace, QString& error)
{
    QFile file(path);
    const QIODevice::OpenMode mode = QIODevice::WriteOnly | (replace ? QIODevice::Truncate : QIODevice::NewOnly);
    if (!file.open(mode) || file.write(text) != text.size() || !file.flush()) {
        error = file.errorString();
        return false;
    }
    file.close();
    return true;
}

}  // namespace tavrin
