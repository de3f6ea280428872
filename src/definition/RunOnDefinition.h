// The one way out of a walk over a loaded definition.
#pragma once

#include "fault/Fault.h"

/// Runs a step over a loaded definition; whatever it throws is logged and becomes FAULT.
template <class Step>
auto RunOnDefinition(const char* szFunction, Step step)
{
    try {
        return step();
    } catch (...) {
        RaiseFault(szFunction, UNEXPECTED_ERROR);
    }
}
