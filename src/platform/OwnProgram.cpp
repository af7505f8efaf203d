#include "platform/OwnProgram.h"

namespace orlen::OwnProgram {

std::string_view identifier()
{
    return "io.github.orlen.Orlen";
}

} // namespace orlen::OwnProgram
