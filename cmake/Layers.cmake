# Flags that every target of the program shares.
add_library(marlevo_flags INTERFACE)
target_include_directories(marlevo_flags INTERFACE ${PROJECT_SOURCE_DIR}/src)
target_compile_options(marlevo_flags INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wimplicit-fallthrough
  # gcc 12 reports false overlaps and overflows in std::string's own operators.
  $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict -Wno-stringop-overflow>
  # No implicit fused multiply-add: a product must round the same on every machine.
  -ffp-contract=off
  $<$<BOOL:${MARLEVO_WERROR}>:-Werror>)
if(MARLEVO_SANITIZE)
  target_compile_definitions(marlevo_flags INTERFACE MARLEVO_SANITIZED)
  target_compile_options(marlevo_flags INTERFACE
    -fsanitize=${MARLEVO_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer
    # gcc reports false maybe-uninitialized warnings in instrumented code.
    $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
  target_link_options(marlevo_flags INTERFACE -fsanitize=${MARLEVO_SANITIZE})
endif()

if(MARLEVO_FUZZ)
  # Coverage counters in every layer, for the fuzzer's choice of inputs.
  target_compile_options(marlevo_flags INTERFACE -fsanitize=fuzzer-no-link)
endif()

# marlevo_layer(<folder> [PUBLIC <libs>...] [PRIVATE <libs>...])
# One folder of src/ is one static library, marlevo_<folder>, made of all its .cpp files and the
# resources below it. A layer must be declared after the layers that it links: no circles.
function(marlevo_layer folder)
  cmake_parse_arguments(layer "" "" "PUBLIC;PRIVATE" ${ARGN})
  string(REPLACE "/" "_" name "marlevo_${folder}")
  foreach(library IN LISTS layer_PUBLIC layer_PRIVATE)
    if(library MATCHES "^marlevo_" AND NOT TARGET ${library})
      message(FATAL_ERROR "The layer ${folder} links ${library}, which is not declared before it.")
    endif()
  endforeach()
  set_property(GLOBAL APPEND PROPERTY MARLEVO_LAYERS ${folder})
  file(GLOB sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/src/${folder}/*.cpp)
  file(GLOB headers CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/src/${folder}/*.h)
  if(NOT sources)
    add_library(${name} INTERFACE)
    target_link_libraries(${name} INTERFACE marlevo_flags ${layer_PUBLIC})
    return()
  endif()
  file(GLOB resources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/src/${folder}/*/*.qrc)
  add_library(${name} STATIC ${sources} ${headers} ${resources})
  target_link_libraries(${name} PUBLIC marlevo_flags ${layer_PUBLIC} PRIVATE ${layer_PRIVATE})
  if(folder MATCHES "^(platform/qt|ui)")
    set_target_properties(${name} PROPERTIES AUTOMOC ON AUTORCC ON)
    # Words such as "slots" are no macros, since the layers below use them as names.
    target_compile_definitions(${name} PUBLIC QT_NO_KEYWORDS)
    # The toolkit's headers are half of the time that a window takes to compile.
    target_precompile_headers(${name} PRIVATE <QtWidgets>)
  else()
    # Qt's idioms use narrow ints and implicit conversions. Tests and benchmarks do without, too.
    target_compile_options(${name} PRIVATE -Wconversion -Wno-sign-conversion)
  endif()
endfunction()

# marlevo_layer_usage(<target> <result>)
# All libraries whose headers the target may include: those that it links, and of these what they
# link publicly.
function(marlevo_layer_usage target result)
  get_target_property(usage ${target} LINK_LIBRARIES)
  set(unvisited ${usage})
  while(unvisited)
    list(POP_FRONT unvisited library)
    if(TARGET ${library})
      get_target_property(public ${library} INTERFACE_LINK_LIBRARIES)
      # Private libraries of a static one are listed as $<LINK_ONLY:...>.
      list(FILTER public EXCLUDE REGEX "LINK_ONLY|NOTFOUND")
      list(REMOVE_ITEM public ${usage})
      list(APPEND usage ${public})
      list(APPEND unvisited ${public})
    endif()
  endwhile()
  set(${result} ${usage} PARENT_SCOPE)
endfunction()

# marlevo_write_layers(<file>)
# Writes one line for each layer, "<folder>: <folder>...": the layers whose headers it may include,
# beside its own, and "Qt" if it may include the toolkit's. To be called after all layers are
# declared. scripts/lint.sh compares the include lines with it.
function(marlevo_write_layers file)
  get_property(folders GLOBAL PROPERTY MARLEVO_LAYERS)
  set(lines "")
  foreach(folder IN LISTS folders)
    string(REPLACE "/" "_" name "marlevo_${folder}")
    marlevo_layer_usage(${name} usage)
    string(APPEND lines "${folder}:")
    foreach(other IN LISTS folders)
      string(REPLACE "/" "_" library "marlevo_${other}")
      if(library IN_LIST usage)
        string(APPEND lines " ${other}")
      endif()
    endforeach()
    if(usage MATCHES "Qt6::")
      string(APPEND lines " Qt")
    endif()
    string(APPEND lines "\n")
  endforeach()
  file(WRITE ${file} "${lines}")
endfunction()

# The executable lands at the top of the build folder: build/release/marlevo.
function(marlevo_program name)
  list(TRANSFORM ARGN PREPEND ${PROJECT_SOURCE_DIR}/src/ OUTPUT_VARIABLE sources)
  add_executable(${name} ${sources})
  target_link_libraries(${name} PRIVATE marlevo_ui_windows)
  target_compile_definitions(${name} PRIVATE MARLEVO_VERSION="${PROJECT_VERSION}")
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR})
endfunction()

