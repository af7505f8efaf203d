#pragma once

#include <stop_token>

namespace orlen {

/// The one way to cancel a scan. Any thread.
class ScanFlag {
public:
    void cancel() { m_source.request_stop(); }
    [[nodiscard]] bool isCancelled() const { return m_source.stop_requested(); }
    /// For the routines below the scan, which know no scan.
    [[nodiscard]] std::stop_token token() const { return m_source.get_token(); }

private:
    std::stop_source m_source;
};

} // namespace orlen
