#include "core/engine/FolderPathIndex.h"

#include "core/list/FileList.h"

#include <utility>
#include <vector>

namespace tavrin {

FolderPathIndex::FolderPathIndex(const FileList& list)
{
    for (int row = 0; row < list.size(); ++row)
        m_rowByPath.emplace(list.at(row).fullPath(), row);
}

void FolderPathIndex::itemMoved(FileList& list, const QString& source, const QString& target)
{
    // "/a/b/" sorts right before everything below "/a/b" and after "/a/b" itself, and
    // "/a/b-c" cannot slip in between, since every path below starts with the full prefix.
    const QString prefix = source + QLatin1Char('/');
    std::vector<std::pair<QString, int>> moved;
    if (auto self = m_rowByPath.find(source); self != m_rowByPath.end()) {
        moved.emplace_back(target, self->second);
        m_rowByPath.erase(self);
    }
    auto it = m_rowByPath.lower_bound(prefix);
    while (it != m_rowByPath.end() && it->first.startsWith(prefix)) {
        const QString rewritten = target + it->first.mid(source.size());
        list.at(it->second).setFullPath(rewritten);
        moved.emplace_back(rewritten, it->second);
        it = m_rowByPath.erase(it);
    }
    for (auto& [path, row] : moved)
        m_rowByPath.emplace(std::move(path), row);
}

}  // namespace tavrin
