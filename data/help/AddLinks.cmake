cmake_policy(VERSION 3.25)
# Run as a script: writes a page of the help with what we do not write into each: the row of links that heads it, and
# numbers of its headings, so that a search can lead to them.
#   PAGE       the page as we write it
#   CONTENTS   the table of contents that names all pages
#   OUTPUT     where the whole page goes
#   SEARCHES   true where the row has a field to search in all pages
# A page in another language has the names of the pages from their titles there.
file(STRINGS "${CONTENTS}" entries REGEX "name=\"Local\"")
cmake_path(GET PAGE PARENT_PATH folder)
set(row "<div class=\"pages\">\n  <img src=\"zentaro.png\" width=\"24\" height=\"24\" alt=\"\">\n")
foreach(entry IN LISTS entries)
  string(REGEX MATCH "\"Name\" value=\"([^\"]+)\".*\"Local\" value=\"([^\"]+)\"" found "${entry}")
  set(name "${CMAKE_MATCH_1}")
  set(local "${CMAKE_MATCH_2}")
  file(READ "${folder}/${local}" linked)
  if(NOT linked MATCHES "<html lang=\"en\">" AND linked MATCHES "<h1>([^<]+)</h1>")
    set(name "${CMAKE_MATCH_1}")
  endif()
  string(APPEND row "  <a href=\"${local}\">${name}</a>\n")
endforeach()
if(SEARCHES)
  file(READ "${folder}/search.html" search_page)
  string(REGEX MATCH "<h1>([^<]+)</h1>" found "${search_page}")
  set(word "${CMAKE_MATCH_1}")
  string(APPEND row "  <form action=\"search.html\" method=\"get\" role=\"search\"><input type=\"search\" name=\"q\" "
    "aria-label=\"${word}\"><input type=\"submit\" value=\"${word}\"></form>\n")
endif()
string(APPEND row "</div>\n\n")

file(READ "${PAGE}" page)
string(REPLACE "<body>\n" "<body>\n${row}" whole "${page}")
if(whole STREQUAL page)
  message(FATAL_ERROR "${PAGE}: no line <body>, so the links have no place")
endif()
set(number 0)
while(whole MATCHES "<h2>")
  math(EXPR number "${number} + 1")
  string(FIND "${whole}" "<h2>" at)
  string(SUBSTRING "${whole}" 0 ${at} before)
  math(EXPR at "${at} + 4")
  string(SUBSTRING "${whole}" ${at} -1 behind)
  set(whole "${before}<h2 id=\"part${number}\">${behind}")
endwhile()
file(WRITE "${OUTPUT}" "${whole}")
