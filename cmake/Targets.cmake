# One folder is one target. Its link line is its dependency rule.

add_library(ladrix_options INTERFACE)
target_compile_options(ladrix_options INTERFACE
  -Wall -Wextra -Wconversion -Wshadow -Wpedantic -Werror)
if(LADRIX_SANITIZE)
  target_compile_options(ladrix_options INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(ladrix_options INTERFACE -fsanitize=address,undefined)
endif()
if(LADRIX_FUZZ)
  target_compile_options(ladrix_options INTERFACE
    -fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all)
  target_link_options(ladrix_options INTERFACE -fsanitize=address,undefined)
endif()

# ladrix_library(name [DEPENDS ...]): all sources of the calling folder, includes relative to src/.
function(ladrix_library name)
  cmake_parse_arguments(ARG "" "" "DEPENDS" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp ${CMAKE_CURRENT_SOURCE_DIR}/*.h)
  add_library(ladrix_${name} STATIC ${sources})
  set_target_properties(ladrix_${name} PROPERTIES LINKER_LANGUAGE CXX)
  target_include_directories(ladrix_${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  target_link_libraries(ladrix_${name} PUBLIC ${ARG_DEPENDS} PRIVATE ladrix_options)
endfunction()
