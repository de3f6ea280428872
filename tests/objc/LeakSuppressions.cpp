// For the leak sanitizer: the Objective-C run-time and GNUstep Base keep selectors and the like
// until the process ends. What the library itself loses is still told.
extern "C" const char* __lsan_default_suppressions()
{
    return "leak:libobjc.so\nleak:libgnustep-base.so\n";
}
