#include "cli/TerminalProgress.h"

#include <unistd.h>

namespace tavrin::cli {

namespace {
constexpr qint64 kQuietStartMs = 500;
constexpr int kBarWidth = 30;
}  // namespace

TerminalProgress::TerminalProgress(std::FILE* stream)
    : m_stream(stream)
    , m_enabled(::isatty(::fileno(stream)) == 1)
{
    m_running.start();
}

TerminalProgress::~TerminalProgress()
{
    clear();
}

void TerminalProgress::progress(const Progress& progress)
{
    if (!m_enabled || progress.total <= 0 || m_running.elapsed() < kQuietStartMs)
        return;
    const int filled = static_cast<int>(static_cast<qint64>(kBarWidth) * progress.done / progress.total);
    const int percent = static_cast<int>(100LL * progress.done / progress.total);
    std::fprintf(m_stream, "\r[%-*s] %3d%% %d/%d", kBarWidth, QByteArray(filled, '#').constData(), percent,
                 progress.done, progress.total);
    std::fflush(m_stream);
    m_drawn = true;
}

void TerminalProgress::clear()
{
    if (!m_drawn)
        return;
    std::fprintf(m_stream, "\r\033[K");
    std::fflush(m_stream);
    m_drawn = false;
}

}  // namespace tavrin::cli
