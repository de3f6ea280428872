#include "Guard.h"

void RunGuarded(void (*pStep)(void*), void* pContext)
{
    try {
        pStep(pContext);
    } catch (...) {
        return;
    }
}
