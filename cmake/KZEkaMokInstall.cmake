# What `cmake --install` puts where. Users of the package need nothing of Xerces-C++ to build.
include(CMakePackageConfigHelpers)

set(strPackageDir "${CMAKE_INSTALL_LIBDIR}/cmake/KZEkaMok")

install(TARGETS KZEkaMok EXPORT KZEkaMokTargets
    LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}")
install(DIRECTORY "${PROJECT_SOURCE_DIR}/include/KZEkaMok"
    DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}"
    FILES_MATCHING PATTERN "*.h")
install(DIRECTORY "${PROJECT_SOURCE_DIR}/resources/KZEkaMok.bundle"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/KZEkaMok")

if(TARGET kzekamok)
    cmake_path(RELATIVE_PATH CMAKE_INSTALL_FULL_LIBDIR
        BASE_DIRECTORY "${CMAKE_INSTALL_FULL_BINDIR}" OUTPUT_VARIABLE strLibraryFromProgram)
    set_target_properties(kzekamok PROPERTIES INSTALL_RPATH "$ORIGIN/${strLibraryFromProgram}")
    install(TARGETS kzekamok RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}")
endif()

install(EXPORT KZEkaMokTargets NAMESPACE KZEkaMok:: DESTINATION "${strPackageDir}")
configure_package_config_file("${PROJECT_SOURCE_DIR}/cmake/KZEkaMokConfig.cmake.in"
    "${PROJECT_BINARY_DIR}/package/KZEkaMokConfig.cmake"
    INSTALL_DESTINATION "${strPackageDir}")
write_basic_package_version_file("${PROJECT_BINARY_DIR}/package/KZEkaMokConfigVersion.cmake"
    COMPATIBILITY SameMajorVersion)
install(FILES
    "${PROJECT_BINARY_DIR}/package/KZEkaMokConfig.cmake"
    "${PROJECT_BINARY_DIR}/package/KZEkaMokConfigVersion.cmake"
    DESTINATION "${strPackageDir}")

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
    DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig")

# A component, so that a package of the rest needs no Objective-C run-time.
if(TARGET KZEkaMokObjC)
    install(TARGETS KZEkaMokObjC EXPORT KZEkaMokObjCTargets
        LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT objc)
    install(DIRECTORY "${PROJECT_SOURCE_DIR}/objc/include/KZEkaMok"
        DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}" COMPONENT objc
        FILES_MATCHING PATTERN "*.h")
    install(EXPORT KZEkaMokObjCTargets NAMESPACE KZEkaMok::
        DESTINATION "${strPackageDir}" COMPONENT objc)
    configure_file("${PROJECT_SOURCE_DIR}/cmake/KZEkaMokObjC.pc.in"
        "${PROJECT_BINARY_DIR}/package/KZEkaMokObjC.pc" @ONLY)
    install(FILES "${PROJECT_BINARY_DIR}/package/KZEkaMokObjC.pc"
        DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig" COMPONENT objc)
endif()
