#include "core/io/RenameFileReader.h"

#include "core/platform/FileOperations.h"
#include "core/platform/InputFile.h"
#include "core/text/LocalizedStrings.h"
#include "core/text/NameParts.h"

#include <QFile>
#include <QStringDecoder>
#include <climits>
#include <cstdlib>
#include <memory>

namespace tavrin {

namespace {

constexpr qint64 kLargestRenameFile = qint64(256) * 1024 * 1024;
constexpr char kNoUsableLine[] = "RENAMEFROMFILEMESSAGE";

bool isHeader(const QStringList& fields)
{
    return fields.at(0).toUpper() == localized("FILENAME").toUpper()
        || fields.at(1).toUpper() == localized("NEWFILENAME").toUpper()
        || fields.at(2).toUpper() == localized("LOCATION").toUpper();
}

// The folder as the file system names it, through every link on the way.
QString canonicalFolder(const QString& folder)
{
    const std::unique_ptr<char, decltype(&std::free)> resolved(
        ::realpath(QFile::encodeName(folder).constData(), nullptr), &std::free);
    return resolved ? QFile::decodeName(resolved.get()) : folder;
}

bool isUsableFolder(const QString& folder)
{
    return folder.startsWith(QLatin1Char('/')) && !folder.contains(QChar(u'\0'));
}

}  // namespace

RenameFileRead parseRenameList(const QString& text, int importType)
{
    RenameFileRead read;
    read.problemKey = kNoUsableLine;
    const QStringList lines = text.split(QLatin1Char('\n'));
    if (lines.size() <= 1 || lines.first().split(QLatin1Char('\t')).size() != 3)
        return read;

    QStringList paths;
    QHash<QString, QString> records;
    const qsizetype first = isHeader(lines.first().split(QLatin1Char('\t'))) ? 1 : 0;
    for (qsizetype row = first; row < lines.size(); ++row) {
        const QStringList fields = lines.at(row).split(QLatin1Char('\t'));
        if (fields.size() != 3)
            continue;
        const QString name = storedName(fields.at(0));
        QString newName = storedName(fields.at(1));
        if (!isValidNewName(name) || !isUsableFolder(fields.at(2)))
            continue;
        QString path = joinPath(fields.at(2), name);
        if (pathExists(path)) {
            path = joinPath(canonicalFolder(fields.at(2)), name);
            if (newName.isEmpty())
                newName = name;
        } else {
            newName.clear();
        }
        paths.append(path);
        records.insert(path, newName);
    }
    if (!paths.isEmpty())
        read = {nullptr, FileRenameItem(paths, records, importType)};
    return read;
}

RenameFileRead readRenameFile(const QString& path, int importType)
{
    const std::optional<QByteArray> bytes = readInputFile(path, kLargestRenameFile);
    RenameFileRead unreadable;
    unreadable.problemKey = "UNABLETOOPENFILE";
    if (!bytes)
        return unreadable;
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = decoder.decode(*bytes);
    if (decoder.hasError())
        return unreadable;
    return parseRenameList(text, importType);
}

}  // namespace tavrin
