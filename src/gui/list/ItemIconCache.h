#pragma once

#include "core/list/StatusTexts.h"

#include <QHash>
#include <QIcon>
#include <QMimeDatabase>
#include <QString>

namespace tavrin {

class FileSystemItem;

// The icons of the table's first column. A long list holds few kinds of item, so an icon
// is made once per kind, extension and badge and then shared by every row that needs it;
// nothing here touches the disk.
class ItemIconCache {
public:
    enum class Badge { None, Error, Success, Warning };

    QIcon icon(const FileSystemItem& item);

    // The badge a record's newFilename asks for: Error for the refusal statuses,
    // Success for "Renaming (OK)".
    static Badge badgeFor(RenameStatus status);

private:
    QIcon baseIcon(const FileSystemItem& item, const QString& extension);
    QIcon iconForExtension(const QString& extension);
    static QIcon folderIcon();
    static QIcon badged(const QIcon& base, Badge badge);

    QHash<QString, QIcon> m_icons;
    QMimeDatabase m_mimeTypes;
};

}  // namespace tavrin
