# Everything the project is built with, by the part that needs it.
find_package(LibXml2 REQUIRED)
find_package(CURL REQUIRED)
find_package(Qt6 6.4 REQUIRED COMPONENTS Core Gui Widgets PrintSupport OPTIONAL_COMPONENTS Svg)
if(NOT Qt6Svg_FOUND)
  message(STATUS "Qt Svg was not found: the pictures are drawn by rsvg-convert, in a few sizes")
endif()
find_package(Threads REQUIRED)
find_package(CLI11 REQUIRED)
if(UNIX)
  find_package(Cups QUIET)
  if(NOT CUPS_FOUND)
    message(STATUS "CUPS was not found: raw jobs can only go to a directory")
  endif()
  find_package(PkgConfig QUIET)
  if(PkgConfig_FOUND)
    pkg_check_modules(XCB QUIET IMPORTED_TARGET xcb)
  endif()
  if(NOT XCB_FOUND)
    message(STATUS "xcb was not found: under a modal screen the main window can't be closed on X11")
  endif()
endif()

if(TARN_BUILD_TOOLS)
  find_package(Qt6 6.4 REQUIRED COMPONENTS Network)
  # A precompiled header is of use only where all macros are the same, and nothing of Qt
  # asks for this one.
  set_property(TARGET Qt6::Network PROPERTY INTERFACE_COMPILE_DEFINITIONS "")
endif()

if(TARN_BUILD_PRACTICE)
  find_package(Qt6 6.4 REQUIRED COMPONENTS Sql Test)
  find_package(PkgConfig REQUIRED)
  pkg_check_modules(HTTPLIB REQUIRED IMPORTED_TARGET cpp-httplib)
  # Qt tells each of its users that user's own folders by macros, and a precompiled header
  # is of use only where all macros are the same.
  set_property(TARGET Qt6::Test PROPERTY INTERFACE_COMPILE_DEFINITIONS QT_TESTLIB_LIB)
endif()

if(TARN_BUILD_TESTS)
  find_package(GTest REQUIRED)
  if(UNIX)
    find_package(OpenSSL REQUIRED)  # certificates of the tests' own; cpp-httplib brings it
  endif()
  find_package(X11)
endif()

if(TARN_BUILD_BENCH)
  find_package(benchmark REQUIRED)
endif()
