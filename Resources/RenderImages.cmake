# Build steps that fill the stage, one a file, so that only what changed is made again.

find_program(RSVG_CONVERT rsvg-convert REQUIRED)

# The device's file system as the packages leave it, and the simulated platform's own files.
set(STAGE_ROOT ${CMAKE_BINARY_DIR}/stage/root)
set(STAGE_PLATFORM ${CMAKE_BINARY_DIR}/stage/platform)

# stage_picture(DRAWING PICTURE WIDTH HEIGHT): PICTURE (PNG) is drawn from DRAWING (SVG) in WIDTH by HEIGHT pixels.
function(stage_picture drawing picture width height)
    cmake_path(GET picture FILENAME name)
    add_custom_command(
        OUTPUT ${picture}
        COMMAND ${RSVG_CONVERT} --width ${width} --height ${height} --output ${picture} ${drawing}
        DEPENDS ${drawing}
        COMMENT "Drawing ${name}"
        VERBATIM)
endfunction()

# stage_copy(SOURCE COPY): COPY is SOURCE, byte for byte.
function(stage_copy source copy)
    cmake_path(GET copy FILENAME name)
    add_custom_command(
        OUTPUT ${copy}
        COMMAND ${CMAKE_COMMAND} -E copy ${source} ${copy}
        DEPENDS ${source}
        COMMENT "Copying ${name}"
        VERBATIM)
endfunction()
