#include "core/engine/ProposalConflicts.h"

#include "core/list/FileList.h"

#include <QFile>
#include <QHash>
#include <sys/stat.h>
#include <utility>
#include <vector>

namespace tavrin {

namespace {

QString swappedCase(const QString& name)
{
    QString swapped = name;
    for (QChar& character : swapped)
        character = character.isUpper() ? character.toLower() : character.toUpper();
    return swapped;
}

bool sameObject(const QString& first, const QString& second)
{
    struct stat a {};
    struct stat b {};
    return ::lstat(QFile::encodeName(first).constData(), &a) == 0
        && ::lstat(QFile::encodeName(second).constData(), &b) == 0 && a.st_dev == b.st_dev && a.st_ino == b.st_ino;
}

// Whether a folder's file system finds an item under its name in the other letter case.
// Asked once per folder, of an item listed there; a name without letters cannot tell, and
// then the folder counts as case-sensitive.
class CaseFolding {
public:
    bool foldsCase(const FileSystemItem& item)
    {
        const QString folder = item.fileLocation();
        const auto known = m_folders.constFind(folder);
        if (known != m_folders.constEnd())
            return *known;
        const QString name = item.filenameWithExtension();
        const QString swapped = swappedCase(name);
        const bool folds = swapped != name && sameObject(item.fullPath(), folder + QLatin1Char('/') + swapped);
        m_folders.insert(folder, folds);
        return folds;
    }

private:
    QHash<QString, bool> m_folders;
};

}  // namespace

int markProposalConflicts(FileList& list)
{
    CaseFolding folding;
    QHash<QString, int> proposals;  // folder + "/" + name (folded where the folder folds) → count
    std::vector<QString> keys(static_cast<size_t>(list.size()));
    for (int row = 0; row < list.size(); ++row) {
        FileSystemItem& item = list.at(row);
        item.setConflict(false);
        if (item.hasStatus() || item.newFilename().isEmpty())
            continue;
        const QString name = folding.foldsCase(item) ? item.newFilename().toCaseFolded() : item.newFilename();
        QString key = item.fileLocation() + QLatin1Char('/') + name;
        ++proposals[key];
        keys[static_cast<size_t>(row)] = std::move(key);
    }
    int marked = 0;
    for (int row = 0; row < list.size(); ++row) {
        const QString& key = keys[static_cast<size_t>(row)];
        if (!key.isEmpty() && proposals.value(key) > 1) {
            list.at(row).setConflict(true);
            ++marked;
        }
    }
    return marked;
}

}  // namespace tavrin
