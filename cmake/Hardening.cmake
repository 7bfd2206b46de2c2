# What compiler and linker add against mistakes that somebody could use. SECURITY.md says what it is;
# a test looks into each program and library that was built.
include(CheckPIESupported)
include(CheckCXXCompilerFlag)

option(CUTLINE_HARDENING "Build with the compiler's and linker's protections" OFF)

# Programs, too, lie at another place each time.
check_pie_supported(LANGUAGES CXX)

set(HARDENING_OPTIONS)
if(CUTLINE_HARDENING)
  # Out of bounds in the standard library's containers ends the program.
  list(APPEND HARDENING_OPTIONS -D_GLIBCXX_ASSERTIONS -Wformat=2)
endif()
if(CUTLINE_HARDENING AND NOT CUTLINE_SANITIZE)
  # Lengths are checked in calls of libc where the compiler optimises; it may have a level of its own.
  list(APPEND HARDENING_OPTIONS
    $<$<CONFIG:Release,RelWithDebInfo>:-U_FORTIFY_SOURCE>
    $<$<CONFIG:Release,RelWithDebInfo>:-D_FORTIFY_SOURCE=3>)
  # Stacks with a guard and without jumps over the guard page; variables that nobody set are zero.
  list(APPEND HARDENING_OPTIONS -fstack-protector-strong -fstack-clash-protection)
  foreach(FLAG ftrivial-auto-var-init=zero fcf-protection=full)
    string(MAKE_C_IDENTIFIER ${FLAG} KNOWN)
    check_cxx_compiler_flag(-${FLAG} ${KNOWN})
    if(${KNOWN})
      list(APPEND HARDENING_OPTIONS -${FLAG})
    endif()
  endforeach()
  # Tables of the linker are read-only when the program begins, and no stack is code.
  add_link_options(LINKER:-z,relro LINKER:-z,now LINKER:-z,noexecstack LINKER:--as-needed)
endif()
add_compile_options(${HARDENING_OPTIONS})

# Of the folders that follow: what is not installed is compiled without.
macro(cutline_end_hardening)
  get_property(OPTIONS DIRECTORY PROPERTY COMPILE_OPTIONS)
  if(HARDENING_OPTIONS)
    list(REMOVE_ITEM OPTIONS ${HARDENING_OPTIONS})
  endif()
  set_property(DIRECTORY PROPERTY COMPILE_OPTIONS ${OPTIONS})
endmacro()
