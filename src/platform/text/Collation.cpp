#include "platform/text/Collation.h"

#include <unicode/ucol.h>

namespace orlen {

Collation::Collation(std::span<const std::string> languages)
{
    UErrorCode status = U_ZERO_ERROR;
    m_collator.reset(::ucol_open(languages.empty() ? "" : languages.front().c_str(), &status));
    if (U_FAILURE(status))
        m_collator.reset();
    else
        ::ucol_setStrength(m_collator.get(), UCOL_SECONDARY); // letters and accents count, case does not
}

void Collation::Close::operator()(UCollator* collator) const
{
    ::ucol_close(collator);
}

bool Collation::comesBefore(std::string_view a, std::string_view b) const
{
    if (!m_collator)
        return a < b;
    UErrorCode status = U_ZERO_ERROR;
    const auto length = [](std::string_view text) { return static_cast<std::int32_t>(text.size()); };
    return ::ucol_strcollUTF8(m_collator.get(), a.data(), length(a), b.data(), length(b), &status) ==
           UCOL_LESS;
}

} // namespace orlen
