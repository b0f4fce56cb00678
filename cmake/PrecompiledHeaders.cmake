# Headers that many targets include, compiled once: half of what compiling takes. Caches of compilers do better without.
# The presets that are without find an include that is missing.
option(TAVOLUX_PRECOMPILED_HEADERS "Compile the toolkit's headers once for many targets" OFF)

# tavolux_precompile(<name> LIBRARIES <library>... HEADERS <header>...)
#
# Compiles headers as targets with these libraries are compiled, in the folder that calls.
function(tavolux_precompile name)
  cmake_parse_arguments(PARSE_ARGV 1 precompile "" "" "LIBRARIES;HEADERS")
  if(TAVOLUX_PRECOMPILED_HEADERS)
    file(CONFIGURE OUTPUT ${name}.cpp CONTENT "")
    add_library(${name} OBJECT ${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp)
    target_link_libraries(${name} PRIVATE ${precompile_LIBRARIES})
    target_precompile_headers(${name} PRIVATE ${precompile_HEADERS})
  endif()
endfunction()

# tavolux_use_precompiled(<name> <target>...)
function(tavolux_use_precompiled name)
  if(TAVOLUX_PRECOMPILED_HEADERS)
    foreach(target IN LISTS ARGN)
      target_precompile_headers(${target} REUSE_FROM ${name})
    endforeach()
  endif()
endfunction()
