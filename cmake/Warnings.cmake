# The one warnings target; every target of the project links it. Errors are switched on with
# -DCMAKE_COMPILE_WARNING_AS_ERROR=ON, as the project's own CI does.
add_library(tallywick_warnings INTERFACE)
if(MSVC)
  target_compile_options(tallywick_warnings INTERFACE /W4 /utf-8)
else()
  set(gcc $<CXX_COMPILER_ID:GNU>)
  target_compile_options(tallywick_warnings INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wshadow -Wnon-virtual-dtor -Wold-style-cast
    -Woverloaded-virtual -Wcast-align $<${gcc}:-Wduplicated-cond> $<${gcc}:-Wlogical-op> -Wnull-dereference -Wunused
    # GCC 12 sees overlaps, overflows, null pointers and uninitialized members in the library's own code that are not
    # there; GCC 13 no longer does.
    $<$<AND:${gcc},$<VERSION_LESS:$<CXX_COMPILER_VERSION>,13>>:-Wno-restrict$<SEMICOLON>-Wno-array-bounds$<SEMICOLON>-Wno-stringop-overflow$<SEMICOLON>-Wno-stringop-overread$<SEMICOLON>-Wno-null-dereference$<SEMICOLON>-Wno-maybe-uninitialized>)
endif()
