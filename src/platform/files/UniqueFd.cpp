#include "platform/files/UniqueFd.h"

#include <unistd.h>

namespace orlen {

void UniqueFd::reset()
{
    if (m_fd >= 0) {
        // Not retried on EINTR: Linux has already released the number, and another thread may own it.
        ::close(m_fd);
        m_fd = -1;
    }
}

} // namespace orlen
