# Writes a comment that puts the picture of each class, as docs/classes.md names it, onto the
# class's page. Run with -DCLASSES=file -DOUTPUT=file.
file(STRINGS "${CLASSES}" rows REGEX "^\\| \\[[A-Za-z0-9]+\\]")
set(text "")
foreach(row IN LISTS rows)
  if(row MATCHES "^\\| \\[([A-Za-z0-9]+)\\].*pictures/([a-z0-9_-]+)\\.png")
    string(APPEND text "/** \\class ${CMAKE_MATCH_1}\n * \\image html ${CMAKE_MATCH_2}.png\n */\n")
  endif()
endforeach()
file(WRITE "${OUTPUT}" "${text}")
