# nocturne_forwarding_headers(SOURCE_DIR dir OUTPUT_DIR dir)
#
# Writes one CamelCase header per public class, so that <nocturne/RangeSlider> includes
# <nocturne/widgets/rangeslider.h>. The classes are read from the public headers themselves.
function(nocturne_forwarding_headers)
  cmake_parse_arguments(arg "" "SOURCE_DIR;OUTPUT_DIR" "" ${ARGN})
  file(GLOB headers CONFIGURE_DEPENDS "${arg_SOURCE_DIR}/*/*.h")
  list(FILTER headers EXCLUDE REGEX "_p\\.h$")
  foreach(header IN LISTS headers)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${header}")
    file(RELATIVE_PATH relative "${arg_SOURCE_DIR}" "${header}")
    file(STRINGS "${header}" declarations
      REGEX "^class NOCTURNE_(EXPORT|HOSTKIT) [A-Za-z0-9]+( final)?( :|$)")
    foreach(declaration IN LISTS declarations)
      string(REGEX REPLACE "^class NOCTURNE_(EXPORT|HOSTKIT) ([A-Za-z0-9]+).*" "\\2"
        name "${declaration}")
      set(text "#include <nocturne/${relative}>\n")
      set(file "${arg_OUTPUT_DIR}/${name}")
      set(old "")
      if(EXISTS "${file}")
        file(READ "${file}" old)
      endif()
      if(NOT old STREQUAL text)
        file(WRITE "${file}" "${text}")
      endif()
    endforeach()
  endforeach()
endfunction()
