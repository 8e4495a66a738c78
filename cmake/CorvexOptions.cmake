# SPDX-License-Identifier: MIT
# Options, language level and warnings for every target of the tree.

include(GNUInstallDirs)

option(CORVEX_BUILD_TESTS "Build the unit tests" ON)
option(CORVEX_BUILD_BENCHMARKS "Build the benchmarks" OFF)
option(CORVEX_BUILD_EXAMPLES "Build the generator of example projects, as tests and benchmarks do" OFF)
option(CORVEX_BUILD_FUZZERS "Build the libFuzzer targets (needs clang)" OFF)
option(CORVEX_WARNINGS_AS_ERRORS "Treat compiler warnings as errors" OFF)
option(CORVEX_SANITIZE "Build with AddressSanitizer and UndefinedBehaviorSanitizer" OFF)

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
# Only symbols with an export macro are visible (common/Export.h).
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

# The build tree has the layout of an installation, so that the relative paths from the tools to their
# plug-ins and data are the same in both.
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/${CMAKE_INSTALL_BINDIR}")
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/${CMAKE_INSTALL_LIBDIR}")
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/${CMAKE_INSTALL_LIBDIR}")
set(CMAKE_INSTALL_RPATH "$ORIGIN/../${CMAKE_INSTALL_LIBDIR}" "$ORIGIN")
# Otherwise CMake pads the path with empty entries, which the linker interprets as the current folder.
set(CMAKE_BUILD_WITH_INSTALL_RPATH ON)
set(CORVEX_LIBRARY_PATH "${CMAKE_INSTALL_LIBDIR}/corvex")
set(CORVEX_PLUGIN_PATH "${CORVEX_LIBRARY_PATH}/Plugins/DesignerObjects")
set(CORVEX_DATA_PATH "${CMAKE_INSTALL_DATADIR}/corvex")

# The options for compiling this tree. An installation does not pass them on.
add_library(corvex_build_options INTERFACE)
target_compile_definitions(corvex_build_options INTERFACE
  QT_NO_CAST_FROM_ASCII
  QT_NO_CAST_TO_ASCII
  QT_NO_URL_CAST_FROM_STRING
  QT_NO_FOREACH
  QT_STRICT_ITERATORS)
target_compile_options(corvex_build_options INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-qual -Wundef
  $<$<BOOL:${CORVEX_WARNINGS_AS_ERRORS}>:-Werror>)
# Programs share the precompiled headers of libraries, and GCC accepts one only for code of the same kind.
# CMake adds -fPIE for programs.
target_compile_options(corvex_build_options INTERFACE $<$<STREQUAL:$<TARGET_PROPERTY:TYPE>,EXECUTABLE>:-fPIC>)

if(CORVEX_SANITIZE)
  set(corvex_sanitizers -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_compile_options(${corvex_sanitizers})
  add_link_options(${corvex_sanitizers})
endif()

if(NOT CORVEX_SANITIZE AND NOT CORVEX_BUILD_FUZZERS)
  # Report undefined symbols when a library is linked. With sanitizers some are only resolved at run time.
  add_link_options(-Wl,-z,defs)
endif()

if(CORVEX_BUILD_FUZZERS)
  add_compile_options(-fsanitize=fuzzer-no-link)
endif()

find_program(CORVEX_MOLD mold)
if(CORVEX_MOLD)
  add_link_options(-fuse-ld=mold)
endif()
add_link_options(-Wl,--as-needed)

find_program(CORVEX_CCACHE ccache)
if(CORVEX_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  # With precompiled headers, ccache must ignore time stamps and defined macros. With paths relative to the
  # tree, several checkouts share the cache.
  set(CMAKE_CXX_COMPILER_LAUNCHER
    "${CMAKE_COMMAND}" -E env
    CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime
    "CCACHE_BASEDIR=${PROJECT_SOURCE_DIR}" CCACHE_NOHASHDIR=1
    "${CORVEX_CCACHE}")
endif()
