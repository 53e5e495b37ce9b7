# Checks the includes against the table in docs/architecture.md: which layer may include which, and that the folders of a
# layer do not include each other in a circle. As a script (cmake -DROOT=... -P IncludeRules.cmake) it prints each include
# that breaks a rule and fails; included by the project, it runs in every build.

cmake_minimum_required(VERSION 3.25)

if(NOT CMAKE_SCRIPT_MODE_FILE)
  add_custom_target(include_rules ALL
    COMMAND "${CMAKE_COMMAND}" "-DROOT=${PROJECT_SOURCE_DIR}" -P "${CMAKE_CURRENT_LIST_FILE}"
    COMMENT "Checking the include rules" VERBATIM)
  return()
endif()

# Layers from the most to the least specific folder: a file belongs to the first whose folder it lies in. After each
# folder: the folders (or single headers) whose files it may include beside its own. `outside` is what a Windows
# program would find in the system and in the host's installation.
set(layers
  "module/storage: utils outside"
  "module/raid: module/storage utils core outside Qt"
  "core:"
  "utils: core outside Qt"
  "platform/skinkit: Qt outside"
  "platform: simulation core utils/text/string_handler.h outside"
  "simulation: Qt"
  "host: core module/raid/device_records.h module/storage/protocol.h module/storage/protocol_properties.h
   module/storage/status.h Qt CLI windows.h"
  "tests: *")
set(outside_headers "windows.h|setupapi.h|winioctl.h|ntddscsi.h|shlobj.h|shellscalingapi.h|hostkit.h|skinkit.h")

function(layer_of path result)
  foreach(layer IN LISTS layers)
    string(REGEX REPLACE ":.*" "" folder "${layer}")
    if(path MATCHES "^${folder}/")
      set(${result} "${folder}" PARENT_SCOPE)
      return()
    endif()
  endforeach()
  set(${result} "" PARENT_SCOPE)
endfunction()

set(bad 0)
set(edges "")  # "folder > folder" inside a layer, without repetition
file(GLOB_RECURSE files RELATIVE "${ROOT}"
  "${ROOT}/core/*" "${ROOT}/utils/*" "${ROOT}/module/*" "${ROOT}/platform/*" "${ROOT}/simulation/*" "${ROOT}/host/*")
foreach(file IN LISTS files)
  if(NOT file MATCHES "\\.(h|cpp)$")
    continue()
  endif()
  layer_of("${file}" own)
  foreach(layer IN LISTS layers)
    if(layer MATCHES "^${own}: ?(.*)")
      separate_arguments(allowed UNIX_COMMAND "${CMAKE_MATCH_1}")
      break()
    endif()
  endforeach()
  file(STRINGS "${ROOT}/${file}" includes REGEX "^[ \t]*#[ \t]*include")
  foreach(include IN LISTS includes)
    if(include MATCHES "\"(.*)\"")
      set(target "${CMAKE_MATCH_1}")
      layer_of("${target}" layer)
      if(NOT layer AND file MATCHES "^platform/windows/include/")
        continue()  # the stand-in headers lie side by side, as the system's do
      endif()
    elseif(include MATCHES "<(Q[A-Za-z]+)>")
      set(target "${CMAKE_MATCH_1}")
      set(layer Qt)
    elseif(include MATCHES "<(CLI/.*)>")
      set(target "${CMAKE_MATCH_1}")
      set(layer CLI)
    elseif(include MATCHES "<(${outside_headers})>")
      set(target "${CMAKE_MATCH_1}")
      set(layer outside)
    else()
      continue()
    endif()
    if(layer STREQUAL own)
      get_filename_component(from "${file}" DIRECTORY)
      get_filename_component(to "${target}" DIRECTORY)
      if(NOT from STREQUAL to AND NOT "${from} > ${to}" IN_LIST edges)
        list(APPEND edges "${from} > ${to}")
        string(MAKE_C_IDENTIFIER "${from} > ${to}" key)
        set(include_${key} "${file} includes ${target}")
      endif()
    endif()
    if(NOT layer STREQUAL own AND NOT layer IN_LIST allowed AND NOT target IN_LIST allowed)
      message("${file}: may not include ${target}")
      set(bad 1)
    endif()
  endforeach()
endforeach()

# A folder that includes no other folder is in no circle; without it, the next ones drop out. What remains is a circle, or
# leads into one.
set(count -1)
while(NOT count EQUAL 0)
  set(count 0)
  set(sources "${edges}")
  list(TRANSFORM sources REPLACE " > .*" "")
  set(remaining "")
  foreach(edge IN LISTS edges)
    string(REGEX REPLACE ".* > " "" to "${edge}")
    if(to IN_LIST sources)
      list(APPEND remaining "${edge}")
    else()
      math(EXPR count "${count} + 1")
    endif()
  endforeach()
  set(edges "${remaining}")
endwhile()
foreach(edge IN LISTS edges)
  string(MAKE_C_IDENTIFIER "${edge}" key)
  message("folders in a circle: ${edge} (${include_${key}})")
  set(bad 1)
endforeach()

if(bad)
  message(FATAL_ERROR "docs/architecture.md has the table of who may include whom.")
endif()
