# Compares the listed sources with the folders.
# cmake -DLISTED=FILE -DSOURCE_DIR=DIR -DFOLDERS="src tests" -P CheckSourceList.cmake
cmake_minimum_required(VERSION 3.25)

file(STRINGS "${LISTED}" listListed)
separate_arguments(listFolders UNIX_COMMAND "${FOLDERS}")

set(listFound "")
foreach(strFolder IN LISTS listFolders)
    file(GLOB_RECURSE listFiles
        "${SOURCE_DIR}/${strFolder}/*.c" "${SOURCE_DIR}/${strFolder}/*.cpp"
        "${SOURCE_DIR}/${strFolder}/*.m")
    list(APPEND listFound ${listFiles})
endforeach()
# The consumer is a project of its own.
list(FILTER listFound EXCLUDE REGEX "/tests/install/")

set(bComplete TRUE)
foreach(strFile IN LISTS listListed)
    if(NOT EXISTS "${strFile}")
        message(NOTICE "listed, but there is no such file: ${strFile}")
        set(bComplete FALSE)
    endif()
endforeach()
foreach(strFile IN LISTS listFound)
    if(NOT strFile IN_LIST listListed)
        message(NOTICE "in the folder, but in no list: ${strFile}")
        set(bComplete FALSE)
    endif()
endforeach()
set(listSeen "")
foreach(strFile IN LISTS listListed)
    if(strFile IN_LIST listSeen)
        message(NOTICE "listed twice: ${strFile}")
        set(bComplete FALSE)
    endif()
    list(APPEND listSeen "${strFile}")
endforeach()
if(NOT bComplete)
    message(FATAL_ERROR "the source lists and the folders differ")
endif()
