#pragma once

#include <QElapsedTimer>
#include <QString>

namespace tavrin {

// Where long work reports what it is doing: the item being worked on (its path as stored,
// not yet in display form), how many items are done and, when known, how many there are.
struct Progress {
    QString path;
    int done = 0;
    int total = -1;
};

class ProgressObserver {
public:
    virtual ~ProgressObserver() = default;
    virtual void progress(const Progress& progress) = 0;
};

// Forwards at most ~30 reports a second to an observer (which may be null), so that a
// loop over 100,000 items can report every item without flooding a window or a terminal.
class ThrottledProgress {
public:
    explicit ThrottledProgress(ProgressObserver* observer);

    void report(const QString& path, int done, int total = -1);
    // The last report of a run: always forwarded.
    void finish(const QString& path, int done, int total = -1);

private:
    ProgressObserver* m_observer;
    QElapsedTimer m_sinceLast;
};

}  // namespace tavrin
