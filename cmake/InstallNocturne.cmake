include(CMakePackageConfigHelpers)

set(package_dir "${CMAKE_INSTALL_LIBDIR}/cmake/nocturne")

install(TARGETS nocturne hostkit EXPORT nocturneTargets
  LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}"
  ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}")

install(DIRECTORY "${PROJECT_SOURCE_DIR}/nocturne"
  DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}"
  FILES_MATCHING PATTERN "*.h" PATTERN "*_p.h" EXCLUDE
  PATTERN "painting" EXCLUDE PATTERN "resources" EXCLUDE)
install(DIRECTORY "${PROJECT_BINARY_DIR}/include/nocturne"
  DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}")

install(EXPORT nocturneTargets NAMESPACE nocturne:: DESTINATION "${package_dir}")
configure_package_config_file("${PROJECT_SOURCE_DIR}/cmake/nocturneConfig.cmake.in"
  "${PROJECT_BINARY_DIR}/nocturneConfig.cmake"
  INSTALL_DESTINATION "${package_dir}")
write_basic_package_version_file("${PROJECT_BINARY_DIR}/nocturneConfigVersion.cmake"
  COMPATIBILITY SameMajorVersion)
install(FILES
  "${PROJECT_BINARY_DIR}/nocturneConfig.cmake"
  "${PROJECT_BINARY_DIR}/nocturneConfigVersion.cmake"
  DESTINATION "${package_dir}")

# Relative to the file itself, so that an installed tree can be moved.
file(RELATIVE_PATH pkgconfig_prefix "/${CMAKE_INSTALL_LIBDIR}/pkgconfig" "/")
string(REGEX REPLACE "/$" "" pkgconfig_prefix "${pkgconfig_prefix}")
configure_file("${PROJECT_SOURCE_DIR}/cmake/nocturne.pc.in"
  "${PROJECT_BINARY_DIR}/nocturne.pc" @ONLY)
install(FILES "${PROJECT_BINARY_DIR}/nocturne.pc"
  DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig")
