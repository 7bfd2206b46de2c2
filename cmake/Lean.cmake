# What the lean parts are made of: archives of installed libraries, and the identities of the shared ones
# that come with them. lean/LeanParts.h says what that is for.
option(CUTLINE_LEAN "Build lean makes of the parts that start most often, where it can be done" ON)
if(CUTLINE_SANITIZE OR CUTLINE_RACES OR CUTLINE_COVERAGE OR NOT CMAKE_SYSTEM_PROCESSOR STREQUAL x86_64)
  # What watches a program would not see into archives; calls that wait for their library are written
  # for this processor alone.
  set(CUTLINE_LEAN OFF)
endif()

# The dynamic section's entries of that kind.
function(cutline_dynamic_entries OUT KIND FILE)
  execute_process(COMMAND readelf -dW ${FILE} OUTPUT_VARIABLE ENTRIES ERROR_QUIET)
  # A list cannot hold what opens a bracket.
  string(REPLACE "[" ":" ENTRIES "${ENTRIES}")
  string(REGEX MATCHALL "\\(${KIND}\\)[^\n]*:[^]]+" ENTRIES "${ENTRIES}")
  list(TRANSFORM ENTRIES REPLACE ".*:" "")
  set(${OUT} ${ENTRIES} PARENT_SCOPE)
endfunction()

# cutline_installed_library(OUT LINK): the file that the loader takes for what is linked as LINK.
function(cutline_installed_library OUT LINK)
  cutline_dynamic_entries(SONAME SONAME ${LINK})
  file(REAL_PATH ${LINK} REAL)
  cmake_path(GET REAL PARENT_PATH FOLDER)
  set(${OUT} ${FOLDER}/${SONAME} PARENT_SCOPE)
endfunction()

# cutline_library_file(OUT SONAME): the installed library of that name, nothing where there is none.
function(cutline_library_file OUT SONAME)
  execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${SONAME}
    OUTPUT_VARIABLE FILE OUTPUT_STRIP_TRAILING_WHITESPACE)
  if(NOT IS_ABSOLUTE ${FILE})
    set(FILE)
  endif()
  set(${OUT} ${FILE} PARENT_SCOPE)
endfunction()

# cutline_lean_origins(OUT LINK...): a row of C++ for each, and a new configuration when one changes.
function(cutline_lean_origins OUT)
  set(ROWS)
  foreach(LINK IN LISTS ARGN)
    cutline_installed_library(FILE ${LINK})
    execute_process(COMMAND readelf -nW ${FILE} OUTPUT_VARIABLE NOTES ERROR_QUIET)
    if(NOT NOTES MATCHES "Build ID: ([0-9a-f]+)")
      message(FATAL_ERROR "${FILE} has no build id: configure with -DCUTLINE_LEAN=OFF")
    endif()
    string(REGEX REPLACE "(..)" "\\\\x\\1" ID ${CMAKE_MATCH_1})
    string(APPEND ROWS "    {\"${FILE}\", \"${ID}\"sv},\n")
    set_property(DIRECTORY ${CMAKE_SOURCE_DIR} APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${FILE})
  endforeach()
  set(${OUT} "${ROWS}" PARENT_SCOPE)
endfunction()

if(CUTLINE_LEAN)
  foreach(LIBRARY cups qpdf freetype brotlidec brotlicommon png16 jpeg nettle z)
    find_library(LEAN_${LIBRARY}_ARCHIVE lib${LIBRARY}.a)
    find_library(LEAN_${LIBRARY}_LINK lib${LIBRARY}.so)
    if(NOT LEAN_${LIBRARY}_ARCHIVE OR NOT LEAN_${LIBRARY}_LINK)
      message(STATUS "No lean parts: lib${LIBRARY}.a is missing")
      set(CUTLINE_LEAN OFF)
      break()
    endif()
  endforeach()
endif()

if(CUTLINE_LEAN)
  # What lets calls wait for their library.
  enable_language(ASM)
endif()
