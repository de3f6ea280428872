#!/usr/bin/env bash
# Takes the project into another one: there it is the library alone, and leaves the other's settings
# as they are.
# subproject.sh WORK_DIR CMAKE GENERATOR CXX_COMPILER
set -euo pipefail

strWork=$1
strCMake=$2
strGenerator=$3
strCxxCompiler=$4
. "$(dirname "${BASH_SOURCE[0]}")/support.bash"
strRoot=$(cd "$strSource/../.." && pwd)

rm -rf "$strWork"
mkdir -p "$strWork/outer"
cat >"$strWork/outer/CMakeLists.txt" <<EOF
cmake_minimum_required(VERSION 3.25)
project(Outer LANGUAGES CXX)
add_subdirectory("$strRoot" inner)
foreach(strTarget KZEkaMok kzekamok kzekamok_tests KZEkaMokObjC)
    if(TARGET \${strTarget})
        message(STATUS "there is \${strTarget}")
    endif()
endforeach()
message(STATUS "build type [\${CMAKE_BUILD_TYPE}], testing [\${BUILD_TESTING}]")
message(STATUS "standard [\${CMAKE_CXX_STANDARD}], packages [\${CPACK_GENERATOR}]")
EOF
"$strCMake" -G "$strGenerator" -DCMAKE_CXX_COMPILER="$strCxxCompiler" \
    -S "$strWork/outer" -B "$strWork/build" >"$strWork/told.txt"
strTold=$(sed -n '/^-- \(there is\|build type\|standard\)/p' "$strWork/told.txt")
expect_equal "$strTold" "-- there is KZEkaMok
-- build type [], testing []
-- standard [], packages []" "what another project gets"
strCache=$(sed -n 's/^CMAKE_BUILD_TYPE:[A-Z]*=//p' "$strWork/build/CMakeCache.txt")
expect_equal "$strCache" "" "build type in the cache"
