#include "platform/images/RecognizerRole.h"
#include "platform/process/ProcessLimits.h"
#include "recognition/ArchiveReader.h"
#include "recognition/Cage.h"
#include "recognition/ImageDecoder.h"
#include "recognition/ImageServer.h"
#include "recognition/MediaLibrary.h"

#include <algorithm>
#include <charconv>
#include <chrono>
#include <cstddef>
#include <cstdio>
#include <fontconfig/fontconfig.h>
#include <iterator>
#include <malloc.h>
#include <opencv2/core/utility.hpp>
#include <optional>
#include <string>
#include <string_view>
#include <unistd.h>

namespace {

using orlen::RecognizerRole;

/// Thousands of pictures need less; a process that reaches it is replaced.
constexpr std::chrono::hours kProcessorTime{2};
constexpr int kStandardInput = 0;
constexpr std::size_t kTrialMemory = 1'500UL * 1024 * 1024;

std::optional<std::size_t> number(std::string_view text)
{
    std::size_t value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    return error == std::errc() && end == text.data() + text.size() ? std::optional(value) : std::nullopt;
}

std::optional<RecognizerRole> roleNamed(std::string_view name)
{
    const auto* const found = std::ranges::find(orlen::kRecognizerRoles, name);
    return found == std::end(orlen::kRecognizerRoles)
               ? std::nullopt
               : std::optional(static_cast<RecognizerRole>(found - orlen::kRecognizerRoles));
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

bool prepare(std::size_t memory, RecognizerRole role)
{
    // Otherwise libraries with threads would each get an arena that never shrinks.
    ::mallopt(M_ARENA_MAX, 2);
    if (!orlen::ProcessLimits::apply({allowedMemory(memory), kProcessorTime}))
        return false;
    // One picture at a time on one core: there is a process per core.
    cv::setNumThreads(1);
    orlen::ImageDecoder::prepare();
    orlen::ArchiveReader::prepare();
    if (role == RecognizerRole::media)
        (void)orlen::MediaLibrary::load(); // Without it, nothing is told.
    if (role == RecognizerRole::pages)
        (void)::FcInit(); // Without it, letters of fonts that are in no document are missing.
    return true;
}

int tryOut()
{
    // Before libraries store their own variables there.
    const bool isBare = environ == nullptr || *environ == nullptr;
    // The one with the widest cage.
    if (!prepare(kTrialMemory, RecognizerRole::pages))
        return 1;
    orlen::CageReport report = orlen::Cage::tried(orlen::Cage::lock(RecognizerRole::pages));
    report.attempts.push_back({orlen::CageReport::Wall::environment, "find a variable", isBare});
    const std::string text = report.encoded();
    return std::fputs(text.c_str(), stdout) < 0 || std::fflush(stdout) != 0 ? 1 : 0;
}

} // namespace

/// The program Orlen hands pictures to, through a socket that is its standard input.
int main(int argc, char** argv)
{
    if (argc == 2 && argv[1] == std::string_view(orlen::CageReport::kArgument))
        return tryOut();
    constexpr int kArguments = 5;
    const auto memory = argc == kArguments ? number(argv[1]) : std::nullopt;
    const auto picture = argc == kArguments ? number(argv[2]) : std::nullopt;
    const auto idle = argc == kArguments ? number(argv[3]) : std::nullopt;
    const auto role = argc == kArguments ? roleNamed(argv[4]) : std::nullopt;
    if (!memory || !picture || !idle || !role) {
        std::fputs("orlen-recognizer is started by orlen.\n", stderr);
        return 2;
    }
    if (!prepare(*memory, *role))
        return 1;
    (void)orlen::Cage::lock(*role);
    orlen::ProcessLimits::endWithOther(kStandardInput);
    orlen::ImageServer::serve(kStandardInput,
                              {std::chrono::seconds(*picture), std::chrono::milliseconds(*idle)});
    return 0;
}
