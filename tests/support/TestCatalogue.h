#pragma once

#include <string>

/// Catalogues of texts for tests.
namespace orlen::TestCatalogue {

/// Compiles a catalogue to FOLDER/LANGUAGE/LC_MESSAGES/orlen.mo. `plurals` is the header's rule, `entries`
/// what follows the header. The test fails if that is no catalogue.
void write(const std::string& folder, const std::string& language, const std::string& plurals,
           const std::string& entries);

} // namespace orlen::TestCatalogue
