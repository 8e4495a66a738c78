# SPDX-License-Identifier: MIT
# Functions that declare the targets of this tree.

# corvex_precompiled_header()
#
# The precompiled header of all modules, tools and plug-ins: the target corvex_precompiled. It takes as long as
# a dozen sources, so a separate one for each module would cost more than it saves.
function(corvex_precompiled_header)
  file(CONFIGURE OUTPUT pch.cpp CONTENT "")
  add_library(corvex_precompiled OBJECT "${CMAKE_CURRENT_BINARY_DIR}/pch.cpp")
  target_link_libraries(corvex_precompiled PRIVATE corvex_build_options Qt6::Core Qt6::Gui)
  target_precompile_headers(corvex_precompiled PRIVATE "${PROJECT_SOURCE_DIR}/cmake/pch.h")
endfunction()

# corvex_automoc(TARGET)
#
# Runs moc for the target. moc only runs again when a known file changes, and would miss a new file in a
# folder. Therefore it gets an additional header that changes with the list of files.
function(corvex_automoc target)
  get_target_property(sources ${target} SOURCES)
  list(TRANSFORM sources PREPEND "// ")
  list(JOIN sources "\n" text)
  file(CONFIGURE OUTPUT ${target}_sources.h CONTENT "${text}\n")
  target_sources(${target} PRIVATE "${CMAKE_CURRENT_BINARY_DIR}/${target}_sources.h")
  set_target_properties(${target} PROPERTIES AUTOMOC ON)
endfunction()

# corvex_room(NAME LINKS target...)
#
# A module is a folder of libs/corvex. It is compiled with only the libraries that its layer may use; the
# objects of all modules form the library DesignerCore. The folder may contain sub-folders; files are found
# automatically. Sets the target corvex_NAME.
function(corvex_room name)
  cmake_parse_arguments(ROOM "" "" "LINKS" ${ARGN})
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/*.cpp" "${CMAKE_CURRENT_SOURCE_DIR}/*.h")
  if(NOT sources)
    return()
  endif()
  add_library(corvex_${name} OBJECT ${sources})
  target_link_libraries(corvex_${name} PUBLIC ${ROOM_LINKS} PRIVATE corvex_build_options)
  target_compile_definitions(corvex_${name} PRIVATE CORVEX_BUILDS_DESIGNER_CORE)
  target_include_directories(corvex_${name} PUBLIC "$<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/libs>")
  target_precompile_headers(corvex_${name} REUSE_FROM corvex_precompiled)
  corvex_automoc(corvex_${name})
  set_property(GLOBAL APPEND PROPERTY CORVEX_ROOMS corvex_${name})
endfunction()

# corvex_plugin(NAME SOURCES file... LINKS target...)
#
# A plug-in for the factory: libNAME.so in the folder of plug-ins, installed.
function(corvex_plugin name)
  cmake_parse_arguments(PLUGIN "" "" "SOURCES;LINKS" ${ARGN})
  add_library(${name} MODULE ${PLUGIN_SOURCES})
  target_link_libraries(${name} PRIVATE corvex_build_options DesignerCore ${PLUGIN_LINKS})
  target_include_directories(${name} PRIVATE "${PROJECT_SOURCE_DIR}/plugins")
  target_precompile_headers(${name} REUSE_FROM corvex_precompiled)
  corvex_automoc(${name})
  file(RELATIVE_PATH up "/${CORVEX_PLUGIN_PATH}" "/${CMAKE_INSTALL_LIBDIR}")
  set_target_properties(${name} PROPERTIES
    LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/${CORVEX_PLUGIN_PATH}"
    INSTALL_RPATH "$ORIGIN/${up}")
  install(TARGETS ${name} LIBRARY DESTINATION "${CORVEX_PLUGIN_PATH}")
endfunction()

# corvex_test(NAME SOURCES file... LINKS target...)
#
# A test program, test_NAME, which CTest runs as the test NAME. Its main function is tests/support/main.cpp,
# which creates an application object that needs no display.
function(corvex_test name)
  cmake_parse_arguments(TEST "" "" "SOURCES;LINKS" ${ARGN})
  add_executable(test_${name} ${TEST_SOURCES})
  target_link_libraries(test_${name} PRIVATE corvex_build_options corvex_test_support ${TEST_LINKS})
  target_precompile_headers(test_${name} REUSE_FROM corvex_test_support)
  corvex_automoc(test_${name})
  add_test(NAME ${name} COMMAND test_${name})
endfunction()
