include(CMakePackageConfigHelpers)

set(NVO_CMAKE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/NvoSdkGui)

install(TARGETS NvoSdkGui EXPORT NvoSdkGuiTargets
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(DIRECTORY ${PROJECT_SOURCE_DIR}/include/nvo ${PROJECT_BINARY_DIR}/include/nvo
    DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} FILES_MATCHING PATTERN "*.h")

install(EXPORT NvoSdkGuiTargets NAMESPACE NvoSdkGui:: DESTINATION ${NVO_CMAKE_DIR})
configure_package_config_file(cmake/NvoSdkGuiConfig.cmake.in NvoSdkGuiConfig.cmake
    INSTALL_DESTINATION ${NVO_CMAKE_DIR})
write_basic_package_version_file(NvoSdkGuiConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES
    ${PROJECT_BINARY_DIR}/NvoSdkGuiConfig.cmake
    ${PROJECT_BINARY_DIR}/NvoSdkGuiConfigVersion.cmake
    DESTINATION ${NVO_CMAKE_DIR})

# What a consumer without CMake must say itself.
set(NVO_PC_CFLAGS "")
if(NOT BUILD_SHARED_LIBS)
    string(APPEND NVO_PC_CFLAGS " -DNVO_STATIC_DEFINE")
endif()
if(NVO_EXTERNAL_CORE)
    string(APPEND NVO_PC_CFLAGS " -DNVO_EXTERNAL_CORE")
endif()
set(NVO_PC_LIBS_PRIVATE "")
if(NVO_X11)
    set(NVO_PC_LIBS_PRIVATE "-lX11")
endif()
if(IS_ABSOLUTE "${CMAKE_INSTALL_LIBDIR}" OR IS_ABSOLUTE "${CMAKE_INSTALL_INCLUDEDIR}")
    set(NVO_PC_PREFIX ${CMAKE_INSTALL_PREFIX})
    set(NVO_PC_LIBDIR ${CMAKE_INSTALL_FULL_LIBDIR})
    set(NVO_PC_INCLUDEDIR ${CMAKE_INSTALL_FULL_INCLUDEDIR})
else()
    file(RELATIVE_PATH prefix_from_here "/${CMAKE_INSTALL_LIBDIR}/pkgconfig" "/")
    set(NVO_PC_PREFIX "\${pcfiledir}/${prefix_from_here}")
    set(NVO_PC_LIBDIR "\${prefix}/${CMAKE_INSTALL_LIBDIR}")
    set(NVO_PC_INCLUDEDIR "\${prefix}/${CMAKE_INSTALL_INCLUDEDIR}")
endif()
configure_file(cmake/NvoSdkGui.pc.in NvoSdkGui.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/NvoSdkGui.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
