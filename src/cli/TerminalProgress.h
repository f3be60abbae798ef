#pragma once

#include "core/list/Progress.h"

#include <QElapsedTimer>
#include <cstdio>

namespace tavrin::cli {

// A one-line progress bar on standard error, drawn only when standard error is a terminal
// and only once a run has lasted long enough to be worth watching.
class TerminalProgress final : public ProgressObserver {
public:
    explicit TerminalProgress(std::FILE* stream = stderr);
    ~TerminalProgress() override;

    void progress(const Progress& progress) override;

private:
    void clear();

    std::FILE* m_stream;
    bool m_enabled;
    bool m_drawn = false;
    QElapsedTimer m_running;
};

}  // namespace tavrin::cli
