#pragma once

#include <chrono>
#include <cstddef>

namespace lmsdp
{

/// True when standard output shows on a terminal that takes colours.
bool wantsColour();

/// A bar on standard error, if that is a terminal, for work that has taken longer than a second.
class ProgressBar
{
public:
    explicit ProgressBar(std::size_t total);
    ~ProgressBar();
    ProgressBar(const ProgressBar&) = delete;
    ProgressBar& operator=(const ProgressBar&) = delete;

    void update(std::size_t done);

    /// Takes the bar away, so that something else can be printed.
    void hide();

private:
    using Clock = std::chrono::steady_clock;

    const std::size_t m_Total;
    const bool m_Wanted;
    Clock::time_point m_Next;
    bool m_Shown = false;
};

} // namespace lmsdp
