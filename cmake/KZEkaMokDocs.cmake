# The target `docs`: the reference of the public headers, by Doxygen. Any warning makes it fail.
# The Objective-C classes bear the names of the C++ classes, so they have a reference of their own.
#   <build>/docs/api/index.html     C++ and C
#   <build>/docs/objc/index.html    Objective-C
set(KZEKAMOK_HAS_DOCS FALSE)
if(NOT KZEKAMOK_BUILD_DOCS AND NOT BUILD_TESTING)
    return()
endif()

find_package(Doxygen 1.9.4 QUIET)
if(NOT DOXYGEN_FOUND)
    if(KZEKAMOK_BUILD_DOCS)
        message(FATAL_ERROR "KZEKAMOK_BUILD_DOCS needs Doxygen 1.9.4 (Debian: doxygen)")
    endif()
    message(STATUS "API reference: left out, as there is no Doxygen")
    return()
endif()
set(KZEKAMOK_HAS_DOCS TRUE)

# Writes a configuration to <build>/docs/<name>.doxyfile.
function(kzekamok_write_doxyfile strName strDocsName strMainPage strFolder strDocsMapping)
    set(strDocsOutput "${PROJECT_BINARY_DIR}/docs/${strName}")
    set(strDocsMainPage "${PROJECT_SOURCE_DIR}/docs/${strMainPage}")
    set(strDocsInput "\"${strDocsMainPage}\" \"${PROJECT_SOURCE_DIR}/${strFolder}\"")
    file(MAKE_DIRECTORY "${strDocsOutput}")
    configure_file("${PROJECT_SOURCE_DIR}/docs/Doxyfile.in"
        "${PROJECT_BINARY_DIR}/docs/${strName}.doxyfile" @ONLY)
endfunction()

kzekamok_write_doxyfile(api "KZEkaMok" api.md include/KZEkaMok "")
kzekamok_write_doxyfile(objc "KZEkaMok for Objective-C" api-objc.md objc/include/KZEkaMok
    h=Objective-C)

# Part of the build if it is asked for, otherwise of the tests alone.
set(strAll "")
if(KZEKAMOK_BUILD_DOCS)
    set(strAll ALL)
endif()
add_custom_target(docs ${strAll}
    COMMAND Doxygen::doxygen "${PROJECT_BINARY_DIR}/docs/api.doxyfile"
    COMMAND Doxygen::doxygen "${PROJECT_BINARY_DIR}/docs/objc.doxyfile"
    COMMENT "Making the API reference in ${PROJECT_BINARY_DIR}/docs"
    VERBATIM)
