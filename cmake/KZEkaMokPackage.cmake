# The Debian packages that `cpack` makes in the build tree. Comes behind all that is installed.
#
# A package is a component of KZEkaMokInstall.cmake, and what Debian wants beside it: copyright and
# changelogs, the manual page compressed. That is left out of `cmake --install`.

# Makes a package of a component. Further arguments name the packages that it needs in exactly this
# version.
function(kzekamok_add_package strComponent strName strSection strSynopsis strText)
    string(TOUPPER "${strComponent}" strUpper)
    set(strRelations "")
    foreach(strNeeded IN LISTS ARGN)
        list(APPEND strRelations "${strNeeded} (= ${strDebianVersion})")
    endforeach()
    list(JOIN strRelations ", " strRelations)
    set("CPACK_DEBIAN_${strUpper}_PACKAGE_NAME" "${strName}" PARENT_SCOPE)
    set("CPACK_DEBIAN_${strUpper}_PACKAGE_SECTION" "${strSection}" PARENT_SCOPE)
    set("CPACK_DEBIAN_${strUpper}_PACKAGE_DEPENDS" "${strRelations}" PARENT_SCOPE)
    set("CPACK_DEBIAN_${strUpper}_DESCRIPTION" "${strSynopsis}\n${strText}" PARENT_SCOPE)
    set(CPACK_COMPONENTS_ALL ${CPACK_COMPONENTS_ALL} ${strComponent} PARENT_SCOPE)

    set(strDocDir "${CMAKE_INSTALL_DATAROOTDIR}/doc/${strName}")
    install(FILES "${PROJECT_SOURCE_DIR}/cmake/debian/copyright"
        DESTINATION "${strDocDir}" COMPONENT ${strComponent} EXCLUDE_FROM_ALL)
    install(FILES "${strDebianDir}/changelog.gz" "${strDebianDir}/changelog.Debian.gz"
        DESTINATION "${strDocDir}" COMPONENT ${strComponent} EXCLUDE_FROM_ALL)
endfunction()

# Compresses a file as the build goes, always to the same bytes.
function(kzekamok_compress strFrom strTo)
    add_custom_command(OUTPUT "${strTo}"
        COMMAND sh -c "gzip -9nc \"$1\" >\"$2\"" sh "${strFrom}" "${strTo}"
        DEPENDS "${strFrom}"
        VERBATIM)
endfunction()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME kzekamok)
set(CPACK_PACKAGE_VENDOR "KZEkaMok developers")
# Stands before the description of every package, if it isn't empty.
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")
set(CPACK_PACKAGE_CONTACT "KZEkaMok developers <kzekamok@example.com>")
set(CPACK_RESOURCE_FILE_LICENSE "${PROJECT_SOURCE_DIR}/LICENSE")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Where dpkg-shlibdeps sees a library of this project, for which it tells no package.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${CMAKE_LIBRARY_OUTPUT_DIRECTORY}")

# A trigger runs ldconfig. Where no postinst and postrm are named, CPack makes some that call it
# too. So both are named, but aren't there: CPack warns of them and leaves them out.
set(listControlFiles "${PROJECT_SOURCE_DIR}/cmake/debian/triggers"
    "${PROJECT_SOURCE_DIR}/cmake/debian/postinst" "${PROJECT_SOURCE_DIR}/cmake/debian/postrm")

set(strDebianSource kzekamok)
set(strDebianVersion "${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE}")
set(strDebianDir "${PROJECT_BINARY_DIR}/package/debian")
configure_file("${PROJECT_SOURCE_DIR}/cmake/debian/changelog.in"
    "${strDebianDir}/changelog.Debian" @ONLY)
kzekamok_compress("${PROJECT_SOURCE_DIR}/CHANGELOG.md" "${strDebianDir}/changelog.gz")
kzekamok_compress("${strDebianDir}/changelog.Debian" "${strDebianDir}/changelog.Debian.gz")
set(listCompressed "${strDebianDir}/changelog.gz" "${strDebianDir}/changelog.Debian.gz")

set(CPACK_COMPONENTS_ALL "")
set(strLibraryPackage "libkzekamok${PROJECT_VERSION_MAJOR}")
set(strAbout "A CSV file in Shift_JIS is checked against XML definition files, every record
and column of it, and a file that passes is turned into a MOK document, the
XML text that is submitted to the filing service.
.
")

kzekamok_add_package(runtime "${strLibraryPackage}" libs
    "check tax filing CSV files and make MOK documents - library"
    "${strAbout}This package holds the shared library and the definition files.")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA "${listControlFiles}")

kzekamok_add_package(development libkzekamok-dev libdevel
    "check tax filing CSV files and make MOK documents - development files"
    "${strAbout}This package holds what a program in C++ or C needs to be built with the
library: headers, the CMake package, the pkg-config file."
    "${strLibraryPackage}")

if(TARGET kzekamok)
    kzekamok_add_package(host kzekamok utils
        "check tax filing CSV files and make MOK documents - program"
        "${strAbout}This package holds the command-line program, which tells each error with its
record, column, label and value."
        "${strLibraryPackage}")
    kzekamok_compress("${PROJECT_SOURCE_DIR}/host/kzekamok.1" "${strDebianDir}/kzekamok.1.gz")
    list(APPEND listCompressed "${strDebianDir}/kzekamok.1.gz")
    install(FILES "${strDebianDir}/kzekamok.1.gz"
        DESTINATION "${CMAKE_INSTALL_MANDIR}/man1" COMPONENT host EXCLUDE_FROM_ALL)
    if(TARGET kzekamok_completion)
        install(FILES "${strCompletionDir}/kzekamok.bash" RENAME kzekamok
            DESTINATION "${CMAKE_INSTALL_DATADIR}/bash-completion/completions"
            COMPONENT host EXCLUDE_FROM_ALL)
        # Debian's zsh looks for what packages bring here, and not in site-functions.
        install(FILES "${strCompletionDir}/kzekamok.zsh" RENAME _kzekamok
            DESTINATION "${CMAKE_INSTALL_DATADIR}/zsh/vendor-completions"
            COMPONENT host EXCLUDE_FROM_ALL)
    endif()
endif()

if(TARGET KZEkaMokObjC)
    set(strObjCPackage "libkzekamokobjc${PROJECT_VERSION_MAJOR}")
    kzekamok_add_package(objc "${strObjCPackage}" libs
        "check tax filing CSV files and make MOK documents - Objective-C library"
        "${strAbout}This package holds the shared library of the Objective-C classes."
        "${strLibraryPackage}")
    set(CPACK_DEBIAN_OBJC_PACKAGE_CONTROL_EXTRA "${listControlFiles}")

    kzekamok_add_package(objc_development libkzekamokobjc-dev libdevel
        "check tax filing CSV files and make MOK documents - Objective-C files"
        "${strAbout}This package holds what a program in Objective-C needs to be built with the
library."
        "${strObjCPackage}" libkzekamok-dev)
    string(APPEND CPACK_DEBIAN_OBJC_DEVELOPMENT_PACKAGE_DEPENDS ", libgnustep-base-dev")
endif()

add_custom_target(kzekamok_package_files ALL DEPENDS ${listCompressed})
include(CPack)
