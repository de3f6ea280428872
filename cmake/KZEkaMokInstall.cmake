# What `cmake --install` puts where. Users of the package need nothing of Xerces-C++ to build.
#
# Components, for those who want a part (`cmake --install BUILD --component NAME`):
#   runtime            the library and its resource folder
#   development        headers, CMake package, pkg-config file, the link for the linker
#   host               the command-line program
#   manual, documents  its manual page; readme, changes and licence
#   completion         what bash and zsh need to complete its command line
#   objc, objc_development   as the first two, for the Objective-C classes, so that a package of the
#                      rest needs no Objective-C run-time
include(CMakePackageConfigHelpers)

set(strPackageDir "${CMAKE_INSTALL_LIBDIR}/cmake/KZEkaMok")

install(TARGETS KZEkaMok EXPORT KZEkaMokTargets
    LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}"
        COMPONENT runtime NAMELINK_COMPONENT development)
install(DIRECTORY "${PROJECT_SOURCE_DIR}/resources/KZEkaMok.bundle"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/KZEkaMok" COMPONENT runtime)
install(DIRECTORY "${PROJECT_SOURCE_DIR}/include/KZEkaMok"
    DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}" COMPONENT development
    FILES_MATCHING PATTERN "*.h")
install(FILES
    "${PROJECT_SOURCE_DIR}/LICENSE"
    "${PROJECT_SOURCE_DIR}/README.md"
    "${PROJECT_SOURCE_DIR}/README.ja.md"
    "${PROJECT_SOURCE_DIR}/CHANGELOG.md"
    DESTINATION "${CMAKE_INSTALL_DOCDIR}" COMPONENT documents)

if(TARGET kzekamok)
    cmake_path(RELATIVE_PATH CMAKE_INSTALL_FULL_LIBDIR
        BASE_DIRECTORY "${CMAKE_INSTALL_FULL_BINDIR}" OUTPUT_VARIABLE strLibraryFromProgram)
    set_target_properties(kzekamok PROPERTIES INSTALL_RPATH "$ORIGIN/${strLibraryFromProgram}")
    install(TARGETS kzekamok RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}" COMPONENT host)
    install(FILES "${PROJECT_SOURCE_DIR}/host/kzekamok.1"
        DESTINATION "${CMAKE_INSTALL_MANDIR}/man1" COMPONENT manual)

    # The program writes the scripts, so they are there only if it runs where it is built.
    if(NOT CMAKE_CROSSCOMPILING OR CMAKE_CROSSCOMPILING_EMULATOR)
        set(strCompletionDir "${PROJECT_BINARY_DIR}/package/completion")
        foreach(strShell bash zsh)
            set(strCompletion "${strCompletionDir}/kzekamok.${strShell}")
            add_custom_command(OUTPUT "${strCompletion}"
                COMMAND sh -c "mkdir -p \"$1\" && shift && \"$@\" >\"$0\"" "${strCompletion}"
                    "${strCompletionDir}" ${CMAKE_CROSSCOMPILING_EMULATOR}
                    $<TARGET_FILE:kzekamok> completion ${strShell} --lang en
                DEPENDS kzekamok
                VERBATIM)
        endforeach()
        add_custom_target(kzekamok_completion ALL
            DEPENDS "${strCompletionDir}/kzekamok.bash" "${strCompletionDir}/kzekamok.zsh")
        install(FILES "${strCompletionDir}/kzekamok.bash" RENAME kzekamok
            DESTINATION "${CMAKE_INSTALL_DATADIR}/bash-completion/completions"
            COMPONENT completion)
        install(FILES "${strCompletionDir}/kzekamok.zsh" RENAME _kzekamok
            DESTINATION "${CMAKE_INSTALL_DATADIR}/zsh/site-functions" COMPONENT completion)
    endif()
endif()

install(EXPORT KZEkaMokTargets NAMESPACE KZEkaMok::
    DESTINATION "${strPackageDir}" COMPONENT development)
configure_package_config_file("${PROJECT_SOURCE_DIR}/cmake/KZEkaMokConfig.cmake.in"
    "${PROJECT_BINARY_DIR}/package/KZEkaMokConfig.cmake"
    INSTALL_DESTINATION "${strPackageDir}")
write_basic_package_version_file("${PROJECT_BINARY_DIR}/package/KZEkaMokConfigVersion.cmake"
    COMPATIBILITY SameMajorVersion)
install(FILES
    "${PROJECT_BINARY_DIR}/package/KZEkaMokConfig.cmake"
    "${PROJECT_BINARY_DIR}/package/KZEkaMokConfigVersion.cmake"
    DESTINATION "${strPackageDir}" COMPONENT development)

# The prefix is told from where the file lies, so a moved tree keeps working.
set(strPkgConfigDir "${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig")
cmake_path(RELATIVE_PATH CMAKE_INSTALL_PREFIX
    BASE_DIRECTORY "${strPkgConfigDir}" OUTPUT_VARIABLE strPrefixFromPkgConfig)
set(strPkgConfigPrefix "\${pcfiledir}/${strPrefixFromPkgConfig}")
cmake_path(APPEND strPkgConfigLibDir "\${prefix}" "${CMAKE_INSTALL_LIBDIR}")
cmake_path(APPEND strPkgConfigIncludeDir "\${prefix}" "${CMAKE_INSTALL_INCLUDEDIR}")
configure_file("${PROJECT_SOURCE_DIR}/cmake/KZEkaMok.pc.in"
    "${PROJECT_BINARY_DIR}/package/KZEkaMok.pc" @ONLY)
install(FILES "${PROJECT_BINARY_DIR}/package/KZEkaMok.pc"
    DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig" COMPONENT development)

if(TARGET KZEkaMokObjC)
    install(TARGETS KZEkaMokObjC EXPORT KZEkaMokObjCTargets
        LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}"
            COMPONENT objc NAMELINK_COMPONENT objc_development)
    install(DIRECTORY "${PROJECT_SOURCE_DIR}/objc/include/KZEkaMok"
        DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}" COMPONENT objc_development
        FILES_MATCHING PATTERN "*.h")
    install(EXPORT KZEkaMokObjCTargets NAMESPACE KZEkaMok::
        DESTINATION "${strPackageDir}" COMPONENT objc_development)
    configure_file("${PROJECT_SOURCE_DIR}/cmake/KZEkaMokObjC.pc.in"
        "${PROJECT_BINARY_DIR}/package/KZEkaMokObjC.pc" @ONLY)
    install(FILES "${PROJECT_BINARY_DIR}/package/KZEkaMokObjC.pc"
        DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig" COMPONENT objc_development)
endif()
