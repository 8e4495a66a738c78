# SPDX-License-Identifier: MIT
# Installs the build tree into a temporary prefix, moves that elsewhere, and there runs the installed tool, and builds
# and runs the plug-in and the program in outside/ with nothing but the moved prefix.
# Variables: build, generator, compiler, launcher, sanitize.
cmake_minimum_required(VERSION 3.25)

if(generator MATCHES "Ninja" AND NOT EXISTS "${build}/build.ninja")
  message(STATUS "skipped: ${build} was not made by ${generator}")
  return()
endif()
foreach(library CorvexCommon CorvexZip DesignerCore)
  file(GLOB_RECURSE found "${build}/lib*/lib${library}.so")
  if(NOT found)
    message(STATUS "skipped: lib${library} is not built")
    return()
  endif()
endforeach()

set(work "${build}/Testing/install")
set(prefix "${work}/moved to here")
file(REMOVE_RECURSE "${work}")

function(run what)
  execute_process(COMMAND ${ARGN} OUTPUT_VARIABLE output ERROR_VARIABLE errors RESULT_VARIABLE status)
  if(NOT status EQUAL 0)
    message(FATAL_ERROR "${what} failed (${status})\n${output}\n${errors}")
  endif()
  set(output "${output}" PARENT_SCOPE)
endfunction()

# No program takes libraries from the current folder, which may be somebody else's.
file(GLOB_RECURSE programs LIST_DIRECTORIES false "${build}/bin/*" "${build}/lib*/*.so*")
foreach(program ${programs})
  execute_process(COMMAND readelf -d "${program}" OUTPUT_VARIABLE output ERROR_QUIET)
  if(output MATCHES "RUNPATH\\)[^[]*\\[(:|[^]]*::|[^]]*:\\])")
    message(FATAL_ERROR "${program} looks for libraries in the current folder")
  endif()
endforeach()

run("installing" "${CMAKE_COMMAND}" --install "${build}" --prefix "${work}/first")
file(RENAME "${work}/first" "${prefix}")

# The installed tool finds its plug-ins and device models: a project with elements of a plug-in has no problems.
run("building with the installed tool" "${CMAKE_COMMAND}" -E env "ASAN_OPTIONS=$ENV{ASAN_OPTIONS}:detect_leaks=0"
  "${prefix}/bin/corvex" build "${CMAKE_CURRENT_LIST_DIR}/../../examples/PumpStation/PumpStation.kdproj" -o "${work}/out")

# Nothing that only this tree knows may be asked of others.
file(GLOB_RECURSE package "${prefix}/*DesignerCore*.cmake")
foreach(file ${package})
  file(READ "${file}" text)
  cmake_path(GET build PARENT_PATH builds)
  foreach(inside corvex_build_options "${build}" PkgConfig EXPAT)
    string(FIND "${text}" "${inside}" position)
    if(NOT position EQUAL -1)
      message(FATAL_ERROR "the installed package mentions ${inside}: ${file}")
    endif()
  endforeach()
endforeach()

set(flags "")
if(sanitize)
  set(flags "-fsanitize=address,undefined")
endif()
run("configuring the program outside" "${CMAKE_COMMAND}" -S "${CMAKE_CURRENT_LIST_DIR}/outside" -B "${work}/outside"
  -G "${generator}" "-DCMAKE_CXX_COMPILER=${compiler}" "-DCMAKE_CXX_COMPILER_LAUNCHER=${launcher}"
  "-DCMAKE_PREFIX_PATH=${prefix}" "-DCMAKE_EXE_LINKER_FLAGS=${flags}")
run("building the program outside" "${CMAKE_COMMAND}" --build "${work}/outside")
file(GLOB_RECURSE zipped "${work}/out/*.kdproj.zip")
run("running the program that packs" "${work}/outside/archive" "${zipped}")
run("running the program outside" "${CMAKE_COMMAND}" -E chdir "${work}" "${work}/outside/outside")
if(NOT output STREQUAL "Main: FlowMeter meter (30 l/min), Text label, Text lamp\n")
  message(FATAL_ERROR "the program printed something else: ${output}")
endif()
run("running the program that inspects" "${CMAKE_COMMAND}" -E chdir "${work}"
  "${work}/outside/inspect" Plant/Plant.kdproj Main.meter INPUT_FILE "${CMAKE_CURRENT_LIST_DIR}/outside/edits.txt")
file(READ "${CMAKE_CURRENT_LIST_DIR}/outside/inspect.txt" expected)
# The order in which one edit changes several properties is not fixed.
foreach(text output expected)
  string(REPLACE ";" "," sorted_${text} "${${text}}")
  string(REPLACE "\n" ";" sorted_${text} "${sorted_${text}}")
  list(SORT sorted_${text})
endforeach()
if(NOT sorted_output STREQUAL sorted_expected)
  message(FATAL_ERROR "the program that inspects printed something else: ${output}")
endif()

# The installed tool follows the references of the plug-in's element, writes it and shows it, as its tables say.
set(plant "${work}/Plant/Plant.kdproj")
function(corvex verb)
  run("corvex ${verb} with the plug-in" "${CMAKE_COMMAND}" -E env "ASAN_OPTIONS=$ENV{ASAN_OPTIONS}:detect_leaks=0"
    "${prefix}/bin/corvex" ${verb} "${plant}" ${ARGN})
  set(output "${output}" PARENT_SCOPE)
endfunction()
function(expect expected)
  if(NOT output MATCHES "${expected}")
    message(FATAL_ERROR "the plug-in: expected ${expected}, but it is: ${output}")
  endif()
endfunction()
file(WRITE "${work}/edits" "model VTR 50-K\nrename speed flow\nrename Main.label sign\nset Main.meter.visualElement objectId: lamp;\n")
corvex(edit "${work}/edits")
corvex(uses sign)
expect("meter.sources")
corvex(uses lamp)
expect("meter.alarmState.*meter.visualElement|meter.visualElement.*meter.alarmState")
file(WRITE "${work}/edits" "delete Main.sign\n")
corvex(edit "${work}/edits")
corvex(tree Main.meter.sources)
expect("^flow\n$")
file(WRITE "${work}/touches" "expect meter.litres 30\n")
corvex(build -o "${work}/plant")
file(READ "${work}/plant/project/qml_Main.qml" output)
expect("flowMeters: \\[[^]]*FlowMeter {[^]]*visualElement: qml_lamp")
corvex(preview --script "${work}/touches")
