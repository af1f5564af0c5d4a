# `cmake --build … --target format` puts every source in the house's form; scripts/lint only reports.
find_program(CLANG_FORMAT clang-format)
if(CLANG_FORMAT)
  file(GLOB_RECURSE formatted CONFIGURE_DEPENDS
       "${PROJECT_SOURCE_DIR}/src/*.cpp" "${PROJECT_SOURCE_DIR}/src/*.h"
       "${PROJECT_SOURCE_DIR}/tests/*.cpp" "${PROJECT_SOURCE_DIR}/tests/*.h"
       "${PROJECT_SOURCE_DIR}/bench/*.cpp" "${PROJECT_SOURCE_DIR}/bench/*.h"
       "${PROJECT_SOURCE_DIR}/fuzz/*.cpp" "${PROJECT_SOURCE_DIR}/fuzz/*.h")
  string(JOIN "\n" formatted ${formatted})
  file(WRITE "${CMAKE_BINARY_DIR}/formatted-files.txt" "${formatted}\n")
  set(listed "--files=${CMAKE_BINARY_DIR}/formatted-files.txt")
  add_custom_target(format COMMAND ${CLANG_FORMAT} -i ${listed} VERBATIM)
endif()
