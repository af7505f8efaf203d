#pragma once

#include <pthread.h>

namespace orlen {

/// Names the calling thread for debuggers and process listings; at most 15 bytes, a longer name is not taken.
inline void nameThisThread(const char* name)
{
    ::pthread_setname_np(::pthread_self(), name);
}

} // namespace orlen
