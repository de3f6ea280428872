// Prints parts of a JSON document for test scripts: kzekamok_json_value POINTER [KEY...] < document
//
// Without keys the value at the JSON pointer, a text without quotes. With keys the value is an
// array, and each of its elements gives a line of the values of those keys, separated by tabs.
// Fails on what is no JSON, and if there is no such value.
#include <exception>
#include <iostream>
#include <nlohmann/json.hpp>
#include <string>

namespace {

std::string ToText(const nlohmann::json& value)
{
    return value.is_string() ? value.get<std::string>() : value.dump();
}

}  // namespace

int main(int nCount, char** pArguments)
try {
    const auto document = nlohmann::json::parse(std::cin);
    const auto& value = document.at(nlohmann::json::json_pointer(pArguments[1]));
    if (nCount == 2) {
        std::cout << ToText(value) << '\n';
        return 0;
    }
    for (const auto& element : value) {
        for (int n = 2; n < nCount; ++n)
            std::cout << (n > 2 ? "\t" : "") << ToText(element.at(pArguments[n]));
        std::cout << '\n';
    }
    return 0;
} catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return 1;
}
