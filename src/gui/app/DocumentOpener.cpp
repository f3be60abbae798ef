#include "gui/app/DocumentOpener.h"

#include "core/text/NameParts.h"
#include "gui/control/ListController.h"

#include <utility>

namespace tavrin {

namespace {

bool hasExtension(const QString& path, const char* extension)
{
    return splitNameAndExtension(lastPathComponent(path))
               .extension.compare(QLatin1String(extension), Qt::CaseInsensitive)
        == 0;
}

} // namespace

DocumentOpener::DocumentOpener(ListController& list, QObject* parent)
    : QObject(parent)
    , m_list(list)
{
    m_loadFilesTimer.setSingleShot(true);
    m_loadFilesTimer.setInterval(BatchMilliseconds);
    connect(&m_loadFilesTimer, &QTimer::timeout, this, &DocumentOpener::loadCollectedFiles);
}

void DocumentOpener::openFiles(const QStringList& paths)
{
    for (const QString& path : paths)
        openFile(path);
}

void DocumentOpener::openFile(const QString& path)
{
    if (m_list.isExecuting() || path.isEmpty())
        return;
    if (hasExtension(path, "tnrule")) {
        emit ruleFileOpened(path);
    } else if (hasExtension(path, "tnprofile")) {
        emit profileFileOpened(path);
    } else {
        m_collectedPaths.append(path);
        m_loadFilesTimer.start();
    }
}

void DocumentOpener::loadCollectedFiles()
{
    const QStringList paths = std::exchange(m_collectedPaths, {});
    m_list.loadFiles(paths);
}

} // namespace tavrin
