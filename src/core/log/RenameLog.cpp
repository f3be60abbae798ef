#include "core/log/RenameLog.h"

#include "core/log/LogFileName.h"
#include "core/log/RenameLogFormat.h"
#include "core/platform/FileOperations.h"
#include "core/platform/SystemCalls.h"
#include "core/text/LocalizedStrings.h"
#include "core/text/NameParts.h"

#include <QFile>
#include <QScopeGuard>
#include <cerrno>

namespace tavrin {

namespace {

// More logs than this within seconds of each other means something else is wrong.
constexpr int maxSecondsLater = 120;
// The whole document, while it is written afresh, before it gets its finished name.
constexpr char partSuffix[] = ".part";

}  // namespace

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

QString moveToFinishedLogName(const QString& sourcePath, const QString& folder, const QString& interimName,
    int count, const std::function<bool(const QString&)>& isSameLog)
{
    for (int secondsLater = 0; secondsLater <= maxSecondsLater; ++secondsLater) {
        const QString finishedName = logfilename::finishedFileName(interimName, count, secondsLater);
        if (finishedName.isEmpty()) {
            errno = EINVAL;
            return QString();
        }
        const QString finishedPath = joinPath(folder, finishedName);
        const FileResult moved = moveItemNoReplace(sourcePath, finishedPath);
        if (moved.ok()) {
            if (!syncParentFolder(QFile::encodeName(finishedPath).constData()))
                qWarning("Error in saveLog : %s", qPrintable(qt_error_string(errno)));
            return finishedPath;
        }
        if (moved.outcome != FileOutcome::TargetExists) {
            errno = moved.error;
            return QString();
        }
        if (secondsLater == 0 && isSameLog && isSameLog(finishedPath))
            return QFile::remove(sourcePath) ? finishedPath : QString();
    }
    errno = EEXIST;
    return QString();
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
    // Synced, file and folder, so that no rename reaches the disk before its way back does.
    if (!m_journal.append(logxml::documentHead(type)) || !m_journal.sync()
        || !syncParentFolder(QFile::encodeName(m_path).constData())) {
        abandonFile("createLogFile");
        QFile::remove(m_path);
        return false;
    }
    m_createdFile = true;
    m_confirmedSize = m_journal.size();
    return true;
}

bool RenameLog::addLogEntry(const QString& sourcePath, const QString& targetPath, quint64 device, quint64 inode)
{
    // An entry left open means its rename may well have happened: keeping it is the safe side.
    if (m_pending)
        confirmEntry();
    m_pending = RenameLogEntry::fromPaths(sourcePath, targetPath, device, inode);
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
    m_finishError.clear();
    // The "#" file stays open, and so locked, until it has its finished name: a program starting
    // meanwhile must not take it for the log of a killed batch and finish it a second time.
    const auto closeJournal = qScopeGuard([this] { m_journal.close(); });
    if (m_path.isEmpty())
        return QString();
    const QString path = m_journal.isOpen() ? closeJournalFile() : writeWholeDocument();
    if (!path.isEmpty())
        m_createdFile = false;
    return path;
}

// The "#" file holds the head and every confirmed entry: closing its root makes it the
// finished document, which then only needs its name.
QString RenameLog::closeJournalFile()
{
    const bool closed = m_entries.isEmpty()
        ? m_journal.truncateTo(0) && m_journal.append(logxml::document(m_type, {}))
        : m_journal.append(QByteArray("</") + logxml::Root + ">\n");
    if (!closed || !m_journal.sync())
        return failFinish(m_journal.lastError());
    const QString path = moveToFinishedLogName(m_path, finishedFolder(), lastPathComponent(m_path), renamedCount());
    if (path.isEmpty() && errno == EXDEV)
        return writeWholeDocument();
    return path.isEmpty() ? failFinish(qt_error_string(errno)) : path;
}

QString RenameLog::finishedFolder() const
{
    QString folder = parentPath(m_path);
    return folder.replace(QLatin1Char('#'), QString::number(renamedCount()));
}

QString RenameLog::writeWholeDocument()
{
    const QString interimName = lastPathComponent(m_path);
    const QString partPath = joinPath(finishedFolder(), interimName + QLatin1String(partSuffix));
    JournalFile part;
    if (!part.createExclusive(partPath))
        return failFinish(part.lastError());
    if (!part.append(logxml::document(m_type, m_entries)) || !part.sync()) {
        const QString reason = part.lastError();
        part.close();
        QFile::remove(partPath);
        return failFinish(reason);
    }
    const QString path = moveToFinishedLogName(partPath, finishedFolder(), interimName, renamedCount());
    part.close();
    if (path.isEmpty()) {
        const QString reason = qt_error_string(errno);
        QFile::remove(partPath);
        return failFinish(reason);
    }
    if (m_createdFile)
        deleteLogFile(m_path);
    return path;
}

// Only a "#" log that could not be finished is a failure to report: when there was none, the
// user already chose to rename without a log.
QString RenameLog::failFinish(const QString& reason)
{
    if (m_createdFile)
        m_finishError = localized("LOGFINISHFAILED").arg(m_path, reason);
    qWarning("Error in saveLog : %s", qPrintable(reason));
    return QString();
}

// A file that can no longer be trusted to grow correctly is closed where it stands: what it
// holds so far is still a readable record of the renames confirmed before.
void RenameLog::abandonFile(const char* operation)
{
    qWarning("Error in %s : %s", operation, qPrintable(m_journal.lastError()));
    m_journal.close();
}

}  // namespace tavrin
