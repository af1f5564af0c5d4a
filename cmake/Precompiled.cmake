# The headers that nearly every source includes, compiled once. GCC's builds use them, which halves their time; Clang's
# build goes without, so that it reports a source that does not include what it needs.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  set(precompile ON)
else()
  set(precompile OFF)
endif()
option(TALLYWICK_PRECOMPILED_HEADERS "Compile the usual headers once" ${precompile})

set(usual_headers <algorithm> <array> <cstddef> <cstdint> <filesystem> <functional> <memory> <optional> <span> <string>
                  <string_view> <unordered_map> <utility> <vector>)

# One target that has the headers for all targets which are compiled with the same flags.
function(tallywick_headers name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "HEADERS;LIBRARIES")
  if(NOT TALLYWICK_PRECOMPILED_HEADERS)
    return()
  endif()
  file(GENERATE OUTPUT "${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp" CONTENT "// Carries the precompiled headers.\n")
  add_library(tallywick_${name} OBJECT "${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp")
  target_link_libraries(tallywick_${name} PRIVATE tallywick_warnings ${arg_LIBRARIES})
  target_precompile_headers(tallywick_${name} PRIVATE ${usual_headers} ${arg_HEADERS})
endfunction()

# Lets `target` use the headers that tallywick_headers(NAME …) has.
function(tallywick_use_headers target name)
  if(TALLYWICK_PRECOMPILED_HEADERS)
    target_precompile_headers(${target} REUSE_FROM tallywick_${name})
  endif()
endfunction()
