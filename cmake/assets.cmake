# Copies assets/ beside the programs, each file anew when it changes. The forms find the pictures
# there, so whatever is linked with the forms has them.
file(GLOB_RECURSE ASSETS RELATIVE ${PROJECT_SOURCE_DIR} CONFIGURE_DEPENDS assets/*)
foreach(ASSET ${ASSETS})
  set(COPY ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${ASSET})
  add_custom_command(OUTPUT ${COPY}
    COMMAND ${CMAKE_COMMAND} -E copy ${PROJECT_SOURCE_DIR}/${ASSET} ${COPY}
    DEPENDS ${ASSET}
    COMMENT "Copying ${ASSET}"
    VERBATIM)
  list(APPEND ASSET_COPIES ${COPY})
endforeach()
add_custom_target(tarnwick_assets ALL DEPENDS ${ASSET_COPIES})
add_dependencies(tarnwick_forms tarnwick_assets)
