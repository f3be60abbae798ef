#include "core/platform/FileOperations.h"

#include "core/platform/SystemCalls.h"
#include "core/text/LocalizedStrings.h"

#include <QByteArray>
#include <QFile>
#include <cerrno>
#include <cstdio>
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tavrin {

namespace {

constexpr qsizetype maxNameBytes = 255;

QByteArray encoded(const QString& path)
{
    return QFile::encodeName(path);
}

FileResult okResult()
{
    return {};
}

FileResult errnoResult(FileOutcome outcome, int error)
{
    return {outcome, error, qt_error_string(error)};
}

// Turns the errno of a failed move into an outcome. ENOENT can also mean that the target's
// folder is gone, so the source is looked at before it is called missing.
FileResult moveFailure(int error, const QString& source)
{
    if (error == EEXIST || error == ENOTEMPTY)
        return errnoResult(FileOutcome::TargetExists, EEXIST);
    if (error == ENOENT && !pathExists(source))
        return errnoResult(FileOutcome::SourceMissing, ENOENT);
    return errnoResult(FileOutcome::Failed, error);
}

bool hasNoHardLinks(int linkError)
{
    return linkError == EPERM || linkError == EOPNOTSUPP;
}

// Whether the folder of `path` holds an entry spelled exactly like its last component.
bool folderListsName(const QString& path)
{
    const QByteArray full = encoded(path);
    const qsizetype slash = full.lastIndexOf('/');
    const QByteArray folder = slash < 0 ? QByteArray(".") : (slash == 0 ? QByteArray("/") : full.left(slash));
    const QByteArray name = full.mid(slash + 1);
    DIR* dir = ::opendir(folder.constData());
    if (!dir)
        return false;
    bool found = false;
    while (const dirent* entry = ::readdir(dir)) {
        if (name == entry->d_name) {
            found = true;
            break;
        }
    }
    ::closedir(dir);
    return found;
}

}  // namespace

bool pathExists(const QString& path)
{
    struct stat info {};
    return !path.isEmpty() && ::lstat(encoded(path).constData(), &info) == 0;
}

bool isDirectory(const QString& path)
{
    struct stat info {};
    return !path.isEmpty() && ::lstat(encoded(path).constData(), &info) == 0 && S_ISDIR(info.st_mode);
}

NoReplaceFallback chooseNoReplaceFallback(int renameError, bool sourceIsDirectory)
{
    if (renameError != EINVAL && renameError != ENOSYS)
        return NoReplaceFallback::None;
    return sourceIsDirectory ? NoReplaceFallback::Refuse : NoReplaceFallback::LinkAndUnlink;
}

FileResult moveItemNoReplace(const QString& source, const QString& target)
{
    if (systemCalls().renameNoReplace(encoded(source).constData(), encoded(target).constData()) == 0)
        return okResult();
    const int error = errno;
    switch (chooseNoReplaceFallback(error, isDirectory(source))) {
    case NoReplaceFallback::LinkAndUnlink:
        return moveFileByLink(source, target);
    case NoReplaceFallback::Refuse:
        return {FileOutcome::Failed, error, localized("FILEOPNOREPLACEUNSUPPORTED")};
    case NoReplaceFallback::None:
        break;
    }
    return moveFailure(error, source);
}

FileResult moveFileByLink(const QString& source, const QString& target)
{
    const QByteArray from = encoded(source);
    const QByteArray to = encoded(target);
    const SystemCalls& calls = systemCalls();
    if (calls.link(from.constData(), to.constData()) != 0) {
        const int error = errno;
        if (hasNoHardLinks(error))
            return {FileOutcome::Failed, error, localized("FILEOPNOREPLACEUNSUPPORTED")};
        return moveFailure(error, source);
    }
    if (calls.unlink(from.constData()) != 0) {
        const int error = errno;
        // The item must not end up under two names: the link just made is taken back.
        calls.unlink(to.constData());
        return errnoResult(FileOutcome::Failed, error);
    }
    return okResult();
}

ItemIdentity itemIdentity(const QString& path)
{
    struct stat info {};
    if (path.isEmpty() || ::lstat(encoded(path).constData(), &info) != 0)
        return {};
    return {true, S_ISDIR(info.st_mode), static_cast<unsigned long long>(info.st_dev),
        static_cast<unsigned long long>(info.st_ino), static_cast<unsigned long long>(info.st_nlink)};
}

bool isSameItem(const ItemIdentity& left, const ItemIdentity& right)
{
    return left.exists && right.exists && left.device == right.device && left.inode == right.inode;
}

CaseRenameDecision decideCaseOnlyRename(
    const ItemIdentity& source, const ItemIdentity& target, bool samePath, bool targetNameListed)
{
    if (!source.exists)
        return CaseRenameDecision::SourceMissing;
    if (!isSameItem(source, target))
        return CaseRenameDecision::NotSameItem;
    if (samePath || source.isDirectory || source.linkCount <= 1)
        return CaseRenameDecision::Rename;
    // Two hard links of one file look alike by lstat(); rename(2) between them succeeds and
    // does nothing, which must not be reported as a rename.
    return targetNameListed ? CaseRenameDecision::TargetNameTaken : CaseRenameDecision::Rename;
}

FileResult renameCaseOnly(const QString& source, const QString& target)
{
    const ItemIdentity from = itemIdentity(source);
    const ItemIdentity to = itemIdentity(target);
    const bool mayBeHardLink = from.exists && !from.isDirectory && from.linkCount > 1;
    const bool listed = mayBeHardLink && folderListsName(target);
    switch (decideCaseOnlyRename(from, to, source == target, listed)) {
    case CaseRenameDecision::SourceMissing:
        return errnoResult(FileOutcome::SourceMissing, ENOENT);
    case CaseRenameDecision::NotSameItem:
        return {FileOutcome::NotSameItem, 0, localized("FILEOPNOTSAMEITEM")};
    case CaseRenameDecision::TargetNameTaken:
        return errnoResult(FileOutcome::TargetExists, EEXIST);
    case CaseRenameDecision::Rename:
        break;
    }
    if (systemCalls().rename(encoded(source).constData(), encoded(target).constData()) != 0)
        return moveFailure(errno, source);
    return okResult();
}

bool isValidNewName(const QString& name)
{
    if (name.isEmpty() || name == QLatin1String(".") || name == QLatin1String(".."))
        return false;
    if (name.contains(QLatin1Char('/')) || name.contains(QChar(0)))
        return false;
    const QByteArray utf8 = name.toUtf8();
    // A lone surrogate has no UTF-8 form: it would come back as a replacement character.
    return utf8.size() <= maxNameBytes && QString::fromUtf8(utf8) == name;
}

}  // namespace tavrin
