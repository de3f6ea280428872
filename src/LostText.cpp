#include "LostText.h"

#include "Status.h"

namespace LostText {

namespace {

bool& State()
{
    static bool bLost = false;
    return bLost;
}

}  // namespace

void Note()
{
    State() = true;
}

void Forget()
{
    State() = false;
}

void Check()
{
    if (State())
        throw FAULT;
}

}  // namespace LostText
