#include "core/list/FileSystemItem.h"

#include "core/list/StatusTexts.h"
#include "core/text/NameParts.h"

#include <QFile>
#include <sys/stat.h>

namespace tavrin {

namespace {

bool lstatPath(const QString& path, struct stat* info)
{
    return ::lstat(QFile::encodeName(path).constData(), info) == 0;
}

}  // namespace

std::optional<FileSystemItem> FileSystemItem::initWithPath(const QString& path)
{
    if (path.isEmpty())
        return std::nullopt;

    FileSystemItem item;
    item.m_fullPath = path;
    item.m_isHidden = lastPathComponent(path).startsWith(QLatin1Char('.'));
    if (item.m_isHidden)
        return std::nullopt;

    item.m_isPackage = false;  // Linux has no bundles
    item.m_isAlias = isPathAlias(path, &item.m_isFolder);
    item.m_isFile = !item.m_isAlias && !item.m_isFolder;
    if (item.m_isFile)
        item.m_itemType = ItemType::File;
    else if (item.m_isFolder)
        item.m_itemType = ItemType::Folder;
    else
        item.m_itemType = ItemType::Alias;
    return item;
}

bool FileSystemItem::isPathAlias(const QString& path, bool* isFolder)
{
    struct stat info {};
    const bool exists = lstatPath(path, &info);
    if (isFolder)
        *isFolder = exists && S_ISDIR(info.st_mode);
    return exists && S_ISLNK(info.st_mode);
}

QString FileSystemItem::filename() const
{
    return splitNameAndExtension(filenameWithExtension()).name;
}

QString FileSystemItem::filenameWithExtension() const
{
    return lastPathComponent(m_fullPath);
}

QString FileSystemItem::fileLocation() const
{
    return parentPath(m_fullPath);
}

QString FileSystemItem::fileExtension() const
{
    return splitNameAndExtension(filenameWithExtension()).extension;
}

QString FileSystemItem::fileType() const
{
    switch (m_itemType) {
    case ItemType::File:
        return QStringLiteral("FILE");
    case ItemType::Folder:
        return QStringLiteral("FOLDER");
    default:
        return QString();
    }
}

QString FileSystemItem::objectForKey(const QString& key) const
{
    if (key == QLatin1String(itemkeys::Filename))
        return filename();
    if (key == QLatin1String(itemkeys::FilenameWithExtension))
        return filenameWithExtension();
    if (key == QLatin1String(itemkeys::FileLocation))
        return fileLocation();
    if (key == QLatin1String(itemkeys::FileExtension))
        return fileExtension();
    if (key == QLatin1String(itemkeys::FileWithPath))
        return m_fullPath;
    if (key == QLatin1String(itemkeys::FileType))
        return fileType();
    if (key == QLatin1String(itemkeys::NewFilename))
        return m_newFilename;
    return QString();
}

QString FileSystemItem::displayField(const QString& key) const
{
    const QString value = objectForKey(key);
    if (key == QLatin1String(itemkeys::Filename) || key == QLatin1String(itemkeys::FilenameWithExtension)
        || key == QLatin1String(itemkeys::NewFilename))
        return displayName(value);
    return value;
}

void FileSystemItem::setObject(const QString& value, const QString& key)
{
    if (key == QLatin1String(itemkeys::NewFilename)) {
        m_newFilename = value;
        m_status = RenameStatus::None;
    }
}

void FileSystemItem::setStatus(RenameStatus status)
{
    m_status = status;
    m_newFilename = statusText(status);
}

bool FileSystemItem::isPathExists() const
{
    struct stat info {};
    if (m_itemType == ItemType::File)
        return lstatPath(m_fullPath, &info);
    return ::stat(QFile::encodeName(m_fullPath).constData(), &info) == 0 && S_ISDIR(info.st_mode);
}

void FileSystemItem::markMissingAs(ItemType type)
{
    m_itemType = type == ItemType::Folder ? ItemType::Folder : ItemType::File;
    m_isFolder = m_itemType == ItemType::Folder;
    m_isFile = !m_isFolder;
    m_isAlias = false;
}

QString getDisplayFilePath(const QString& path)
{
    return displayName(path);
}

QString statusText(RenameStatus status)
{
    switch (status) {
    case RenameStatus::None:
        break;
    case RenameStatus::NoChanges:
        return QString::fromLatin1(status::NoChanges);
    case RenameStatus::FileAlreadyExists:
        return QString::fromLatin1(status::FileAlreadyExists);
    case RenameStatus::FolderAlreadyExists:
        return QString::fromLatin1(status::FolderAlreadyExists);
    case RenameStatus::FileNotFound:
        return QString::fromLatin1(status::FileNotFound);
    case RenameStatus::FolderNotFound:
        return QString::fromLatin1(status::FolderNotFound);
    case RenameStatus::RenamingOk:
        return QString::fromLatin1(status::RenamingOk);
    }
    return {};
}

bool isErrorStatus(RenameStatus status)
{
    return status != RenameStatus::None && status != RenameStatus::RenamingOk;
}


}  // namespace tavrin
