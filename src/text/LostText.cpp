#include "text/LostText.h"

#include "fault/Status.h"

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
