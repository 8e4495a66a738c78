# SPDX-License-Identifier: MIT
# Functions that declare the kinds of targets of this tree.

# corvex_room(NAME LINKS target...)
#
# A room is one folder of libs/corvex, compiled by itself with nothing but the libraries that its floor may
# use; the objects of all rooms make the library DesignerCore. The folder may hold sub-folders; each file is
# found by itself. Sets the target corvex_NAME.
function(corvex_room name)
  cmake_parse_arguments(ROOM "" "" "LINKS" ${ARGN})
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/*.cpp" "${CMAKE_CURRENT_SOURCE_DIR}/*.h")
  if(NOT sources)
    return()
  endif()
  add_library(corvex_${name} OBJECT ${sources})
  target_link_libraries(corvex_${name} PUBLIC ${ROOM_LINKS} PRIVATE corvex_build_options)
  target_include_directories(corvex_${name} PUBLIC "$<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/libs>")
  target_precompile_headers(corvex_${name} PRIVATE "${PROJECT_SOURCE_DIR}/cmake/pch.h")
  set_target_properties(corvex_${name} PROPERTIES AUTOMOC ON)
  set_property(GLOBAL APPEND PROPERTY CORVEX_ROOMS corvex_${name})
endfunction()

# corvex_test(NAME SOURCES file... LINKS target...)
#
# One test program, test_NAME, run by CTest as one test named NAME. Its main function is
# tests/support/main.cpp, which makes a GUI application object that needs no display.
function(corvex_test name)
  cmake_parse_arguments(TEST "" "" "SOURCES;LINKS" ${ARGN})
  add_executable(test_${name} ${TEST_SOURCES})
  target_link_libraries(test_${name} PRIVATE corvex_build_options corvex_test_support ${TEST_LINKS})
  target_precompile_headers(test_${name} REUSE_FROM corvex_test_support)
  set_target_properties(test_${name} PROPERTIES AUTOMOC ON)
  add_test(NAME ${name} COMMAND test_${name})
endfunction()
