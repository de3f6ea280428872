// Stops exceptions of both languages. Written in C++: the Objective-C run-time ends the process
// when a C++ exception reaches a frame with @try, while a C++ handler takes what either language
// throws.
#pragma once

#ifdef __cplusplus
extern "C"
{
#endif

    /// Runs a step. Whatever it throws or raises is dropped, without a log.
    void RunGuarded(void (*pStep)(void*), void* pContext);

#ifdef __cplusplus
}
#endif
