# What every target of the tree is compiled and linked with.
option(HALVANE_WERROR "Treat warnings as errors" OFF)
option(HALVANE_COVERAGE "Record line coverage" OFF)
set(HALVANE_SANITIZE "" CACHE STRING "Sanitizers to build with, as -fsanitize= takes them")

add_library(halvane_options INTERFACE)
target_compile_options(halvane_options INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wno-sign-conversion -Wnon-virtual-dtor)
if(NOT CMAKE_SYSTEM_PROCESSOR MATCHES "x86_64|AMD64")
  # Otherwise the compiler may round a product and a sum once instead of twice, and the last bit of a figure
  # would depend on the machine.
  target_compile_options(halvane_options INTERFACE -ffp-contract=off)
endif()
target_compile_definitions(halvane_options INTERFACE
  QT_NO_KEYWORDS QT_NO_FOREACH QT_USE_QSTRINGBUILDER QT_DISABLE_DEPRECATED_BEFORE=0x060400
  # A debug build ends at an index outside a container; a test sees it then.
  $<$<CONFIG:Debug>:_GLIBCXX_ASSERTIONS>)
if(HALVANE_WERROR)
  target_compile_options(halvane_options INTERFACE -Werror)
endif()
if(HALVANE_COVERAGE)
  target_compile_options(halvane_options INTERFACE --coverage -fprofile-update=atomic)
  target_link_options(halvane_options INTERFACE --coverage)
endif()
if(HALVANE_SANITIZE)
  target_compile_options(halvane_options INTERFACE
    -fsanitize=${HALVANE_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
  target_link_options(halvane_options INTERFACE -fsanitize=${HALVANE_SANITIZE})
endif()

find_program(MOLD mold)
if(MOLD)
  target_link_options(halvane_options INTERFACE -fuse-ld=mold)
endif()
find_program(CCACHE ccache)
if(CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE})
endif()
