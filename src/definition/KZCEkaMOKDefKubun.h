// A tag for a classification; behaves as a plain tag.
#pragma once

#include "KZCEkaMOKDefineNode.h"

class KZCEkaMOKDefKubun final : public KZCEkaMOKDefineNode
{};
