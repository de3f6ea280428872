#include "base/Complain.h"

#include <iostream>

namespace host {

void Complain(const std::string& strWhat)
{
    std::cout.flush();
    std::cerr << "kzekamok: " << strWhat << '\n';
}

}  // namespace host
