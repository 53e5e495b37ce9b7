# 64-bit Windows with Debian's mingw-w64 cross compiler (POSIX threads) and the Qt that scripts/windows/qt.sh builds.
if(NOT EXISTS "$ENV{ORVIK_QT_WINDOWS}/lib/cmake/Qt6")
  message(FATAL_ERROR "ORVIK_QT_WINDOWS does not name a Qt for Windows. To build one, or find the one built earlier:\n"
    "  export ORVIK_QT_WINDOWS=$(scripts/windows/qt.sh)")
endif()

set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32 "$ENV{ORVIK_QT_WINDOWS}")
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

set(QT_HOST_PATH /usr)
set(QT_HOST_PATH_CMAKE_DIR /usr/lib/x86_64-linux-gnu/cmake)
