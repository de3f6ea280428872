# Looks for what the Objective-C classes need: an Objective-C compiler and GNUstep Base.
# KZEKAMOK_HAS_OBJC tells whether they are built; if so, kzekamok_objc_compile holds how.
set(KZEKAMOK_HAS_OBJC FALSE)
if(NOT KZEKAMOK_BUILD_OBJC MATCHES "^(AUTO|ON|OFF)$")
    message(FATAL_ERROR "KZEKAMOK_BUILD_OBJC must be AUTO, ON or OFF")
endif()
if(KZEKAMOK_BUILD_OBJC STREQUAL "OFF")
    message(STATUS "Objective-C classes: switched off (KZEKAMOK_BUILD_OBJC)")
    return()
endif()

set(strObjCMissing "")
find_path(KZEKAMOK_GNUSTEP_INCLUDE_DIR Foundation/Foundation.h PATH_SUFFIXES GNUstep)
find_library(KZEKAMOK_GNUSTEP_BASE gnustep-base)
mark_as_advanced(KZEKAMOK_GNUSTEP_INCLUDE_DIR KZEKAMOK_GNUSTEP_BASE)
if(NOT KZEKAMOK_GNUSTEP_INCLUDE_DIR OR NOT KZEKAMOK_GNUSTEP_BASE)
    set(strObjCMissing "GNUstep Base isn't there (Debian: libgnustep-base-dev)")
else()
    # A compiler that was missing may have come since. It must be the C++ compiler's fellow, as
    # sanitizers of different compilers don't go together.
    if(NOT CMAKE_OBJC_COMPILER)
        unset(CMAKE_OBJC_COMPILER CACHE)
        if(NOT DEFINED ENV{OBJC})
            cmake_path(GET CMAKE_CXX_COMPILER FILENAME strObjCCompiler)
            if(CMAKE_CXX_COMPILER_ID MATCHES "Clang")
                string(REPLACE "clang++" "clang" strObjCCompiler "${strObjCCompiler}")
            elseif(strObjCCompiler STREQUAL "c++")
                set(strObjCCompiler gcc)
            else()
                string(REPLACE "g++" "gcc" strObjCCompiler "${strObjCCompiler}")
            endif()
            set(ENV{OBJC} "${strObjCCompiler}")
        endif()
    endif()
    include(CheckLanguage)
    check_language(OBJC)
    if(NOT CMAKE_OBJC_COMPILER)
        set(strObjCMissing "no Objective-C compiler works (Debian: gobjc)")
    endif()
endif()

if(strObjCMissing)
    if(KZEKAMOK_BUILD_OBJC STREQUAL "ON")
        message(FATAL_ERROR "Objective-C classes: ${strObjCMissing}")
    endif()
    message(STATUS "Objective-C classes: left out, ${strObjCMissing}")
    return()
endif()

enable_language(OBJC)
add_library(kzekamok_objc_compile INTERFACE)
# Pedantry asks for a member in every class; GCC finds its own setters' parameters unused.
target_compile_options(kzekamok_objc_compile INTERFACE
    "$<$<COMPILE_LANGUAGE:OBJC>:-std=gnu11;-fexceptions;-fobjc-exceptions>"
    "$<$<COMPILE_LANGUAGE:OBJC>:-fconstant-string-class=NSConstantString>"
    "$<$<COMPILE_LANGUAGE:OBJC>:-Wno-pedantic;-Wno-unused-parameter>")
target_compile_definitions(kzekamok_objc_compile INTERFACE
    GNUSTEP GNUSTEP_BASE_LIBRARY=1 GNU_RUNTIME=1 _NATIVE_OBJC_EXCEPTIONS)
target_include_directories(kzekamok_objc_compile SYSTEM INTERFACE
    "${KZEKAMOK_GNUSTEP_INCLUDE_DIR}")
target_link_libraries(kzekamok_objc_compile INTERFACE gnustep-base objc)
if(CMAKE_OBJC_COMPILER_ID MATCHES "Clang")
    # The run-time's headers are GCC's own; clang takes nothing else from there.
    list(TRANSFORM CMAKE_CXX_IMPLICIT_LINK_DIRECTORIES APPEND "/include" OUTPUT_VARIABLE listObjCDirs)
    find_path(KZEKAMOK_OBJC_INCLUDE_DIR objc/objc.h PATHS ${listObjCDirs})
    mark_as_advanced(KZEKAMOK_OBJC_INCLUDE_DIR)
    if(KZEKAMOK_OBJC_INCLUDE_DIR)
        target_compile_options(kzekamok_objc_compile INTERFACE
            "$<$<COMPILE_LANGUAGE:OBJC>:SHELL:-idirafter ${KZEKAMOK_OBJC_INCLUDE_DIR}>")
    endif()
endif()
set(KZEKAMOK_HAS_OBJC TRUE)
message(STATUS "Objective-C classes: built with ${CMAKE_OBJC_COMPILER_ID}")
