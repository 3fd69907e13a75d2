# Installation: the shared library, the public headers, a CMake package
# (find_package(qgui) -> qgui::qgui) and a pkg-config file (qgui.pc).
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

install(TARGETS qgui EXPORT qguiTargets
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
    INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(DIRECTORY ${PROJECT_SOURCE_DIR}/include/qgui DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}
    FILES_MATCHING PATTERN "*.h")
install(EXPORT qguiTargets NAMESPACE qgui:: DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/qgui)

file(WRITE ${PROJECT_BINARY_DIR}/qguiConfig.cmake.in
"@PACKAGE_INIT@\ninclude(\"\${CMAKE_CURRENT_LIST_DIR}/qguiTargets.cmake\")\ncheck_required_components(qgui)\n")
configure_package_config_file(${PROJECT_BINARY_DIR}/qguiConfig.cmake.in
    ${PROJECT_BINARY_DIR}/qguiConfig.cmake
    INSTALL_DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/qgui)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/qguiConfigVersion.cmake
    VERSION ${PROJECT_VERSION} COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/qguiConfig.cmake ${PROJECT_BINARY_DIR}/qguiConfigVersion.cmake
    DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/qgui)

# relocatable: the prefix is found from where the .pc file is installed
file(RELATIVE_PATH QGUI_PC_TO_PREFIX "/p/${CMAKE_INSTALL_LIBDIR}/pkgconfig" "/p")
file(WRITE ${PROJECT_BINARY_DIR}/qgui.pc.in
"prefix=\${pcfiledir}/@QGUI_PC_TO_PREFIX@
libdir=\${prefix}/@CMAKE_INSTALL_LIBDIR@
includedir=\${prefix}/@CMAKE_INSTALL_INCLUDEDIR@

Name: qgui
Description: Graphical layer of the operator-panel runtime
Version: @PROJECT_VERSION@
Libs: -L\${libdir} -lqgui
Cflags: -I\${includedir} -std=c++17
")
configure_file(${PROJECT_BINARY_DIR}/qgui.pc.in ${PROJECT_BINARY_DIR}/qgui.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/qgui.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
