// Small texts made of the catalogues of messages, check items and procedures.
#pragma once

#include <cstddef>
#include <string>

#include "EkaMsgTable.h"
#include "form/FormDefinition.h"

namespace host {

/// Keywords of the check items that report a message by themselves, joined by ", "; may be empty.
std::string KeywordsThatReport(KZCEkaMessage_t eMessage);

/// The code that a check reports: its own attribute's, else its keyword's if that has one alone;
/// empty if the keyword reports several or none.
std::string CodeOfCheck(const CheckDefinition& check);

/// Which records of a file a form is for, in the current language: "all records", "record 1",
/// "records 3 to the last", "the last record".
std::string RecordsOfForm(const ProcedureDefinition& procedure, const FormDefinition& form);

}  // namespace host
