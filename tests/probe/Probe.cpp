// What the library finds and writes, told by a program small enough to be copied: beside a resource
// folder, or with the set-user-id bit.
#include <iostream>
#include <string_view>

#include "KZCDebugDump.h"
#include "KZCLoadResource.h"

int main(int nArguments, char** szArguments)
{
    const std::string_view strWhat = nArguments > 1 ? szArguments[1] : "";
    if (strWhat == "bundle") {
        std::cout << KZCLoadResource::getBundlePath() << "\n";
        return 0;
    }
    if (strWhat == "log") {
        KZCDebugDump::InitDebugDump();
        std::cout << (KZCDebugDump::IsOn() ? "on" : "off") << "\n";
        KZCDebugDump::OutputMessage("1234567890123456", 0);
        return 0;
    }
    std::cerr << "usage: kzekamok_probe bundle|log\n";
    return 2;
}
