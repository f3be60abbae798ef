#include "cli/ListJson.h"

#include <QJsonArray>

namespace tavrin::cli {

namespace {

QJsonObject itemObject(const FileSystemItem& item)
{
    QJsonObject object;
    for (const char* key : {itemkeys::FileWithPath, itemkeys::FilenameWithExtension, itemkeys::Filename,
                            itemkeys::FileExtension, itemkeys::FileLocation, itemkeys::FileType,
                            itemkeys::NewFilename}) {
        const QString name = QString::fromLatin1(key);
        object.insert(name, item.objectForKey(name));
    }
    return object;
}

}  // namespace

QJsonObject listJson(const FileList& list, const QStringList& skipped)
{
    QJsonArray items;
    for (const FileSystemItem& item : list.items())
        items.append(itemObject(item));
    QJsonObject root;
    root.insert(QStringLiteral("items"), items);
    root.insert(QStringLiteral("skipped"), QJsonArray::fromStringList(skipped));
    return root;
}

QJsonObject previewJson(const FileList& list, const QStringList& skipped)
{
    QJsonArray items;
    int conflicts = 0;
    for (const FileSystemItem& item : list.items()) {
        QJsonObject object = itemObject(item);
        object.insert(QStringLiteral("conflict"), item.isConflict());
        conflicts += item.isConflict() ? 1 : 0;
        items.append(object);
    }
    QJsonObject root;
    root.insert(QStringLiteral("items"), items);
    root.insert(QStringLiteral("skipped"), QJsonArray::fromStringList(skipped));
    root.insert(QStringLiteral("conflicts"), conflicts);
    return root;
}

}  // namespace tavrin::cli
