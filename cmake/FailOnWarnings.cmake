# Fails when a log holds a line, and otherwise says where the result is. Run with -DLOG=file
# -DPAGE=file.
file(READ "${LOG}" warnings)
if(warnings)
  message(FATAL_ERROR "${warnings}")
endif()
message(STATUS "The documentation is ${PAGE}")
