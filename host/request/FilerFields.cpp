#include "request/FilerFields.h"

#include <algorithm>

namespace host {

std::span<const FilerField> ArgumentsOf(Family eFamily)
{
    switch (eFamily) {
        case Family::Base:
            return BASE_ARGUMENTS;
        case Family::Finance:
            return FINANCE_ARGUMENTS;
        case Family::CrossBorder:
            return CROSSBORDER_ARGUMENTS;
    }
    return {};
}

std::optional<FilerField> FieldOfArgument(Family eFamily, long lArgument)
{
    const std::span<const FilerField> arguments = ArgumentsOf(eFamily);
    const long lIndex = lArgument - FIRST_FILER_ARGUMENT;
    if (lIndex < 0 || lIndex >= static_cast<long>(arguments.size()))
        return std::nullopt;
    return arguments[static_cast<std::size_t>(lIndex)];
}

bool Takes(Family eFamily, FilerField eField)
{
    return std::ranges::find(ArgumentsOf(eFamily), eField) != ArgumentsOf(eFamily).end();
}

}  // namespace host
