set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)

# Programs and libraries are built into one folder, as in an installation.
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/bin")
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/bin")
set(CMAKE_BUILD_RPATH "$ORIGIN")
set(CMAKE_BUILD_RPATH_USE_ORIGIN ON)

# Windows builds can use the system's API or the simulated machine; other builds always use the simulated machine.
option(ORVIK_SIMULATED "Use the simulated machine instead of the system's API" ON)
if(WIN32)
  set(CMAKE_SHARED_LIBRARY_PREFIX "")
endif()

option(ORVIK_BENCHMARKS "Build the benchmarks: benchmarks/run.sh" OFF)

# "slots", "signals" and "emit" are ordinary names here.
add_compile_definitions(QT_NO_KEYWORDS)

set(ORVIK_SANITIZE "" CACHE STRING "Sanitizers for -fsanitize=, comma separated")

add_library(orvik_options INTERFACE)
target_compile_options(orvik_options INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wold-style-cast -Wnon-virtual-dtor
  -Woverloaded-virtual -Wcast-align -Wformat=2 -Wimplicit-fallthrough -Werror
  $<$<CXX_COMPILER_ID:Clang>:-Wno-format-nonliteral>
  $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)  # GCC 12 reports overlaps in std::string that do not exist
if(ORVIK_SANITIZE)
  # Host and module share only the layout of virtual tables, so there is no type information to check (vptr).
  target_compile_options(orvik_options INTERFACE
    -fsanitize=${ORVIK_SANITIZE} -fno-sanitize=vptr -fno-omit-frame-pointer -fno-sanitize-recover=all)
  target_link_options(orvik_options INTERFACE -fsanitize=${ORVIK_SANITIZE})
endif()

# Coverage for the fuzzers; the fuzz programs link the engine itself (fuzz/CMakeLists.txt).
option(ORVIK_FUZZ "Build the fuzzers in place of the programs and tests; needs clang" OFF)
if(ORVIK_FUZZ)
  target_compile_options(orvik_options INTERFACE -fsanitize=fuzzer-no-link)
  target_compile_definitions(orvik_options INTERFACE _GLIBCXX_ASSERTIONS)
endif()

# Every target of ours includes from the repository root ("utils/text/string_handler.h"); who may include whom is
# checked by IncludeRules.cmake and by what each target links.
function(orvik_target name)
  target_link_libraries(${name} PRIVATE orvik_options)
  target_include_directories(${name} PRIVATE "${PROJECT_SOURCE_DIR}")
endfunction()

# For a library that hosts load by its plain name, without the prefix "lib".
function(orvik_plugin_name name)
  set_target_properties(${name} PROPERTIES PREFIX "")
  if(WIN32 AND ORVIK_SIMULATED)
    # An installation can have both variants in one folder.
    set_target_properties(${name} PROPERTIES OUTPUT_NAME "${name}_simulated")
  endif()
endfunction()

# Exports only the named symbols of a library, and none that other libraries' headers add. Windows builds do not need
# this.
function(orvik_linker_map name)
  if(WIN32)
    return()
  endif()
  set(map "${CMAKE_CURRENT_BINARY_DIR}/${name}.map")
  list(JOIN ARGN "; " names)
  file(CONFIGURE OUTPUT "${map}" CONTENT "{ global: @names@; local: *; };\n" @ONLY)
  target_link_options(${name} PRIVATE "LINKER:--version-script=${map}")
  if(NOT ORVIK_FUZZ)
    # With clang the sanitizers' functions are in the program only.
    target_link_options(${name} PRIVATE "LINKER:-z,defs")
  endif()
  set_target_properties(${name} PROPERTIES LINK_DEPENDS "${map}")
endfunction()

# Makes a plug-in library: of its symbols only the given functions of the given source file are visible, undecorated.
function(orvik_exports name source)
  orvik_plugin_name(${name})
  if(WIN32)
    set(list "${CMAKE_CURRENT_BINARY_DIR}/${name}.def")
    list(JOIN ARGN "\n  " names)
    file(CONFIGURE OUTPUT "${list}" CONTENT "EXPORTS\n  @names@\n" @ONLY)
    target_sources(${name} PRIVATE "${list}")
  else()
    set_source_files_properties(${source} PROPERTIES COMPILE_OPTIONS -fvisibility=default)
    orvik_linker_map(${name} ${ARGN})
  endif()
endfunction()
