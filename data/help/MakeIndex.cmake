cmake_policy(VERSION 3.25)
# Run as a script: writes what search.js looks through, the whole pages as texts of that language.
#   PAGES    the pages, finished, with "|" between them
#   OUTPUT   the script
string(REPLACE "|" ";" PAGES "${PAGES}")
set(script "var pages = {};\n")
foreach(path IN LISTS PAGES)
  cmake_path(GET path FILENAME name)
  file(READ "${path}" page)
  # What would end the text, or mean something in it.
  string(REPLACE "\\" "\\\\" page "${page}")
  string(REPLACE "`" "\\`" page "${page}")
  string(REPLACE "\${" "\\\${" page "${page}")
  string(REPLACE "</script" "<\\/script" page "${page}")
  string(APPEND script "pages[\"${name}\"] = `${page}`;\n")
endforeach()
file(WRITE "${OUTPUT}" "${script}")
