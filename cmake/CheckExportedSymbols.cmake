# Compares what a shared library hands out with the kept list.
# cmake -DNM=PROGRAM -DLIBRARY=FILE -DLIST=FILE -P CheckExportedSymbols.cmake
cmake_minimum_required(VERSION 3.25)

execute_process(COMMAND "${NM}" --dynamic --defined-only --demangle --portability "${LIBRARY}"
    OUTPUT_VARIABLE strOutput COMMAND_ERROR_IS_FATAL ANY)
# The list has plain names.
string(REPLACE "[abi:cxx11]" "" strOutput "${strOutput}")
string(REPLACE ";" "," strOutput "${strOutput}")
string(REPLACE "\n" ";" listLines "${strOutput}")

set(listFound "")
foreach(strLine IN LISTS listLines)
    # name, kind, address, size
    if(NOT strLine MATCHES "^(.+) ([A-Za-z]) [0-9a-f]+( [0-9a-f]+)?$")
        continue()
    endif()
    set(strName "${CMAKE_MATCH_1}")
    set(strKind "${CMAKE_MATCH_2}")
    # Templates of the C++ library are weak and visible in every library that uses them.
    if(strKind MATCHES "^[WVu]$" AND strName MATCHES "(^| |[*&])(std|__gnu_cxx)::")
        continue()
    endif()
    list(APPEND listFound "${strName}")
endforeach()
list(REMOVE_DUPLICATES listFound)

file(STRINGS "${LIST}" listKept)
list(FILTER listKept EXCLUDE REGEX "^#")

set(bSame TRUE)
foreach(strName IN LISTS listFound)
    if(NOT strName IN_LIST listKept)
        message(NOTICE "handed out, but not in the list: ${strName}")
        set(bSame FALSE)
    endif()
endforeach()
foreach(strName IN LISTS listKept)
    if(NOT strName IN_LIST listFound)
        message(NOTICE "in the list, but not handed out: ${strName}")
        set(bSame FALSE)
    endif()
endforeach()
if(NOT bSame)
    message(FATAL_ERROR "the exported symbols and ${LIST} differ")
endif()
