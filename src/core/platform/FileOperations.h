#pragma once

#include <QString>

namespace tavrin {

// What became of one file operation. Every outcome but Ok means nothing was changed on disk.
enum class FileOutcome {
    Ok,
    TargetExists,  // something already has the new name
    SourceMissing,  // nothing exists at the old path
    NotSameItem,  // renameCaseOnly: the new name does not belong to the same item
    Failed,  // any other refusal of the system; see the message
};

struct FileResult {
    FileOutcome outcome = FileOutcome::Ok;
    int error = 0;  // the errno behind the outcome, 0 when there was none
    QString message;  // the system's text for that errno, or a text of ours; empty on Ok

    bool ok() const { return outcome == FileOutcome::Ok; }
};

// Something exists at the path, checked with lstat(): a symbolic link exists even when it
// points nowhere, so a dangling link is never overwritten.
bool pathExists(const QString& path);

// The path itself is a directory (lstat()): a symbolic link to a folder is not one, and
// is moved as the link it is.
bool isDirectory(const QString& path);

// Moves an item to a new path without ever replacing what is there. Uses renameat2() with
// RENAME_NOREPLACE; where the file system cannot honour that flag it falls back to the
// moves of chooseNoReplaceFallback(), and refuses where there is none.
FileResult moveItemNoReplace(const QString& source, const QString& target);

// How a move is made when renameat2() cannot promise not to replace the target. Only calls
// that fail on an existing target are used: a check followed by rename() would replace
// whatever another process put there in between (an empty folder, or any file).
enum class NoReplaceFallback {
    None,  // the answer was a real refusal: report it
    LinkAndUnlink,  // a file: link() refuses an existing target by itself
    Refuse,  // a folder (folders cannot be hard-linked): nothing safe is left, the move is refused
};

// The fallback for the errno that renameat2(RENAME_NOREPLACE) answered: EINVAL from a file
// system without the flag, ENOSYS from a kernel without the call.
NoReplaceFallback chooseNoReplaceFallback(int renameError, bool sourceIsDirectory);

// The file fallback. A file system without hard links (link() answers EPERM or EOPNOTSUPP)
// leaves no safe move: the file stays where it is, with a message saying why.
FileResult moveFileByLink(const QString& source, const QString& target);

// rename(2) for a change that the file system sees as no change at all: on a case-insensitive
// file system "photo.JPG" and "photo.jpg" name the same item, so a no-replace move refuses
// it. The rename is made only when both paths lead to the same item through the one entry
// of the source; in every other case nothing is touched and NotSameItem (or TargetExists,
// for a second hard link that really holds the new name) is reported.
FileResult renameCaseOnly(const QString& source, const QString& target);

// The facts renameCaseOnly() decides on: the identity of each path by lstat(), and whether
// the folder holds an entry spelled exactly like the new name.
struct ItemIdentity {
    bool exists = false;
    bool isDirectory = false;
    unsigned long long device = 0;
    unsigned long long inode = 0;
    unsigned long long linkCount = 0;
};

enum class CaseRenameDecision { Rename, SourceMissing, NotSameItem, TargetNameTaken };

// `targetNameListed` is asked only for a file with more than one hard link, the one case where
// two spellings of the same item can be two real entries (rename(2) would then do nothing).
CaseRenameDecision decideCaseOnlyRename(
    const ItemIdentity& source, const ItemIdentity& target, bool samePath, bool targetNameListed);

ItemIdentity itemIdentity(const QString& path);

// Both identities name one existing item (device and inode).
bool isSameItem(const ItemIdentity& left, const ItemIdentity& right);

// A name that can be given to an item: one path component, not empty, not "." or "..",
// without "/" or NUL, representable in UTF-8 and at most 255 bytes long in it.
bool isValidNewName(const QString& name);

}  // namespace tavrin
