#pragma once

#include "gui/app/TavrinAppController.h"

#include <QByteArray>
#include <QSignalSpy>
#include <QStringList>
#include <unistd.h>

namespace tavrin::test {

// Starts an add and waits for its worker to finish; false when it did not start or did
// not finish in time.
inline bool addAndWait(TavrinAppController& controller, const QStringList& paths)
{
    QSignalSpy finished(&controller, &TavrinAppController::addFinished);
    if (!controller.addFiles(paths))
        return false;
    return finished.wait(20000);
}

// Removes a file made with TempTree::rawFile: QTemporaryDir cannot remove a name that is
// not valid UTF-8 and would leave its folder behind.
struct RawFileRemover {
    QByteArray path;
    ~RawFileRemover() { ::unlink(path.constData()); }
};

// The names of the listed items, in table order.
inline QStringList listedNames(const TavrinAppController& controller)
{
    QStringList names;
    for (const FileSystemItem& item : controller.shownItems())
        names.append(item.filenameWithExtension());
    return names;
}

}  // namespace tavrin::test
