# What every target is compiled and linked with. Presets name the sanitizers (TAVOLUX_SANITIZERS) and, for those who
# change the sources, turn warnings into errors (CMAKE_COMPILE_WARNING_AS_ERROR).

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

include(CheckPIESupported)
check_pie_supported()
# Programs are compiled as libraries are: with -fPIE the linker would copy a library's data into the program, and the
# toolkit tells classes apart by the address of its data.
set(CMAKE_CXX_COMPILE_OPTIONS_PIE ${CMAKE_CXX_COMPILE_OPTIONS_PIC})

set(TAVOLUX_SANITIZERS "" CACHE STRING "Sanitizers to build with, as in -fsanitize=")

add_compile_options(
  -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wshadow -Wold-style-cast
  -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-align -Wformat=2 -Wimplicit-fallthrough -Wundef
  -Wzero-as-null-pointer-constant)

add_compile_definitions(
  QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_BYTEARRAY QT_NO_URL_CAST_FROM_STRING
  QT_NO_NARROWING_CONVERSIONS_IN_CONNECT QT_NO_FOREACH QT_NO_KEYWORDS QT_STRICT_ITERATORS)

if(TAVOLUX_SANITIZERS)
  # Reports name functions and lines; what a debugger wants beyond that would take a fifth of the build's time.
  add_compile_options(-fsanitize=${TAVOLUX_SANITIZERS} -fno-sanitize-recover=all -fno-omit-frame-pointer -g1)
  add_link_options(-fsanitize=${TAVOLUX_SANITIZERS})
elseif(CMAKE_BUILD_TYPE STREQUAL "Release")
  # The distribution's hardening; position independence is on for every build.
  add_compile_options(-fstack-protector-strong -fstack-clash-protection -Wformat -Werror=format-security)
  add_compile_definitions(_FORTIFY_SOURCE=2)
  add_link_options(-Wl,-z,relro -Wl,-z,now)
endif()

# Only the libraries that a program really uses are loaded when it starts.
add_link_options(-Wl,--as-needed)

# The first format of resources holds no times of files, which differ from clone to clone.
set(TAVOLUX_RESOURCE_OPTIONS OPTIONS --format-version 1)
