# orvik_header_only(TARGET FOLDER): a header-only library that Debian installs in /usr/include/FOLDER. Cross builds can use
# it too, without the rest of /usr/include.
function(orvik_header_only target folder)
  file(MAKE_DIRECTORY "${PROJECT_BINARY_DIR}/headers")
  if(NOT EXISTS "/usr/include/${folder}")
    message(FATAL_ERROR "/usr/include/${folder} is missing; run: scripts/packages.sh build")
  endif()
  file(CREATE_LINK "/usr/include/${folder}" "${PROJECT_BINARY_DIR}/headers/${folder}" SYMBOLIC)
  add_library(${target} INTERFACE IMPORTED GLOBAL)
  target_include_directories(${target} SYSTEM INTERFACE "${PROJECT_BINARY_DIR}/headers")
endfunction()
