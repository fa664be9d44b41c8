# Who may include what is decided here: a target has an include root of its own, made of links to its headers, and sees
# besides only the roots of the targets that it links. The folder src is nobody's root, so that a header of a room that a
# target does not link is no file to its compiler.

# corvala_headers(TARGET PREFIX [SOURCES...]) makes the root in which TARGET offers its headers as "PREFIX/Name.h": the
# header beside each of the sources, the headers and the folders among them; all of the folder where none are told.
function(corvala_headers target prefix)
  set(root "${CMAKE_BINARY_DIR}/include/${target}")
  set(wanted "")
  if(NOT ARGN)
    file(GLOB headers CONFIGURE_DEPENDS RELATIVE "${CMAKE_CURRENT_SOURCE_DIR}" "*.h")
    list(APPEND wanted ${headers})
  endif()
  foreach(source IN LISTS ARGN)
    if(IS_DIRECTORY "${CMAKE_CURRENT_SOURCE_DIR}/${source}")
      list(APPEND wanted "${source}")
      continue()
    endif()
    cmake_path(REPLACE_EXTENSION source "h" OUTPUT_VARIABLE header)
    if(EXISTS "${CMAKE_CURRENT_SOURCE_DIR}/${header}")
      list(APPEND wanted "${header}")
    endif()
  endforeach()

  file(MAKE_DIRECTORY "${root}/${prefix}")
  file(GLOB former RELATIVE "${root}/${prefix}" "${root}/${prefix}/*")
  list(REMOVE_ITEM former ${wanted})
  foreach(gone IN LISTS former)
    file(REMOVE "${root}/${prefix}/${gone}")
  endforeach()
  foreach(header IN LISTS wanted)
    file(CREATE_LINK "${CMAKE_CURRENT_SOURCE_DIR}/${header}" "${root}/${prefix}/${header}" SYMBOLIC)
  endforeach()

  get_target_property(type ${target} TYPE)
  if(type STREQUAL "INTERFACE_LIBRARY")
    target_include_directories(${target} INTERFACE "${root}")
  else()
    target_include_directories(${target} PUBLIC "${root}")
  endif()
  set_property(DIRECTORY APPEND PROPERTY CORVALA_OFFERED ${wanted})
endfunction()

# A header that no target of this folder offers could be included by nobody; better told here than by the compiler.
function(corvala_check_headers)
  file(GLOB headers CONFIGURE_DEPENDS RELATIVE "${CMAKE_CURRENT_SOURCE_DIR}" "*.h")
  get_property(offered DIRECTORY PROPERTY CORVALA_OFFERED)
  list(REMOVE_ITEM headers ${offered})
  if(headers)
    message(FATAL_ERROR "Headers without a list in ${CMAKE_CURRENT_SOURCE_DIR}/CMakeLists.txt: ${headers}. "
      "One without a .cpp of its own is listed itself.")
  endif()
endfunction()

# A room of the module has two lists: RECORDS (rules and records, Qt Core only) and WINDOWS (Qt Widgets). They become two
# libraries, so that a record that includes a widget, or a window of its own room, does not compile. USES names the lower
# rooms; windows may use their windows.
function(corvala_room name)
  cmake_parse_arguments(ROOM "" "" "RECORDS;WINDOWS;USES" ${ARGN})
  set(below_records "")
  set(below_windows "")
  foreach(room IN LISTS ROOM_USES)
    list(APPEND below_records corvala_${room})
    if(TARGET corvala_${room}_windows)
      list(APPEND below_windows corvala_${room}_windows)
    endif()
  endforeach()
  # A room whose records are still to come has a panel only.
  set(records corvala_options corvala_platform ${below_records} Qt6::Core)
  if(ROOM_RECORDS)
    add_library(corvala_${name} STATIC ${ROOM_RECORDS})
    target_link_libraries(corvala_${name} PUBLIC ${records})
    corvala_headers(corvala_${name} ${name} ${ROOM_RECORDS})
    set(records corvala_${name})
  endif()
  if(ROOM_WINDOWS)
    add_library(corvala_${name}_windows STATIC ${ROOM_WINDOWS})
    target_link_libraries(corvala_${name}_windows PUBLIC
      ${records} ${below_windows} corvala_platform_windows Qt6::Widgets)
    corvala_headers(corvala_${name}_windows ${name} ${ROOM_WINDOWS})
  endif()
  corvala_check_headers()
endfunction()
