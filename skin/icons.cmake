# The icons: the program's own, and one for each type of file, all types from one drawing.
find_program(ICOTOOL icotool REQUIRED)
set(icon_sizes 16 24 32 48 64 128 256)

# zentaro_icon(name source small): name.ico with all sizes, and beside it png/<size>/name.png and svg/name.svg. `small`
# is drawn at 16 pixels, the source at all others. Both hold their colours themselves.
function(zentaro_icon name source small)
  set(folder "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/icons")
  set(outputs "${folder}/${name}.ico" "${folder}/svg/${name}.svg")
  set(render)
  set(pictures)
  foreach(size IN LISTS icon_sizes)
    set(from "${source}")
    if(size EQUAL 16)
      set(from "${small}")
    endif()
    set(png "${folder}/png/${size}/${name}.png")
    list(APPEND render COMMAND "${RSVG_CONVERT}" --stylesheet "${palette}" --width ${size} --height ${size} --output "${png}" "${from}")
    list(APPEND outputs "${png}")
    if(size EQUAL 256)
      list(APPEND pictures --raw)
    endif()
    list(APPEND pictures "${png}")
    file(MAKE_DIRECTORY "${folder}/png/${size}")
  endforeach()
  file(MAKE_DIRECTORY "${folder}/svg")
  add_custom_command(
    OUTPUT ${outputs}
    ${render}
    COMMAND "${ICOTOOL}" --create --output "${folder}/${name}.ico" ${pictures}
    # Written anew, it holds its letters as outlines and its colours as numbers: no reader needs our font or palette.
    COMMAND "${RSVG_CONVERT}" --stylesheet "${palette}" --format svg --output "${folder}/svg/${name}.svg" "${source}"
    DEPENDS "${source}" "${small}" "${palette}"
    COMMENT "Rendering icons/${name}"
    VERBATIM)
  set_property(DIRECTORY APPEND PROPERTY ZENTARO_PICTURES ${outputs})
endfunction()

# The letters of the smallest icons: five rows of pixels from above, each a number whose lowest bit is the right end.
foreach(letter IN ITEMS "2 71747" "3 71717" "4 55711" "A 25755" "C 74447" "D 65556" "E 74647" "F 74644" "G 74557" "H 55755" "I 72227"
    "K 55655" "L 44447" "M 57555" "O 75557" "P 75744" "Q 75573" "S 74717" "T 72222" "V 55552" "W 55575")
  string(SUBSTRING "${letter}" 0 1 name)
  string(SUBSTRING "${letter}" 2 5 rows_of_${name})
endforeach()

# The word as one path, its middle at 8, its upper edge at 8.
function(zentaro_letters word result)
  string(LENGTH "${word}" count)
  math(EXPR left "(17 - 4 * ${count}) / 2")
  set(path "")
  math(EXPR last "${count} - 1")
  foreach(at RANGE ${last})
    string(SUBSTRING "${word}" ${at} 1 letter)
    foreach(row RANGE 4)
      string(SUBSTRING "${rows_of_${letter}}" ${row} 1 bits)
      math(EXPR y "8 + ${row}")
      foreach(column RANGE 2)
        math(EXPR isSet "(${bits} >> (2 - ${column})) & 1")
        math(EXPR x "${left} + 4 * ${at} + ${column}")
        if(isSet)
          string(APPEND path "M${x} ${y}h1v1h-1z")
        endif()
      endforeach()
    endforeach()
  endforeach()
  set(${result} "${path}" PARENT_SCOPE)
endfunction()

set(sign_of_sound "<path d='M80 80v14M104 64v46M128 48v78M152 67v40M176 81v12' stroke-width='13' fill='none'/>")
set(sign_of_picture "<path d='M108 53v68l56 -34z' stroke-width='16'/>")

# zentaro_type_icons(family kind word...): `kind` is what such a file holds, sound or picture.
function(zentaro_type_icons family kind)
  set(colour "${family-${family}}")
  set(sign "${sign_of_${kind}}")
  foreach(extension IN LISTS ARGN)
    string(TOUPPER "${extension}" word)
    string(LENGTH "${word}" length)
    list(GET sizes_by_length ${length} size)
    if(word MATCHES "WM")
      set(size 66)
    endif()
    # Capitals are 0.727 of the font's size high; their middle is the label's, 181.
    math(EXPR baseline "(181000 + 364 * ${size} + 500) / 1000")
    set(short "${word}")
    if(length GREATER 4)
      string(SUBSTRING "${word}" 0 2 short)
    endif()
    zentaro_letters("${short}" letters)
    foreach(template IN ITEMS type small)
      configure_file("icons/${template}.svg" "${CMAKE_CURRENT_BINARY_DIR}/icons/${extension}-${template}.svg" @ONLY)
    endforeach()
    zentaro_icon(${extension} "${CMAKE_CURRENT_BINARY_DIR}/icons/${extension}-type.svg" "${CMAKE_CURRENT_BINARY_DIR}/icons/${extension}-small.svg")
  endforeach()
endfunction()

set(sizes_by_length 0 0 78 74 62 48)
zentaro_type_icons(audio sound wav mp3 aac m4a)
zentaro_type_icons(video picture flv avi)
zentaro_type_icons(matroska sound mka)
zentaro_type_icons(matroska picture mkv)
zentaro_type_icons(mpeg picture mpg mpe mpeg mp4 m4v)
zentaro_type_icons(ogg sound ogg)
zentaro_type_icons(ogg picture ogm)
zentaro_type_icons(apple picture mov hdmov qt 3gp 3gpp 3g2)
zentaro_type_icons(windows sound wma)
zentaro_type_icons(windows picture wmv asf)

zentaro_icon(zentaro "${CMAKE_CURRENT_SOURCE_DIR}/zentaro.svg" "${CMAKE_CURRENT_SOURCE_DIR}/mark.svg")
zentaro_svg(SOURCE zentaro.svg OUTPUT icons/zentaro.png WIDTH 256 HEIGHT 256)
zentaro_svg(SOURCE icons/unknown.svg OUTPUT icons/Unkowen.bmp WIDTH 64 HEIGHT 64)
