# Shared by the scripts; sourced.
strRoot=$(cd "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/.." && pwd)

say()
{
    printf '== %s\n' "$*"
}

# All C++ and C files of the project, one a line; those in Objective-C have a style of their own.
source_files()
{
    (cd "$strRoot" && find include src host tests bench fuzz examples -not -path '*/objc/*' \( -name '*.h' -o -name '*.c' -o -name '*.cpp' \) | LC_ALL=C sort)
}
