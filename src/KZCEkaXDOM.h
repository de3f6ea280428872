// The type by which the rest of the library holds a document.
#pragma once

#include "KZCXDom.h"

class KZCEkaXDOM : public KZCXDom
{};
