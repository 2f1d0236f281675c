cmake_policy(VERSION 3.25)
# Run as a script: fails when a rule source includes what its level must not see.
#   FILES    the sources and headers of one rule library
#   FOLDERS  the project folders whose headers it may include
# The compiler alone would let a system or libVLC header through: they lie on its default path. Of the standard's own,
# <latch>, <semaphore> and <barrier> stay out: for Windows they can sleep through what they wait for, since mingw-w64's
# compare and go to sleep in two steps.
set(standard
  algorithm any array atomic bit bitset cctype cerrno cfenv cfloat charconv chrono cinttypes climits cmath compare complex
  concepts condition_variable coroutine csignal cstdarg cstddef cstdint cstdio cstdlib cstring ctime cwchar cwctype deque
  exception filesystem forward_list fstream functional future initializer_list iomanip ios iosfwd iostream istream iterator
  limits list locale map memory memory_resource mutex new numbers numeric optional ostream queue random ranges ratio
  regex scoped_allocator set shared_mutex source_location span sstream stack stdexcept stop_token streambuf string
  string_view system_error thread tuple type_traits typeindex typeinfo unordered_map unordered_set utility valarray variant
  vector version)
set(failed FALSE)
foreach(file IN LISTS FILES)
  file(STRINGS "${file}" lines REGEX "^[ \t]*#[ \t]*include")
  foreach(line IN LISTS lines)
    if(line MATCHES "include[ \t]*<([^>]+)>")
      if(NOT CMAKE_MATCH_1 IN_LIST standard)
        message("${file}: <${CMAKE_MATCH_1}> is no header of the C++ standard library; rules include no Qt, libVLC or system header")
        set(failed TRUE)
      endif()
    elseif(line MATCHES "include[ \t]*\"([^\"/]+)/[^\"]+\"")
      if(NOT CMAKE_MATCH_1 IN_LIST FOLDERS)
        message("${file}: this level may include headers of ${FOLDERS}, not of ${CMAKE_MATCH_1}")
        set(failed TRUE)
      endif()
    else()
      message("${file}: write the folder of a project header: ${line}")
      set(failed TRUE)
    endif()
  endforeach()
endforeach()
if(failed)
  message(FATAL_ERROR "Wrong includes")
endif()
if(STAMP)
  file(TOUCH "${STAMP}")
endif()
