# mingw-w64 of Debian 12, with threads of its C++ library over winpthread ("posix"). The
# environment's TARN_WINDOWS_PREFIX is the folder that holds what was built for Windows.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(tarn_triple x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${tarn_triple}-gcc-posix)
set(CMAKE_CXX_COMPILER ${tarn_triple}-g++-posix)
set(CMAKE_RC_COMPILER ${tarn_triple}-windres)

set(tarn_windows_prefix "$ENV{TARN_WINDOWS_PREFIX}")
set(CMAKE_FIND_ROOT_PATH "${tarn_windows_prefix}" /usr/${tarn_triple})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
foreach(kind LIBRARY INCLUDE PACKAGE)
  set(CMAKE_FIND_ROOT_PATH_MODE_${kind} ONLY)
endforeach()

# Static, so that no file more goes with the programs.
set(ZLIB_LIBRARY /usr/${tarn_triple}/lib/libz.a CACHE FILEPATH "")
set(ZLIB_INCLUDE_DIR /usr/${tarn_triple}/include CACHE PATH "")
# What winhttp, unicode and the rest of the interfaces that are used ask for: Windows 10.
set(CMAKE_C_FLAGS_INIT "-D_WIN32_WINNT=0x0A00 -DLIBXML_STATIC")
set(CMAKE_CXX_FLAGS_INIT "-D_WIN32_WINNT=0x0A00 -DLIBXML_STATIC")
