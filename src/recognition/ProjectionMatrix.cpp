#include "recognition/ProjectionMatrix.h"

// The file's size is checked while configuring.
asm(".section .rodata\n"
    ".balign 16\n"
    ".global orlen_print_projection\n"
    "orlen_print_projection:\n"
    ".incbin \"" ORLEN_PRINT_PROJECTION "\"\n"
    ".previous\n");

extern "C" const std::uint16_t
    orlen_print_projection[orlen::ProjectionMatrix::kRows * orlen::FeaturePrint::kLength];

namespace orlen {

std::span<const std::uint16_t, ProjectionMatrix::kRows * FeaturePrint::kLength> ProjectionMatrix::values()
{
    return orlen_print_projection;
}

} // namespace orlen
