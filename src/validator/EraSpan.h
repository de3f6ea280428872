// Whether an era date lies in its era.
#pragma once

#include <span>
#include <string>

#include "calendar/EraTable.h"

namespace EraSpan {

/// The date is real and lies within the span of the era that its text names. A text that names none
/// has no bounds.
/// \param strEraText  Era text or Western text. \param strWestern  The same date's Western text.
bool Holds(const std::string& strEraText,
           const std::string& strWestern,
           std::span<const EraTable::Span> spans);

}  // namespace EraSpan
