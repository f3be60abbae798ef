#include "core/log/LogFileCheck.h"
#include "core/log/RenameLogFormat.h"
#include "core/log/RenameLogReader.h"
#include "core/log/UndoRenaming.h"
#include "fuzz/FuzzInput.h"

using namespace tavrin;

// Any file offered as a rename log. What the reader gives back must come back the same once
// written again, names XML cannot hold included.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QString path = fuzz::scratchFile(fuzz::bytesOf(data, size), "log.xml");
    openLogFile(path);
    const std::optional<RenameLogContents> contents = readLogEntries(path);
    if (contents) {
        for (const RenameLogEntry& entry : contents->entries)
            isUndoableEntry(entry);
        const QString again = fuzz::scratchFile(logxml::document(contents->type, contents->entries), "again.xml");
        const std::optional<RenameLogContents> reread = readLogEntries(again);
        fuzz::require(reread && reread->entries.size() == contents->entries.size());
        for (qsizetype i = 0; i < reread->entries.size(); ++i) {
            const RenameLogEntry& before = contents->entries[i];
            const RenameLogEntry& after = reread->entries[i];
            // A name with a lone surrogate has no UTF-8 form, so it cannot survive any file.
            const bool hasUtf8Form = QString::fromUtf8(before.sourceName.toUtf8()) == before.sourceName;
            fuzz::require(!hasUtf8Form || after.sourceName == before.sourceName);
            fuzz::require(after.inode == before.inode);
        }
        QFile::remove(again);
    }
    QFile::remove(path);
    return 0;
}
