// The catalogues as JSON values.
#pragma once

#include <nlohmann/json_fwd.hpp>

#include "form/FormDefinition.h"

namespace host {

/// Every check item, with its words in both languages.
nlohmann::ordered_json CheckItemsToJson();
/// Every message with its advice in both languages.
nlohmann::ordered_json MessagesToJson();
/// A procedure with its forms, items and checks. Words stand in both languages.
nlohmann::ordered_json ProcedureToJson(const ProcedureDefinition& procedure);

}  // namespace host
