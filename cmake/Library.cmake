# tallywick_library(NAME SOURCES… LIBRARIES…): a static library of src/NAME, named tallywick_NAME, whose headers
# are included as "NAME/header.h".
function(tallywick_library name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LIBRARIES;PRIVATE_LIBRARIES")
  add_library(tallywick_${name} STATIC ${arg_SOURCES})
  target_include_directories(tallywick_${name} PUBLIC "${PROJECT_SOURCE_DIR}/src")
  target_link_libraries(tallywick_${name} PUBLIC ${arg_LIBRARIES} PRIVATE tallywick_warnings ${arg_PRIVATE_LIBRARIES})
  tallywick_use_headers(tallywick_${name} std_headers)
endfunction()

# tallywick_test(NAME SOURCES… LIBRARIES… [HEADERS precompiled] [FAULTS KIND FILTER…]): a test program NAME_test, each
# of its cases a test of ctest. Those that match a kind's filter get the label faults-KIND; scripts/faults runs them.
function(tallywick_test name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "HEADERS" "SOURCES;LIBRARIES;FAULTS")
  if(NOT arg_HEADERS)
    set(arg_HEADERS test_headers)
  endif()
  add_executable(${name}_test ${arg_SOURCES})
  target_include_directories(${name}_test PRIVATE "${PROJECT_SOURCE_DIR}/tests")
  target_link_libraries(${name}_test PRIVATE ${arg_LIBRARIES} tallywick_warnings GTest::gtest GTest::gmock
                                             GTest::gtest_main)
  tallywick_use_headers(${name}_test ${arg_HEADERS})
  tallywick_windows_resources(${name}_test "Tests of Tallywick")
  # Through an emulator each program is one test: it takes longer to start than most cases take.
  if(CMAKE_CROSSCOMPILING)
    add_test(NAME ${name} COMMAND ${name}_test)
    set_tests_properties(${name} PROPERTIES TIMEOUT 600)
    return()
  endif()
  set(others "")
  while(arg_FAULTS)
    list(POP_FRONT arg_FAULTS kind filter)
    string(APPEND others ":${filter}")
    gtest_discover_tests(${name}_test DISCOVERY_MODE PRE_TEST DISCOVERY_TIMEOUT 60 NO_PRETTY_VALUES TEST_FILTER "${filter}"
                         PROPERTIES TIMEOUT 120 LABELS "faults-${kind}")
  endwhile()
  if(others)
    string(REGEX REPLACE "^:" "-" others "${others}")
  else()
    set(others "*")
  endif()
  gtest_discover_tests(${name}_test DISCOVERY_MODE PRE_TEST DISCOVERY_TIMEOUT 60 NO_PRETTY_VALUES TEST_FILTER "${others}"
                       PROPERTIES TIMEOUT 120)
endfunction()
