#include "platform/ProcessLimits.h"
#include "recognition/ImageDecoder.h"
#include "recognition/ImageServer.h"

#include <charconv>
#include <chrono>
#include <cstddef>
#include <cstdio>
#include <malloc.h>
#include <opencv2/core/utility.hpp>
#include <optional>
#include <string_view>

namespace {

/// Thousands of pictures need less; a process that reaches it is replaced.
constexpr std::chrono::hours kProcessorTime{2};
constexpr int kStandardInput = 0;

std::optional<std::size_t> number(std::string_view text)
{
    std::size_t value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    return error == std::errc() && end == text.data() + text.size() ? std::optional(value) : std::nullopt;
}

std::size_t allowedMemory(std::size_t wanted)
{
#ifdef ORLEN_SANITIZED
    // A sanitizer's shadow of the memory is larger than any limit.
    return wanted * 0;
#else
    return wanted;
#endif
}

} // namespace

/// The program that Orlen hands pictures to, through a socket that is its standard input.
int main(int argc, char** argv)
{
    constexpr int kArguments = 4;
    const auto memory = argc == kArguments ? number(argv[1]) : std::nullopt;
    const auto picture = argc == kArguments ? number(argv[2]) : std::nullopt;
    const auto idle = argc == kArguments ? number(argv[3]) : std::nullopt;
    if (!memory || !picture || !idle) {
        std::fputs("orlen-recognizer is started by orlen.\n", stderr);
        return 2;
    }
    // Libraries with threads of their own would each take an arena that never shrinks.
    ::mallopt(M_ARENA_MAX, 2);
    if (!orlen::ProcessLimits::apply({allowedMemory(*memory), kProcessorTime}))
        return 1;
    // One picture at a time on one core: there is a process for each core.
    cv::setNumThreads(1);
    orlen::ImageDecoder::prepare();
    orlen::ImageServer::serve(kStandardInput,
                              {std::chrono::seconds(*picture), std::chrono::milliseconds(*idle)});
    return 0;
}
