# What every target of ours has in common.
include_guard()

function(zentaro_options target)
  target_compile_features(${target} PUBLIC cxx_std_20)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wconversion -Wshadow $<$<BOOL:${ZENTARO_WERROR}>:-Werror>)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    # GCC 12 sees overlapping copies in the standard library's own operator+ for strings.
    target_compile_options(${target} PRIVATE -Wno-restrict)
  endif()
  target_include_directories(${target} PUBLIC "${PROJECT_SOURCE_DIR}")
endfunction()

# zentaro_windows_manifest(target): the code page, long paths and scaling that an executable of ours counts on under
# Windows; nothing elsewhere.
function(zentaro_windows_manifest target)
  if(WIN32)
    target_sources(${target} PRIVATE "${PROJECT_SOURCE_DIR}/cmake/zentaro.rc")
    set_source_files_properties("${PROJECT_SOURCE_DIR}/cmake/zentaro.rc" TARGET_DIRECTORY ${target}
      PROPERTIES OBJECT_DEPENDS "${PROJECT_SOURCE_DIR}/cmake/zentaro.manifest")
    target_include_directories(${target} PRIVATE "${PROJECT_SOURCE_DIR}/cmake")
  endif()
endfunction()

# zentaro_rules(folder SOURCES ... LEVELS lower folders ...)
# One folder's rules as a library of its own: plain C++ that sees only the levels below it.
function(zentaro_rules folder)
  cmake_parse_arguments(arg "" "" "SOURCES;LEVELS" ${ARGN})
  set(target zentaro_${folder})
  set(stamp "${CMAKE_CURRENT_BINARY_DIR}/${folder}.includes")
  set(files ${arg_SOURCES})
  list(TRANSFORM files PREPEND "${CMAKE_CURRENT_SOURCE_DIR}/")
  add_custom_command(
    OUTPUT "${stamp}"
    COMMAND "${CMAKE_COMMAND}" "-DFILES=${files}" "-DFOLDERS=${folder};${arg_LEVELS}" "-DSTAMP=${stamp}"
            -P "${PROJECT_SOURCE_DIR}/cmake/CheckIncludes.cmake"
    DEPENDS ${files} "${PROJECT_SOURCE_DIR}/cmake/CheckIncludes.cmake"
    COMMENT "Checking the includes of ${folder}/"
    VERBATIM)
  add_library(${target} STATIC ${arg_SOURCES} "${stamp}")
  set_target_properties(${target} PROPERTIES LINKER_LANGUAGE CXX)
  zentaro_options(${target})
  foreach(level IN LISTS arg_LEVELS)
    target_link_libraries(${target} PUBLIC zentaro_${level})
  endforeach()
endfunction()
