#include "core/log/RenameLog.h"

#include "core/log/RenameLogFormat.h"
#include "core/text/NameParts.h"

#include <QFile>
#include <QSaveFile>
#include <QScopeGuard>

namespace tavrin {

QString getNewLogFileName(const QDateTime& now)
{
    return QStringLiteral("Log %1-#.xml")
        .arg(now.toLocalTime().toString(QStringLiteral("dd-MM-yyyy HH-mm-ss")));
}

bool deleteLogFile(const QString& path)
{
    QFile file(path);
    if (file.remove())
        return true;
    qWarning("Error in deleteLogFile : %s", qPrintable(file.errorString()));
    return false;
}

bool RenameLog::create(const QString& folder, const QString& type, const QDateTime& now)
{
    m_path = joinPath(folder, getNewLogFileName(now));
    m_type = type;
    m_entries.clear();
    m_pending.reset();
    m_pendingWritten = false;
    m_createdFile = false;
    if (!m_journal.createExclusive(m_path)) {
        qWarning(
            "Error in createLogFile : Could not write document out (%s)", qPrintable(m_journal.lastError()));
        return false;
    }
    if (!m_journal.append(logxml::documentHead(type))) {
        abandonFile("createLogFile");
        QFile::remove(m_path);
        return false;
    }
    m_createdFile = true;
    m_confirmedSize = m_journal.size();
    return true;
}

bool RenameLog::addLogEntry(const QString& sourcePath, const QString& targetPath)
{
    // An entry left open means its rename may well have happened: keeping it is the safe side.
    if (m_pending)
        confirmEntry();
    m_pending = RenameLogEntry::fromPaths(sourcePath, targetPath);
    m_pendingWritten = false;
    if (!m_journal.isOpen())
        return false;
    m_pendingWritten = m_journal.append(logxml::entryLine(*m_pending));
    if (!m_pendingWritten)
        abandonFile("addLogEntry");
    return m_pendingWritten;
}

void RenameLog::confirmEntry()
{
    if (!m_pending)
        return;
    m_entries.append(*m_pending);
    m_pending.reset();
    if (m_pendingWritten)
        m_confirmedSize = m_journal.size();
    m_pendingWritten = false;
}

void RenameLog::dropLastEntry()
{
    if (!m_pending)
        return;
    if (m_pendingWritten && !m_journal.truncateTo(m_confirmedSize))
        abandonFile("dropLastEntry");
    m_pending.reset();
    m_pendingWritten = false;
}

QString RenameLog::finish()
{
    if (m_pending)
        confirmEntry();
    // The "#" file stays open, and so locked, until it is gone: a program starting meanwhile
    // must not take it for the log of a killed batch and finish it a second time.
    const auto closeJournal = qScopeGuard([this] { m_journal.close(); });
    if (m_path.isEmpty())
        return QString();
    const QString path = finalPath();
    // A log written by another batch in the same second with the same count is replaced.
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(logxml::document(m_type, m_entries)) < 0
        || !file.commit()) {
        qWarning("Error in saveLog : %s", qPrintable(file.errorString()));
        return QString();
    }
    if (m_createdFile)
        deleteLogFile(m_path);
    m_createdFile = false;
    return path;
}

QString RenameLog::finalPath() const
{
    QString path = m_path;
    return path.replace(QLatin1Char('#'), QString::number(renamedCount()));
}

// A file that can no longer be trusted to grow correctly is closed where it stands: what it
// holds so far is still a readable record of the renames confirmed before.
void RenameLog::abandonFile(const char* operation)
{
    qWarning("Error in %s : %s", operation, qPrintable(m_journal.lastError()));
    m_journal.close();
}

}  // namespace tavrin
