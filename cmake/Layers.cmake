# Flags that every target of the program shares.
add_library(marlevo_flags INTERFACE)
target_include_directories(marlevo_flags INTERFACE ${PROJECT_SOURCE_DIR}/src)
target_compile_options(marlevo_flags INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wimplicit-fallthrough
  # A product must round the same on every machine: no fused multiply-add behind our back.
  -ffp-contract=off
  $<$<BOOL:${MARLEVO_WERROR}>:-Werror>)
if(MARLEVO_SANITIZE)
  target_compile_options(marlevo_flags INTERFACE
    -fsanitize=${MARLEVO_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(marlevo_flags INTERFACE -fsanitize=${MARLEVO_SANITIZE})
endif()

# marlevo_layer(<folder> [PUBLIC <libs>...] [PRIVATE <libs>...])
# One folder of src/ is one static library, marlevo_<folder>, made of all its .cpp files.
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
  add_library(${name} STATIC ${sources} ${headers})
  target_link_libraries(${name} PUBLIC marlevo_flags ${layer_PUBLIC} PRIVATE ${layer_PRIVATE})
  if(folder MATCHES "qt|ui")
    set_target_properties(${name} PROPERTIES AUTOMOC ON AUTORCC ON)
    # Words such as "slots" stay free for the layers below.
    target_compile_definitions(${name} PUBLIC QT_NO_KEYWORDS)
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
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR})
endfunction()
