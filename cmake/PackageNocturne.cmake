# Debian packages: `cpack -G DEB` in a build directory writes one for programs that use the library,
# one for those who build them, and one with the gallery, into packages/ there.

if(NOCTURNE_SUFFIX)
  set(runtime_package "libnocturne${NOCTURNE_SUFFIX}-${PROJECT_VERSION_MAJOR}")
else()
  set(runtime_package "libnocturne${PROJECT_VERSION_MAJOR}")
endif()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME "nocturne${NOCTURNE_SUFFIX}")
set(CPACK_PACKAGE_VERSION "${PROJECT_VERSION}")
if(NOT CPACK_PACKAGE_CONTACT) # whoever publishes a package gives a name and an address
  set(CPACK_PACKAGE_CONTACT "libnocturne developers")
endif()
set(CPACK_PACKAGE_DIRECTORY "${PROJECT_BINARY_DIR}/packages")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(CPACK_COMPONENTS_ALL library development)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${CMAKE_LIBRARY_OUTPUT_DIRECTORY}")
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
set(own_version "(= ${PROJECT_VERSION})")

set(CPACK_DEBIAN_LIBRARY_PACKAGE_NAME "${runtime_package}")
set(CPACK_DEBIAN_LIBRARY_PACKAGE_SECTION libs)
set(CPACK_COMPONENT_LIBRARY_DESCRIPTION
  "The library, and a style plugin that dresses programs of the same Qt version.")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME "libnocturne${NOCTURNE_SUFFIX}-dev")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
if(NOCTURNE_QT_MAJOR EQUAL 5)
  set(qt_package qtbase5-dev)
else()
  set(qt_package qt6-base-dev)
endif()
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS
  "${runtime_package} ${own_version}, ${qt_package} (>= ${NOCTURNE_QT_MINIMUM})")
# Only hosts with MIDI ports need it.
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_RECOMMENDS librtmidi-dev)
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION
  "Headers, CMake and pkg-config files, the static part for hosts with MIDI, and a plugin for Designer.")

if(TARGET nocturne-gallery)
  list(APPEND CPACK_COMPONENTS_ALL gallery)
  set(CPACK_DEBIAN_GALLERY_PACKAGE_NAME "nocturne-gallery${NOCTURNE_SUFFIX}")
  set(CPACK_DEBIAN_GALLERY_PACKAGE_SECTION devel)
  set(CPACK_DEBIAN_GALLERY_PACKAGE_DEPENDS "${runtime_package} ${own_version}")
  set(CPACK_COMPONENT_GALLERY_DESCRIPTION
    "Every control in every state, the standard ones beside the library's own, to look at.")
endif()

include(CPack)
