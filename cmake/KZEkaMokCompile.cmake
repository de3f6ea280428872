# How this project's own code is compiled. Link a target of ours to kzekamok_compile, privately.
add_library(kzekamok_compile INTERFACE)

target_compile_options(kzekamok_compile INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wshadow
    "$<$<COMPILE_LANGUAGE:CXX>:-Wsign-conversion;-Wold-style-cast;-Wnon-virtual-dtor;-Woverloaded-virtual>"
    "$<$<COMPILE_LANG_AND_ID:CXX,GNU>:-Wuseless-cast;-Wduplicated-cond;-Wlogical-op>"
    $<$<BOOL:${KZEKAMOK_WARNINGS_AS_ERRORS}>:-Werror>
    -ffunction-sections -fdata-sections)
target_link_options(kzekamok_compile INTERFACE -Wl,--gc-sections)

# No path of the machine that builds gets into a binary: logs and assertions name sources from the
# project's root. A debugger, a sanitizer's trace and a coverage report need the real paths.
set(listPrefixMap "${PROJECT_SOURCE_DIR}/=" "${PROJECT_BINARY_DIR}=build")
foreach(strMap IN LISTS listPrefixMap)
    if(KZEKAMOK_COVERAGE OR KZEKAMOK_SANITIZE)
        target_compile_options(kzekamok_compile INTERFACE "-fmacro-prefix-map=${strMap}")
    else()
        target_compile_options(kzekamok_compile INTERFACE
            "$<IF:$<CONFIG:Debug>,-fmacro-prefix-map=${strMap},-ffile-prefix-map=${strMap}>")
    endif()
endforeach()

if(KZEKAMOK_SANITIZE)
    target_compile_options(kzekamok_compile INTERFACE
        "-fsanitize=${KZEKAMOK_SANITIZE}" -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(kzekamok_compile INTERFACE "-fsanitize=${KZEKAMOK_SANITIZE}")
endif()

if(KZEKAMOK_COVERAGE)
    target_compile_options(kzekamok_compile INTERFACE --coverage)
    target_link_options(kzekamok_compile INTERFACE --coverage)
endif()
