# Flags that every target of the program shares.
add_library(marlevo_flags INTERFACE)
target_include_directories(marlevo_flags INTERFACE ${PROJECT_SOURCE_DIR}/src)
target_compile_options(marlevo_flags INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wimplicit-fallthrough
  # gcc 12 finds overlaps and overflows in std::string's own operators that are none.
  $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict -Wno-stringop-overflow>
  # A product must round the same on every machine: no fused multiply-add behind our back.
  -ffp-contract=off
  $<$<BOOL:${MARLEVO_WERROR}>:-Werror>)
if(MARLEVO_SANITIZE)
  target_compile_definitions(marlevo_flags INTERFACE MARLEVO_SANITIZED)
  target_compile_options(marlevo_flags INTERFACE
    -fsanitize=${MARLEVO_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer
    # gcc's flow analysis loses its way in instrumented code and finds uses of what is not there.
    $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
  target_link_options(marlevo_flags INTERFACE -fsanitize=${MARLEVO_SANITIZE})
endif()

if(MARLEVO_FUZZ)
  # Coverage counters in every layer: the fuzzer steers by them.
  target_compile_options(marlevo_flags INTERFACE -fsanitize=fuzzer-no-link)
endif()

# marlevo_layer(<folder> [PUBLIC <libs>...] [PRIVATE <libs>...])
# One folder of src/ is one static library, marlevo_<folder>, made of all its .cpp files and the
# resources below it.
function(marlevo_layer folder)
  cmake_parse_arguments(layer "" "" "PUBLIC;PRIVATE" ${ARGN})
  string(REPLACE "/" "_" name "marlevo_${folder}")
  file(GLOB sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/src/${folder}/*.cpp)
  file(GLOB headers CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/src/${folder}/*.h)
  if(NOT sources)
    add_library(${name} INTERFACE)
    target_link_libraries(${name} INTERFACE marlevo_flags ${layer_PUBLIC})
    return()
  endif()
  file(GLOB_RECURSE resources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/src/${folder}/*.qrc)
  add_library(${name} STATIC ${sources} ${headers} ${resources})
  target_link_libraries(${name} PUBLIC marlevo_flags ${layer_PUBLIC} PRIVATE ${layer_PRIVATE})
  if(folder MATCHES "qt|ui")
    set_target_properties(${name} PROPERTIES AUTOMOC ON AUTORCC ON)
    # Words such as "slots" stay free for the layers below.
    target_compile_definitions(${name} PUBLIC QT_NO_KEYWORDS)
    # Half the time of compiling a window goes into the toolkit's headers.
    target_precompile_headers(${name} PRIVATE <QtWidgets>)
  else()
    # Not with Qt, whose idioms are narrow ints and implicit conversions, nor in tests and benchmarks.
    target_compile_options(${name} PRIVATE -Wconversion -Wno-sign-conversion)
  endif()
endfunction()

# The executable lands at the top of the build folder: build/release/marlevo.
function(marlevo_program name)
  list(TRANSFORM ARGN PREPEND ${PROJECT_SOURCE_DIR}/src/ OUTPUT_VARIABLE sources)
  add_executable(${name} ${sources})
  target_link_libraries(${name} PRIVATE marlevo_ui)
  target_compile_definitions(${name} PRIVATE MARLEVO_VERSION="${PROJECT_VERSION}")
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR})
endfunction()

