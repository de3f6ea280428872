// A plain tag.
#pragma once

#include "KZCEkaMOKDefineNode.h"

class KZCEkaMOKDefNormal : public KZCEkaMOKDefineNode
{};
