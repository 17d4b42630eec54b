# Which Qt is built for, and the names that differ with it.

set(NOCTURNE_QT_MAJOR 5 CACHE STRING "Major version of Qt to build for: 5 or 6")
set_property(CACHE NOCTURNE_QT_MAJOR PROPERTY STRINGS 5 6)

if(NOCTURNE_QT_MAJOR EQUAL 5)
  set(NOCTURNE_QT_MINIMUM 5.15)
  set(NOCTURNE_QT_DEPRECATED_BEFORE 0x050f00)
  set(NOCTURNE_SUFFIX "")
  set(NOCTURNE_INCLUDEDIR "${CMAKE_INSTALL_INCLUDEDIR}")
elseif(NOCTURNE_QT_MAJOR EQUAL 6)
  set(NOCTURNE_QT_MINIMUM 6.4)
  set(NOCTURNE_QT_DEPRECATED_BEFORE 0x060000)
  set(NOCTURNE_SUFFIX "-qt6")
  # The headers are the same, but each installation owns what it removes.
  set(NOCTURNE_INCLUDEDIR "${CMAKE_INSTALL_INCLUDEDIR}/nocturne-qt6")
else()
  message(FATAL_ERROR "NOCTURNE_QT_MAJOR is ${NOCTURNE_QT_MAJOR}; it can be 5 or 6")
endif()
set(NOCTURNE_QT Qt${NOCTURNE_QT_MAJOR})

# nocturne_find_qt(<module>...)
macro(nocturne_find_qt)
  find_package(${NOCTURNE_QT} ${NOCTURNE_QT_MINIMUM} REQUIRED COMPONENTS ${ARGN})
endmacro()
