cmake_policy(VERSION 3.25)
# Run as a script: writes a page of the help with the row of links that heads every page.
#   PAGE      the page as we write it, without the row
#   CONTENTS  the table of contents that names all pages
#   OUTPUT    where the whole page goes
file(STRINGS "${CONTENTS}" entries REGEX "name=\"Local\"")
set(row "<div class=\"pages\">\n  <img src=\"zentaro.png\" width=\"24\" height=\"24\" alt=\"\">\n")
foreach(entry IN LISTS entries)
  string(REGEX MATCH "\"Name\" value=\"([^\"]+)\".*\"Local\" value=\"([^\"]+)\"" found "${entry}")
  string(APPEND row "  <a href=\"${CMAKE_MATCH_2}\">${CMAKE_MATCH_1}</a>\n")
endforeach()
string(APPEND row "</div>\n\n")

file(READ "${PAGE}" page)
string(REPLACE "<body>\n" "<body>\n${row}" whole "${page}")
if(whole STREQUAL page)
  message(FATAL_ERROR "${PAGE}: no line <body>, so the links have no place")
endif()
file(WRITE "${OUTPUT}" "${whole}")
