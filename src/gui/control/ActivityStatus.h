#pragma once

#include <QObject>
#include <QString>

namespace tavrin {

// The status line's account of the window's long operations: what the running one does,
// what the user should know about how the last one ended, and how long it took.
class ActivityStatus : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    // Starts the timing of an operation; finishTiming() ends it.
    void startTiming();
    // Ends the timing and shows "<key's text>: <seconds>".
    void finishTiming(const char* key);
    void clearTimeTaken();
    void showMessage(const QString& text);

    // The elapsed-time line of the last operation; empty after a clear.
    const QString& lastActionTimeTaken() const { return m_lastActionTimeTaken; }

signals:
    // A line for the progress area: what the operation does, then the path it is at; after
    // an operation, what the user should know about its end (an action's error, the log).
    void progressMessage(const QString& text);
    void lastActionTimeTakenChanged(const QString& text);

private:
    // Seconds since 1970 at the start of the last operation.
    double m_startTime = 0;
    QString m_lastActionTimeTaken;
};

} // namespace tavrin
