include(CMakePackageConfigHelpers)

set(packageFolder "${CMAKE_INSTALL_LIBDIR}/cmake/zedobjparam")

foreach(folder IN LISTS publicHeaderFolders)
    if(EXISTS "${folder}")
        install(
            DIRECTORY "${folder}/"
            DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/zedobjparam"
            FILES_MATCHING
            PATTERN "*.h")
    endif()
endforeach()

install(TARGETS zedobjparam EXPORT zedobjparamTargets)
if(TARGET zedparam)
    install(TARGETS zedparam)
    install(FILES "${PROJECT_BINARY_DIR}/zedparam.man" DESTINATION "${CMAKE_INSTALL_MANDIR}/man1" RENAME zedparam.1)
    install(FILES "${PROJECT_BINARY_DIR}/zedparam.bash"
            DESTINATION "${CMAKE_INSTALL_DATADIR}/bash-completion/completions" RENAME zedparam)
    install(FILES "${PROJECT_BINARY_DIR}/zedparam.zsh" DESTINATION "${CMAKE_INSTALL_DATADIR}/zsh/site-functions"
            RENAME _zedparam)
endif()

install(
    EXPORT zedobjparamTargets
    NAMESPACE zedobjparam::
    DESTINATION "${packageFolder}")
configure_package_config_file(
    cmake/zedobjparamConfig.cmake.in "${PROJECT_BINARY_DIR}/zedobjparamConfig.cmake"
    INSTALL_DESTINATION "${packageFolder}")
write_basic_package_version_file("${PROJECT_BINARY_DIR}/zedobjparamConfigVersion.cmake" COMPATIBILITY SameMinorVersion)
install(FILES "${PROJECT_BINARY_DIR}/zedobjparamConfig.cmake" "${PROJECT_BINARY_DIR}/zedobjparamConfigVersion.cmake"
        DESTINATION "${packageFolder}")

file(RELATIVE_PATH prefixFromPkgConfig "/prefix/${CMAKE_INSTALL_LIBDIR}/pkgconfig" "/prefix")
configure_file(cmake/zedobjparam.pc.in "${PROJECT_BINARY_DIR}/zedobjparam.pc" @ONLY)
install(FILES "${PROJECT_BINARY_DIR}/zedobjparam.pc" DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig")
