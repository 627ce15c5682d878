# One folder is one target. Its link line is its dependency rule.

add_library(ladrix_options INTERFACE)
target_compile_options(ladrix_options INTERFACE
  -Wall -Wextra -Wconversion -Wshadow -Wpedantic
  # GCC 12 takes assignments to a std::string for overlapping copies.
  $<$<AND:$<CXX_COMPILER_ID:GNU>,$<VERSION_LESS:$<CXX_COMPILER_VERSION>,13>>:-Wno-restrict>
  $<$<CONFIG:Debug>:-D_GLIBCXX_ASSERTIONS>)
if(LADRIX_SANITIZE)
  target_compile_options(ladrix_options INTERFACE
    -O1 -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer
    # The compiler's manual warns of false alarms of this one under the sanitizers.
    $<$<CXX_COMPILER_ID:GNU>:-Wno-error=maybe-uninitialized>)
  target_link_options(ladrix_options INTERFACE -fsanitize=address,undefined)
endif()
if(LADRIX_FUZZ)
  if(NOT CMAKE_CXX_COMPILER_ID MATCHES "Clang")
    message(FATAL_ERROR "LADRIX_FUZZ needs clang++: configure with the preset \"fuzz\".")
  endif()
  target_compile_options(ladrix_options INTERFACE
    -O2 -gline-tables-only -fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all
    # Tracing each comparison halves the speed; words come from the dictionaries and from memcmp.
    -fno-sanitize-coverage=trace-cmp -fno-omit-frame-pointer)
  target_link_options(ladrix_options INTERFACE -fsanitize=address,undefined)
endif()

# ladrix_library(name [DEPENDS ...]): all sources of the calling folder and the folders in it,
# includes relative to src/.
function(ladrix_library name)
  cmake_parse_arguments(ARG "" "" "DEPENDS" ${ARGN})
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS
    ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp ${CMAKE_CURRENT_SOURCE_DIR}/*.h)
  if(NOT sources)  # a target must have a source, even before its folder has one
    file(CONFIGURE OUTPUT empty.cpp CONTENT "")
    set(sources ${CMAKE_CURRENT_BINARY_DIR}/empty.cpp)
  endif()
  add_library(ladrix_${name} STATIC ${sources})
  set_target_properties(ladrix_${name} PROPERTIES LINKER_LANGUAGE CXX)
  target_include_directories(ladrix_${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  target_link_libraries(ladrix_${name} PUBLIC ${ARG_DEPENDS} PRIVATE ladrix_options)
endfunction()

# ladrix_executable_per_source(kind LINKS ...): each *.cpp of the calling folder is one executable,
# target <kind>_<stem>, binary <build>/<kind>/<stem>. Headers beside them are shared.
function(ladrix_executable_per_source kind)
  cmake_parse_arguments(ARG "" "" "LINKS" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp)
  foreach(source IN LISTS sources)
    cmake_path(GET source STEM stem)
    set(target ${kind}_${stem})
    add_executable(${target} ${source})
    set_target_properties(${target} PROPERTIES
      OUTPUT_NAME ${stem} RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/${kind})
    target_link_libraries(${target} PRIVATE ${ARG_LINKS} ladrix_options)
  endforeach()
endfunction()
