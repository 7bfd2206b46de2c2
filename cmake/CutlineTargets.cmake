# What every target shares: the language level, the warnings, where things are put, and the
# functions that declare a target of each kind.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
if(NOT CMAKE_BUILD_TYPE)
  set(CMAKE_BUILD_TYPE Release)
endif()

# The build tree has the layout of an installation, so that a program finds its modules, bundles and
# samples in the same way in both.
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
set(CUTLINE_LIB_DIR lib/cutline)
set(CUTLINE_PLUGIN_DIR ${CUTLINE_LIB_DIR}/plugins)
set(CUTLINE_SAMPLE_DIR share/cutline/samples)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/${CUTLINE_LIB_DIR})
set(CMAKE_BUILD_WITH_INSTALL_RPATH ON)

option(CUTLINE_SANITIZE "Build with AddressSanitizer and UndefinedBehaviorSanitizer" OFF)
option(CUTLINE_RACES "Build with ThreadSanitizer; scripts/races runs it" OFF)
option(CUTLINE_FUZZ "Build the fuzzers, too; takes clang, and the sanitizers with it" OFF)
if(CUTLINE_FUZZ)
  set(CUTLINE_SANITIZE ON)
endif()

set(CMAKE_CXX_FLAGS_RELEASE "-O2 -DNDEBUG")

# Another compiler may warn of more than ours; ./test and ./run build with this.
option(CUTLINE_WERROR "Take the compiler's warnings for errors" ON)
add_compile_options(-Wall -Wextra -Wpedantic)
if(CUTLINE_WERROR)
  add_compile_options(-Werror -Wno-error=deprecated-declarations)
endif()
if(CMAKE_CXX_COMPILER_ID STREQUAL GNU)
  # Both are wrong about inlined strings and variants in this compiler's release (12).
  add_compile_options(-Wno-restrict -Wno-maybe-uninitialized)
  if(CMAKE_UNITY_BUILD)
    # It takes a source that is compiled together with others for a header.
    add_compile_options($<$<COMPILE_LANGUAGE:CXX>:-Wno-subobject-linkage>)
  endif()
endif()
include(Hardening)
include_directories(${CMAKE_SOURCE_DIR})
if(CUTLINE_SANITIZE)
  # Unoptimised, the sanitizers' checks take three times as long.
  set(CMAKE_CXX_FLAGS_DEBUG "-O1 -g1")
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined
                      -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
  if(CMAKE_CXX_COMPILER_ID STREQUAL Clang)
    add_compile_definitions(__SANITIZE_ADDRESS__=1)  # as gcc has it
  endif()
endif()

if(CUTLINE_RACES)
  set(CMAKE_CXX_FLAGS_DEBUG "-O1 -g1")
  add_compile_options(-fsanitize=thread)
  add_link_options(-fsanitize=thread)
endif()

option(CUTLINE_COVERAGE "Build with clang's counters of what runs; scripts/coverage reads them" OFF)
if(CUTLINE_COVERAGE)
  set(CMAKE_CXX_FLAGS_DEBUG "-O1")
  # Each program and library maps a file for its counters, which all its processes share: so those count,
  # too, that are killed, or confined before their end. The name is compiled in, as some are started
  # without an environment.
  set(COUNTERS -fprofile-instr-generate=${CMAKE_BINARY_DIR}/counters/%m%c.profraw)
  add_compile_options(${COUNTERS} -fcoverage-mapping -fprofile-update=atomic
                      "SHELL:-mllvm -runtime-counter-relocation"
                      # What is unnamed is told apart by its source, which each target of this build has.
                      "SHELL:-Xclang -main-file-name -Xclang $<TARGET_PROPERTY:NAME>.cpp")
  add_link_options(${COUNTERS})
endif()

if(CUTLINE_FUZZ)
  set(CMAKE_CXX_FLAGS_RELEASE "-O1 -gline-tables-only")
  add_compile_options(-fsanitize=fuzzer-no-link)
endif()

# clang 14 cannot take one of qpdf's headers.
set(CLANG_OPTIONS $<$<COMPILE_LANGUAGE:CXX>:-DJSON_HH>
                  $<$<COMPILE_LANGUAGE:CXX>:-include${CMAKE_SOURCE_DIR}/cmake/QpdfJson.h>)
if(CMAKE_CXX_COMPILER_ID STREQUAL Clang)
  add_compile_options(${CLANG_OPTIONS})
endif()

# cutline_exports(TARGET MAP): what the map doesn't name stays inside.
function(cutline_exports TARGET MAP)
  # Nothing stands in for a function of ours, so the loader need not look for one that is in the library.
  target_link_options(${TARGET} PRIVATE LINKER:--version-script=${MAP} LINKER:-Bsymbolic-functions)
  set_property(TARGET ${TARGET} APPEND PROPERTY LINK_DEPENDS ${MAP})
endfunction()

# The sources of the current folder; a new file is picked up by itself.
function(cutline_sources OUT)
  file(GLOB FOUND CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp)
  foreach(DIR IN LISTS ARGN)
    file(GLOB IN_DIR CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${DIR}/*.cpp)
    list(APPEND FOUND ${IN_DIR})
  endforeach()
  set(${OUT} ${FOUND} PARENT_SCOPE)
endfunction()

# Test programs end in <build>/tests; the list of them is what the test command runs. SHARDS: in so many
# processes, for programs that wait for most of their time. LONG programs begin before short ones, as
# those in shards do, so that none is left alone at the end. Each leaves its report in <build>/reports.
function(cutline_add_test NAME)
  cmake_parse_arguments(ARG "LONG" "SHARDS" "SOURCES;LIBS;ENVIRONMENT" ${ARGN})
  add_executable(${NAME} ${ARG_SOURCES})
  target_link_libraries(${NAME} PRIVATE ${ARG_LIBS})
  set_target_properties(${NAME} PROPERTIES
    RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests
    INSTALL_RPATH "$ORIGIN/../${CUTLINE_LIB_DIR}")
  target_compile_definitions(${NAME} PRIVATE
    CUTLINE_SOURCE_DIR="${CMAKE_SOURCE_DIR}" CUTLINE_BUILD_DIR="${CMAKE_BINARY_DIR}")
  if(NOT ARG_SHARDS)
    cutline_add_run(${NAME} ${NAME} "${ARG_ENVIRONMENT}")
    if(ARG_LONG)
      set_tests_properties(${NAME} PROPERTIES COST 50)
    endif()
    return()
  endif()
  foreach(SHARD RANGE 1 ${ARG_SHARDS})
    math(EXPR INDEX "${SHARD} - 1")
    cutline_add_run(${NAME}_${SHARD} ${NAME}
      "${ARG_ENVIRONMENT};GTEST_TOTAL_SHARDS=${ARG_SHARDS};GTEST_SHARD_INDEX=${INDEX}")
    set_tests_properties(${NAME}_${SHARD} PROPERTIES COST 100)
  endforeach()
endfunction()

function(cutline_add_run NAME PROGRAM ENVIRONMENT)
  add_test(NAME ${NAME} COMMAND ${PROGRAM})
  set_tests_properties(${NAME} PROPERTIES TIMEOUT 1800
    ENVIRONMENT "${ENVIRONMENT};GTEST_OUTPUT=xml:${CMAKE_BINARY_DIR}/reports/${NAME}.xml")
endfunction()
