// The kinds of placeholders in the words of check items (validator/ItemCatalogue.h).
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "form/FormDefinition.h"

namespace host {

struct WordContext
{
    const CheckDefinition& check;
    const FormDefinition& form;
    long lOwnColumns = 1;  ///< how many columns the check looks at from its own
};

/// A parameter of the check in the form of a kind, in the current language. Nothing if the kind is
/// unknown or the parameter doesn't have the form that it wants.
std::optional<std::string> WriteKind(std::string_view strKind,
                                     const std::string& strParameter,
                                     const WordContext& context);
bool IsWordKind(std::string_view strKind);

}  // namespace host
