#include "Terminal.h"

#include <unistd.h>

#include <cstdlib>
#include <cstring>
#include <iostream>
#include <string>

namespace lmsdp
{
namespace
{

constexpr std::size_t s_BarWidth = 40;
constexpr std::chrono::seconds s_Patience(1);
constexpr std::chrono::milliseconds s_Pause(100);

bool isPlain()
{
    const char* const term = std::getenv("TERM");
    return term == nullptr || std::strcmp(term, "dumb") == 0;
}

} // namespace

bool wantsColour()
{
    return ::isatty(STDOUT_FILENO) == 1 && std::getenv("NO_COLOR") == nullptr && !isPlain();
}

ProgressBar::ProgressBar(std::size_t total)
    : m_Total(total), m_Wanted(::isatty(STDERR_FILENO) == 1 && !isPlain()), m_Next(Clock::now() + s_Patience)
{
}

ProgressBar::~ProgressBar()
{
    hide();
}

void ProgressBar::update(std::size_t done)
{
    const Clock::time_point now = Clock::now();
    if (!m_Wanted || now < m_Next)
    {
        return;
    }
    m_Next = now + s_Pause;
    m_Shown = true;
    const std::size_t filled = m_Total == 0 ? 0 : done * s_BarWidth / m_Total;
    std::cerr << "\r[" << std::string(filled, '#') << std::string(s_BarWidth - filled, ' ') << "] " << done << '/'
              << m_Total << std::flush;
}

void ProgressBar::hide()
{
    if (m_Shown)
    {
        m_Shown = false;
        std::cerr << "\r\x1B[K" << std::flush;
    }
}

} // namespace lmsdp
