#pragma once

#include "core/list/StatusTexts.h"

#include <QString>
#include <optional>

namespace tavrin {

// The derived keys a record answers, also the table's column identifiers.
namespace itemkeys {
inline constexpr char Filename[] = "filename";
inline constexpr char FilenameWithExtension[] = "filenameWithExtension";
inline constexpr char FileLocation[] = "fileLocation";
inline constexpr char FileExtension[] = "fileExtension";
inline constexpr char FileWithPath[] = "fileWithPath";
inline constexpr char FileType[] = "fileType";
inline constexpr char NewFilename[] = "newFilename";
inline constexpr char Icon[] = "icon";
}  // namespace itemkeys

enum class ItemType { File = 0, Folder = 1, Alias = 2, Package = 3 };

// One listed file or folder: its current path, the proposed new name or a status text,
// and what kind of file-system object it is. Everything else is derived from fullPath
// and newFilename at the moment it is asked for; nothing is cached.
class FileSystemItem {
public:
    // A record for an existing or missing path; none for an empty path or a hidden item
    // (last component starting with "."). A symbolic link is an alias, even when it
    // points at a folder, and is never treated as a folder.
    static std::optional<FileSystemItem> initWithPath(const QString& path);

    const QString& fullPath() const { return m_fullPath; }
    void setFullPath(const QString& path) { m_fullPath = path; }
    // The proposed name, or the text of the status when there is one.
    const QString& newFilename() const { return m_newFilename; }
    RenameStatus status() const { return m_status; }
    bool hasStatus() const { return m_status != RenameStatus::None; }
    // Shows the status in place of a proposal; setting a new name clears it.
    void setStatus(RenameStatus status);
    // Another record of the batch proposes the same new name (set after each preview).
    bool isConflict() const { return m_isConflict; }
    void setConflict(bool conflict) { m_isConflict = conflict; }

    bool isFile() const { return m_isFile; }
    bool isFolder() const { return m_isFolder; }
    bool isAlias() const { return m_isAlias; }
    bool isPackageAtpath() const { return m_isPackage; }
    bool isHidden() const { return m_isHidden; }
    ItemType itemType() const { return m_itemType; }

    QString filename() const;
    QString filenameWithExtension() const;
    QString fileLocation() const;
    QString fileExtension() const;
    QString fileType() const;

    // The derived keys by name; an unknown key answers an empty string.
    QString objectForKey(const QString& key) const;
    // Like objectForKey, with ":" shown as "/" in the three name keys.
    QString displayField(const QString& key) const;
    // Only "newFilename" can be set (a proposal, never a status); every other key is ignored.
    void setObject(const QString& value, const QString& key);

    // For a file record: something exists at fullPath. For any other record: a folder does.
    bool isPathExists() const;

    // For an imported path that no longer exists: the kind the list says it was, not an alias.
    void markMissingAs(ItemType type);

    // A symbolic link, or a path that does not resolve to itself. Writes whether the path
    // itself is a directory.
    static bool isPathAlias(const QString& path, bool* isFolder);

private:
    QString m_fullPath;
    QString m_newFilename;
    RenameStatus m_status = RenameStatus::None;
    ItemType m_itemType = ItemType::File;
    bool m_isFile = false;
    bool m_isFolder = false;
    bool m_isAlias = false;
    bool m_isPackage = false;
    bool m_isHidden = false;
    bool m_isConflict = false;
};

// Every ":" of a path shown as "/", for the progress line.
QString getDisplayFilePath(const QString& path);

}  // namespace tavrin
