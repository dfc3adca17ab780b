# veritane_room(NAME <target> FOLDER <folder> [WITH <folder>...] [MAY_INCLUDE <folder>...] [LINK <library>...])
#
# Makes one room of the program a static library of all sources directly in its folder, and in the folders WITH it that
# hold the half of it which differs between systems. A room sees only itself, the rooms it names, and what those rooms
# name; including anything else fails the build.

function(veritane_room)
  cmake_parse_arguments(ROOM "" "NAME;FOLDER" "WITH;MAY_INCLUDE;LINK" ${ARGN})
  set(folders ${ROOM_FOLDER} ${ROOM_WITH})
  list(TRANSFORM folders PREPEND ${CMAKE_SOURCE_DIR}/)
  list(TRANSFORM folders APPEND /*.cpp OUTPUT_VARIABLE source_names)
  list(TRANSFORM folders APPEND /*.h OUTPUT_VARIABLE header_names)
  file(GLOB sources CONFIGURE_DEPENDS ${source_names})
  file(GLOB headers CONFIGURE_DEPENDS ${header_names})
  add_library(${ROOM_NAME} STATIC ${sources} ${headers})
  # Some presets compile several sources as one, to save time. windows.h would bring its names to the others.
  set(sources_by_themselves ${sources})
  list(FILTER sources_by_themselves INCLUDE REGEX "/platform/windows/(printing/)?[^/]*$")
  set_source_files_properties(${sources_by_themselves} PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
  target_include_directories(${ROOM_NAME} PUBLIC ${CMAKE_SOURCE_DIR})

  set(allowed ${ROOM_FOLDER} ${ROOM_WITH})
  foreach(neighbour IN LISTS ROOM_MAY_INCLUDE)
    get_property(reached GLOBAL PROPERTY veritane_reach_${neighbour})
    list(APPEND allowed ${neighbour} ${reached})
    get_property(neighbour_target GLOBAL PROPERTY veritane_target_${neighbour})
    target_link_libraries(${ROOM_NAME} PUBLIC ${neighbour_target})
  endforeach()
  list(REMOVE_DUPLICATES allowed)
  set_property(GLOBAL PROPERTY veritane_reach_${ROOM_FOLDER} ${allowed})
  set_property(GLOBAL PROPERTY veritane_target_${ROOM_FOLDER} ${ROOM_NAME})
  target_link_libraries(${ROOM_NAME} PUBLIC ${ROOM_LINK} PRIVATE veritane_warnings)

  set(stamp ${CMAKE_CURRENT_BINARY_DIR}/${ROOM_NAME}_arrows.stamp)
  add_custom_command(
    OUTPUT ${stamp}
    COMMAND ${CMAKE_COMMAND} "-DALLOWED=${allowed}" "-DFOLDERS=${folders}" -DSTAMP=${stamp}
            -P ${CMAKE_SOURCE_DIR}/cmake/check_arrows.cmake
    DEPENDS ${sources} ${headers} ${CMAKE_SOURCE_DIR}/cmake/check_arrows.cmake
    VERBATIM)
  add_custom_target(${ROOM_NAME}_arrows DEPENDS ${stamp})
  add_dependencies(${ROOM_NAME} ${ROOM_NAME}_arrows)
endfunction()
