#pragma once

#include <stop_token>

namespace orlen {

/// Cancels a scan. Any thread.
class ScanFlag {
public:
    void cancel() { m_source.request_stop(); }
    [[nodiscard]] bool isCancelled() const { return m_source.stop_requested(); }
    /// For code below the scan, which does not know about scans.
    [[nodiscard]] std::stop_token token() const { return m_source.get_token(); }

private:
    std::stop_source m_source;
};

} // namespace orlen
