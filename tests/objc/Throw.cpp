// What a class of the host that is written in C++ may do.
#include <stdexcept>

extern "C" void ThrowFromCpp()
{
    throw std::runtime_error("thrown by a test");
}
