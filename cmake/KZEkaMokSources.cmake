# Sources are listed by name. Every list goes through kzekamok_sources, so that the lists can be
# compared with the folders by CheckSourceList.cmake.

# Notes the files of a list, which are relative to the current folder.
# strOutput  Variable that receives the list.
function(kzekamok_sources strOutput)
    foreach(strFile IN LISTS ARGN)
        set_property(GLOBAL APPEND PROPERTY KZEKAMOK_LISTED_SOURCES
            "${CMAKE_CURRENT_SOURCE_DIR}/${strFile}")
    endforeach()
    set(${strOutput} "${ARGN}" PARENT_SCOPE)
endfunction()

# Writes all noted files, one a line, for CheckSourceList.cmake.
function(kzekamok_write_source_list)
    get_property(listSources GLOBAL PROPERTY KZEKAMOK_LISTED_SOURCES)
    list(SORT listSources)
    list(JOIN listSources "\n" strSources)
    file(WRITE "${PROJECT_BINARY_DIR}/listed-sources.txt" "${strSources}\n")
endfunction()
