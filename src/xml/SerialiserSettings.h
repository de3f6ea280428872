// How documents are written.
#pragma once

#include <xercesc/util/XercesDefs.hpp>

XERCES_CPP_NAMESPACE_BEGIN
class DOMLSSerializer;
XERCES_CPP_NAMESPACE_END

/// A section that can't be written fails instead of being split, and a new line that the serialiser
/// makes of its own is "_r_n". Throws what the XML library throws.
void ApplySerialiserSettings(XERCES_CPP_NAMESPACE::DOMLSSerializer& serialiser);
