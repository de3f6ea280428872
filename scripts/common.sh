# Shared by the scripts; sourced.
strRoot=$(cd "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/.." && pwd)

say()
{
    printf '== %s\n' "$*"
}

# All C++ files of the project, one a line.
source_files()
{
    (cd "$strRoot" && find include src host tests bench fuzz \( -name '*.h' -o -name '*.cpp' \) | LC_ALL=C sort)
}
