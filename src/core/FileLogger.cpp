#include "core/FileLogger.h"

#include "core/AceCleanupLogger.h"

#include <mutex>

namespace Quorvex
{
namespace
{

std::mutex s_Making;

} // namespace

Logger* FileLogger::make()
{
    if (m_Made.load(std::memory_order_acquire))
    {
        return m_pLogger.load(std::memory_order_acquire);
    }
    const std::lock_guard<std::mutex> lock(s_Making);
    if (!m_Made.load(std::memory_order_relaxed))
    {
        m_pLogger.store(new AceCleanupLogger(m_Category, &m_pLogger), std::memory_order_release);
        m_Made.store(true, std::memory_order_release);
    }
    return m_pLogger.load(std::memory_order_acquire);
}

} // namespace Quorvex
