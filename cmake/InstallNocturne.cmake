# What is installed: the library and the style plugin to run with, and what hosts are built with.

include(CMakePackageConfigHelpers)

set(package nocturne${NOCTURNE_SUFFIX})
set(hostkit_package nocturne-hostkit${NOCTURNE_SUFFIX})
set(package_dir "${CMAKE_INSTALL_LIBDIR}/cmake/${package}")
if(NOCTURNE_QT_MAJOR EQUAL 5)
  set(other_qt 6)
  set(other_package nocturne-qt6)
else()
  set(other_qt 5)
  set(other_package nocturne)
endif()

install(TARGETS nocturne EXPORT nocturneTargets
  LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}"
    COMPONENT library NAMELINK_COMPONENT development)
install(TARGETS nocturne-hostkit EXPORT nocturneHostkitTargets
  ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT development)

install(DIRECTORY "${PROJECT_SOURCE_DIR}/nocturne" "${PROJECT_BINARY_DIR}/include/nocturne"
  DESTINATION "${NOCTURNE_INCLUDEDIR}" COMPONENT development
  FILES_MATCHING REGEX "/([a-z]+\\.h|[A-Z][A-Za-z]+)$"
  PATTERN "painting" EXCLUDE PATTERN "resources" EXCLUDE)

install(EXPORT nocturneTargets FILE ${package}Targets.cmake
  NAMESPACE nocturne:: DESTINATION "${package_dir}" COMPONENT development)
install(EXPORT nocturneHostkitTargets FILE ${package}HostkitTargets.cmake
  NAMESPACE nocturne:: DESTINATION "${package_dir}" COMPONENT development)
configure_package_config_file("${PROJECT_SOURCE_DIR}/cmake/nocturneConfig.cmake.in"
  "${PROJECT_BINARY_DIR}/${package}Config.cmake"
  INSTALL_DESTINATION "${package_dir}")
write_basic_package_version_file("${PROJECT_BINARY_DIR}/${package}ConfigVersion.cmake"
  COMPATIBILITY SameMajorVersion)
install(FILES
  "${PROJECT_BINARY_DIR}/${package}Config.cmake"
  "${PROJECT_BINARY_DIR}/${package}ConfigVersion.cmake"
  DESTINATION "${package_dir}" COMPONENT development)

# Relative to the file itself, so that an installed tree can be moved.
file(RELATIVE_PATH pkgconfig_prefix "/${CMAKE_INSTALL_LIBDIR}/pkgconfig" "/")
string(REGEX REPLACE "/$" "" pkgconfig_prefix "${pkgconfig_prefix}")
configure_file("${PROJECT_SOURCE_DIR}/cmake/nocturne.pc.in"
  "${PROJECT_BINARY_DIR}/${package}.pc" @ONLY)
configure_file("${PROJECT_SOURCE_DIR}/cmake/nocturne-hostkit.pc.in"
  "${PROJECT_BINARY_DIR}/${hostkit_package}.pc" @ONLY)
install(FILES "${PROJECT_BINARY_DIR}/${package}.pc" "${PROJECT_BINARY_DIR}/${hostkit_package}.pc"
  DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig" COMPONENT development)

if(NOCTURNE_TOP_LEVEL)
  add_custom_target(uninstall
    COMMAND "${CMAKE_COMMAND}" "-DBUILD_DIR=${PROJECT_BINARY_DIR}"
      -P "${PROJECT_SOURCE_DIR}/cmake/Uninstall.cmake"
    VERBATIM)
endif()
