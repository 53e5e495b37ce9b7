# orvik_version_resource(TARGET DESCRIPTION): gives a Windows program or DLL a version resource with the project's version.
if(WIN32)
  enable_language(RC)
endif()

function(orvik_version_resource target description)
  if(NOT WIN32)
    return()
  endif()
  string(REPLACE "." "," numbers "${PROJECT_VERSION}.0")
  set(resource "${PROJECT_BINARY_DIR}/version/${target}.rc")
  get_target_property(kind ${target} TYPE)
  get_target_property(name ${target} OUTPUT_NAME)
  if(NOT name)
    set(name ${target})
  endif()
  if(kind STREQUAL "EXECUTABLE")
    set(type VFT_APP)
    set(file "${name}.exe")
  else()
    set(type VFT_DLL)
    set(file "${name}.dll")
  endif()
  file(CONFIGURE OUTPUT "${resource}" CONTENT "\
#include <winver.h>
VS_VERSION_INFO VERSIONINFO
FILEVERSION ${numbers}
PRODUCTVERSION ${numbers}
FILEOS VOS_NT_WINDOWS32
FILETYPE ${type}
BEGIN
  BLOCK \"StringFileInfo\"
  BEGIN
    BLOCK \"040904B0\"
    BEGIN
      VALUE \"FileDescription\", \"${description}\"
      VALUE \"FileVersion\", \"${PROJECT_VERSION}\"
      VALUE \"OriginalFilename\", \"${file}\"
      VALUE \"ProductName\", \"Orvik RAID diagnostics\"
      VALUE \"ProductVersion\", \"${PROJECT_VERSION}\"
    END
  END
  BLOCK \"VarFileInfo\"
  BEGIN
    VALUE \"Translation\", 0x409, 1200
  END
END
" @ONLY)
  # The flags of the target's C++ sources mean nothing to the resource compiler, so the resource is a library of its own.
  add_library(${target}_version OBJECT "${resource}")
  target_sources(${target} PRIVATE "$<TARGET_OBJECTS:${target}_version>")
endfunction()
