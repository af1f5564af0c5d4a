# The tool chain that compiles programs for 64-bit Windows on Debian, with the libraries that scripts/windows-toolchain
# builds. What is built has no time stamps and no names of local folders.
if(DEFINED ENV{TALLYWICK_WINDOWS_CACHE})
  set(windows_cache "$ENV{TALLYWICK_WINDOWS_CACHE}")
else()
  set(windows_cache "$ENV{HOME}/.cache/tallywick-windows")
endif()

set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

set(CMAKE_FIND_ROOT_PATH "${windows_cache}/root" /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# The toolkit's own tools run here.
set(QT_HOST_PATH /usr)
set(QT_HOST_PATH_CMAKE_DIR /usr/lib/x86_64-linux-gnu/cmake)
set(Qt6HostInfo_DIR "${QT_HOST_PATH_CMAKE_DIR}/Qt6HostInfo")

set(CMAKE_C_FLAGS_INIT "-ffile-prefix-map=${windows_cache}=.")
set(CMAKE_CXX_FLAGS_INIT "-ffile-prefix-map=${windows_cache}=.")
set(CMAKE_EXE_LINKER_FLAGS_INIT "-Wl,--no-insert-timestamp")
set(CMAKE_SHARED_LINKER_FLAGS_INIT "-Wl,--no-insert-timestamp")
set(CMAKE_MODULE_LINKER_FLAGS_INIT "-Wl,--no-insert-timestamp")
