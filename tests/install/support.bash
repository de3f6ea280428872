# For the scripts beside this one, which set strWork (a folder of their own), strCMake,
# strGenerator, strCCompiler, strCxxCompiler and strSamples, the folder of the samples.
strSource=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
unset KZEKAMOK_BUNDLE PKG_CONFIG_PATH PKG_CONFIG_LIBDIR

fail()
{
    echo "FAILED: $1" >&2
    exit 1
}

# expect_equal ACTUAL EXPECTED WHAT
expect_equal()
{
    [ "$1" = "$2" ] || {
        diff <(echo "$2") <(echo "$1") >&2 || true
        fail "$3"
    }
}

# Runs a consumer on a missing file, then on one that passes only with the definition files.
check_consumer()
{
    local strActual
    strActual=$("$1" "$strWork/missing.csv" "$strSamples/PGE5020_pass.csv") ||
        fail "$1 ended with $?"
    expect_equal "$strActual" $'E_FAIL|9999-00001-HE70013E\nS_OK|' "what $1 prints"
}

# Builds the consumers against the tree at a prefix by find_package, and runs them.
consume_by_cmake()
{
    local strPrefix=$1
    local strBuild=$strWork/by-cmake
    # Users of the package have no Xerces-C++ to build with.
    "$strCMake" -S "$strSource" -B "$strBuild" -G "$strGenerator" \
        -DCMAKE_PREFIX_PATH="$strPrefix" \
        -DCMAKE_C_COMPILER="$strCCompiler" -DCMAKE_CXX_COMPILER="$strCxxCompiler" \
        -DCMAKE_DISABLE_FIND_PACKAGE_XercesC=ON
    case $(sed -n 's/^KZEkaMok_DIR:[A-Z]*=//p' "$strBuild/CMakeCache.txt") in
        "$strPrefix"/*) ;;
        *) fail "find_package took another tree than $strPrefix" ;;
    esac
    "$strCMake" --build "$strBuild"
    check_consumer "$strBuild/consumer"
    check_consumer "$strBuild/consumer_c"
}

# Says flags one a line, their folders without detours.
plain_flags()
{
    local strFlag
    for strFlag in "$@"; do
        case $strFlag in
            -I* | -L*) echo "${strFlag:0:2}$(realpath -m "${strFlag:2}")" ;;
            *) echo "$strFlag" ;;
        esac
    done
}

# Builds the consumers against the tree at a prefix by pkg-config, and runs them.
# consume_by_pkg_config PREFIX LIBRARY_FOLDER VERSION
consume_by_pkg_config()
{
    local strPrefix=$1 strLibrary=$2 strVersion=$3
    local strFlags
    local -x PKG_CONFIG_PATH=$strLibrary/pkgconfig
    pkg-config --validate KZEkaMok || fail "the pkg-config file isn't sound"
    expect_equal "$(pkg-config --modversion KZEkaMok)" "$strVersion" "version that pkg-config tells"
    # The flags are words, so they stay unquoted from here on.
    strFlags=$(pkg-config --cflags --libs KZEkaMok)
    # Nothing of Xerces-C++: that is the library's own affair.
    expect_equal "$(plain_flags $strFlags)" \
        "-I$strPrefix/include"$'\n'"-L$strLibrary"$'\n'"-lKZEkaMok" "flags that pkg-config tells"
    "$strCxxCompiler" -std=c++11 "$strSource/main.cpp" -o "$strWork/by-pkg-config" \
        $strFlags "-Wl,-rpath,$strLibrary"
    check_consumer "$strWork/by-pkg-config"
    "$strCCompiler" -std=c99 "$strSource/main.c" -o "$strWork/by-pkg-config-c" \
        $strFlags "-Wl,-rpath,$strLibrary"
    check_consumer "$strWork/by-pkg-config-c"
}

# The name that programs ask the loader for.
soname()
{
    LC_ALL=C readelf --dynamic --wide "$1" | sed -n 's/.*(SONAME).*\[\(.*\)\]/\1/p'
}
