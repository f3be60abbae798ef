#pragma once

#include "core/engine/Pipeline.h"
#include "core/list/FileList.h"
#include "core/log/LogRecovery.h"
#include "core/log/RenameLogReader.h"
#include "core/profiles/Settings.h"
#include "core/text/NameParts.h"

#include <QDir>
#include <QFile>
#include <QMap>
#include <QStringList>
#include <sys/stat.h>

// What the reliability suites check after every batch, by device and inode rather than by
// name: no item lost, none overwritten, none moved out of its folder, and the logs naming
// exactly the renames that happened.
namespace tavrin::test {

// The stress suites run this many rounds; TAVRIN_STRESS_ITERATIONS asks for more.
inline int stressIterations(int byDefault)
{
    const int asked = qEnvironmentVariableIntValue("TAVRIN_STRESS_ITERATIONS");
    return asked > 0 ? asked : byDefault;
}

struct Item {
    QByteArray name;
    QByteArray content; // a file's bytes, a link's target; empty for a folder
    bool operator==(const Item&) const = default;
};

// The items of one folder by inode.
using Snapshot = QMap<quint64, Item>;

inline Snapshot snapshot(const QString& folder)
{
    Snapshot items;
    const QByteArray base = QFile::encodeName(folder) + '/';
    for (const QString& name : QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot)) {
        const QByteArray path = base + QFile::encodeName(name);
        struct stat info {};
        if (::lstat(path.constData(), &info) != 0)
            continue;
        QByteArray content;
        if (S_ISLNK(info.st_mode)) {
            char target[4096];
            const ssize_t size = ::readlink(path.constData(), target, sizeof target);
            content = QByteArray(target, size > 0 ? size : 0);
        } else if (S_ISREG(info.st_mode)) {
            QFile file(QFile::decodeName(path));
            content = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
        }
        items.insert(info.st_ino, {QFile::encodeName(name), content});
    }
    return items;
}

// Every entry of every log of the folder, once the logs of killed batches are finished.
inline QList<RenameLogEntry> loggedEntries(const QString& logs)
{
    recoverInterruptedLogs(logs);
    QList<RenameLogEntry> entries;
    for (const QString& name : QDir(logs).entryList(QDir::Files, QDir::Time | QDir::Reversed)) {
        if (const auto contents = readLogEntries(QDir(logs).filePath(name)))
            entries += contents->entries;
    }
    return entries;
}

// The broken guarantees between two snapshots of one folder around an apply; `entries` are
// the logged renames. Empty when all hold. Items an outside process made hold "racer".
inline QStringList brokenGuarantees(const Snapshot& before, const Snapshot& after, const QList<RenameLogEntry>& entries)
{
    QStringList broken;
    QMap<quint64, const RenameLogEntry*> byInode;
    for (const RenameLogEntry& entry : entries)
        byInode.insert(entry.inode, &entry);
    for (auto it = before.begin(); it != before.end(); ++it) {
        const QString old = QFile::decodeName(it->name);
        if (!after.contains(it.key())) {
            broken << QStringLiteral("lost or moved out of its folder: %1").arg(old);
            continue;
        }
        const Item& now = after[it.key()];
        if (now.content != it->content)
            broken << QStringLiteral("content changed: %1").arg(old);
        if (now.name != it->name && !byInode.contains(it.key()))
            broken << QStringLiteral("renamed without a log entry: %1 -> %2").arg(old, QFile::decodeName(now.name));
        const RenameLogEntry* entry = byInode.value(it.key());
        if (entry && now.name != it->name && QFile::encodeName(storedName(entry->targetName)) != now.name)
            broken << QStringLiteral("the log names another new name: %1").arg(old);
    }
    for (auto it = after.begin(); it != after.end(); ++it) {
        if (!before.contains(it.key()) && it->content != "racer")
            broken << QStringLiteral("an item appeared: %1").arg(QFile::decodeName(it->name));
    }
    return broken;
}

// Previews and applies the settings over every item of the folder.
inline ApplyOutcome applyBatch(const QString& folder, const QString& logs, const Settings& settings,
    const ContinueWithoutLog& continueWithoutLog = nullptr)
{
    const std::atomic_bool noCancel {false};
    FileList files;
    files.addFiles({folder}, ScanOptions {false, true, false}, noCancel);
    const PropertyOptionValues values(settings);
    Pipeline pipeline(files, values);
    pipeline.preview(noCancel, nullptr);
    return pipeline.applyRenames(logs, continueWithoutLog, noCancel, nullptr);
}

}  // namespace tavrin::test
