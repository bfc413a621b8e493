# Builds for 64-bit Windows on Linux with MinGW-w64, threads of the POSIX kind (Debian's package
# g++-mingw-w64-x86-64-posix). QUADRELO_WINDOWS_QT, a setting or a variable of the environment, is the folder
# of a Qt for this compiler: see docs/windows.md.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

if(NOT QUADRELO_WINDOWS_QT AND DEFINED ENV{QUADRELO_WINDOWS_QT})
  set(QUADRELO_WINDOWS_QT "$ENV{QUADRELO_WINDOWS_QT}")
endif()
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES QUADRELO_WINDOWS_QT)
set(CMAKE_PREFIX_PATH ${QUADRELO_WINDOWS_QT})
set(CMAKE_FIND_ROOT_PATH ${QUADRELO_WINDOWS_QT} /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE BOTH)

# Qt's own tools (moc, rcc) run on the machine that builds.
set(QT_HOST_PATH /usr CACHE PATH "A Qt of the same version for the machine that builds")
find_path(quadrelo_host_qt Qt6HostInfo/Qt6HostInfoConfig.cmake
  PATHS ${QT_HOST_PATH}/lib/x86_64-linux-gnu/cmake ${QT_HOST_PATH}/lib/cmake
  NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH)
if(quadrelo_host_qt)
  set(QT_HOST_PATH_CMAKE_DIR ${quadrelo_host_qt} CACHE PATH "Its CMake files")
endif()
