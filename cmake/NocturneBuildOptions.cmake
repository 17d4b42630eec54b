# What every target of this project is compiled with.

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_AUTOMOC ON)

add_compile_options(-Wall -Wextra -Wpedantic)
if(NOCTURNE_WARNINGS_AS_ERRORS)
  add_compile_options(-Werror)
endif()

add_compile_definitions(
  QT_NO_CAST_TO_ASCII
  QT_NO_FOREACH
  QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
  QT_DISABLE_DEPRECATED_BEFORE=${NOCTURNE_QT_DEPRECATED_BEFORE})

# A unique symbol would keep the library in the process after it is unloaded.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  add_compile_options(-fno-gnu-unique)
endif()

if(NOCTURNE_SANITIZE)
  # Hosts hand over any number as an enumerator, and the library has to stand it.
  add_compile_options(-fsanitize=${NOCTURNE_SANITIZE} -fno-sanitize=enum -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${NOCTURNE_SANITIZE})
endif()

# The rest is the business of whoever owns the build.
if(NOT NOCTURNE_TOP_LEVEL)
  return()
endif()

set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
  set(CMAKE_BUILD_TYPE Release CACHE STRING "Build type" FORCE)
endif()

# Programs of the build tree find the library where it was built.
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/lib")
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/lib")
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER "${CCACHE_PROGRAM}")
endif()
