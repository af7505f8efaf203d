#include "recognition/ClassifierModels.h"

// The assembler puts the files into the read-only data as they are.
asm(".pushsection .rodata\n"
    ".balign 16\n"
    "orlen_classifier_trees:\n"
    ".incbin \"" ORLEN_CLASSIFIER "-trees.bin\"\n"
    "orlen_classifier_trees_end:\n"
    ".balign 16\n"
    "orlen_classifier_pair:\n"
    ".incbin \"" ORLEN_CLASSIFIER "-pair.bin\"\n"
    "orlen_classifier_pair_end:\n"
    ".balign 16\n"
    "orlen_classifier_network:\n"
    ".incbin \"" ORLEN_CLASSIFIER "-network.onnx\"\n"
    "orlen_classifier_network_end:\n"
    ".popsection\n");

extern "C" {
extern const std::uint8_t orlen_classifier_trees[];
extern const std::uint8_t orlen_classifier_trees_end[];
extern const std::uint8_t orlen_classifier_pair[];
extern const std::uint8_t orlen_classifier_pair_end[];
extern const std::uint8_t orlen_classifier_network[];
extern const std::uint8_t orlen_classifier_network_end[];
}

namespace orlen {

std::span<const std::uint8_t> ClassifierModels::trees()
{
    return {orlen_classifier_trees, orlen_classifier_trees_end};
}

std::span<const std::uint8_t> ClassifierModels::pair()
{
    return {orlen_classifier_pair, orlen_classifier_pair_end};
}

std::span<const std::uint8_t> ClassifierModels::network()
{
    return {orlen_classifier_network, orlen_classifier_network_end};
}

} // namespace orlen
