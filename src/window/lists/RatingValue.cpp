#include "window/lists/RatingValue.h"

#include "window/lists/DisplayText.h"

namespace orlen {

RatingValue::RatingValue(Rating rating)
    : name(DisplayText::text(rawValue(rating))), label(DisplayText::text(orlen::label(rating))),
      symbol(DisplayText::text(orlen::symbol(rating)))
{
}

} // namespace orlen
