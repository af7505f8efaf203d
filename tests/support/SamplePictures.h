#pragma once

#include <string>

/// Pictures with the structure of photographs, for a home folder that is made up.
namespace orlen::SamplePictures {

/// A JPEG file's bytes. The same number gives the same picture; a negative one gives a smaller copy of the
/// picture with that number, a little darker.
[[nodiscard]] std::string photograph(int number);

} // namespace orlen::SamplePictures
