#pragma once

#include <QObject>
#include <QString>
#include <QTimer>

namespace tavrin {

class ListController;
class RenameController;
class SessionController;

// Previews by itself shortly after the options or the listed items change, so the New Name
// column follows what the user types. Changes that come in quick succession collapse into
// one preview 0.4 s after the last of them. Only the first records up to the limit are
// previewed unless the user asked for all of them, so that a long list does not slow typing.
class LivePreview : public QObject {
    Q_OBJECT

public:
    static constexpr int DelayMilliseconds = 400;
    static constexpr char DefaultFilesLimit[] = "200";

    explicit LivePreview(RenameController& rename);

    bool isLivePreviewEnabled() const { return m_isLivePreviewEnabled; }
    bool isLivePreviewAllFiles() const { return m_isLivePreviewAllFiles; }
    // The limit as the user typed it; read as a number of at least 1.
    const QString& livePreviewFilesLimit() const { return m_livePreviewFilesLimit; }
    // How many records a live preview covers; -1 for all.
    int recordLimit() const;

    // Turning it on previews at once, so the column is up to date before the first change.
    void setLivePreviewEnabled(bool enabled);
    void setCoverage(bool allFiles, const QString& filesLimit);

    bool isTimerActive() const { return m_quickPreviewTimer.isActive(); }
    // Forgets a live preview that is waiting to start: a full preview makes it out of date.
    void disarm() { m_quickPreviewTimer.stop(); }

signals:
    void stateChanged();

private:
    void scheduleQuickPreview();
    void quickPreviewTimerMethod();

    RenameController& m_rename;
    QTimer m_quickPreviewTimer;
    bool m_isLivePreviewEnabled = false;
    bool m_isLivePreviewAllFiles = false;
    QString m_livePreviewFilesLimit = QString::fromLatin1(DefaultFilesLimit);
};

} // namespace tavrin
