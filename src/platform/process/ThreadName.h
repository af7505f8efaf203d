#pragma once

#include <pthread.h>

namespace orlen {

/// Names the calling thread for debuggers and process listings. A name longer than 15 bytes has no effect.
inline void nameThisThread(const char* name)
{
    ::pthread_setname_np(::pthread_self(), name);
}

} // namespace orlen
