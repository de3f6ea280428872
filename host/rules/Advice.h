// What a filer can do about a message of the catalogue.
#pragma once

#include "EkaMsgTable.h"

namespace host {

/// One or two sentences in the current language: what is wrong and what to do. Never null.
const char* AdviceFor(KZCEkaMessage_t eMessage);

}  // namespace host
