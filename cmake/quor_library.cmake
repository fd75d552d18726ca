# One library a folder: quor_library(format LINKS base platform) makes format of all sources in
# src/format. A library sees the folders that it names, and what those name.

add_library(quor_options INTERFACE)
target_include_directories(quor_options INTERFACE ${CMAKE_SOURCE_DIR}/src)
# The presets for development make errors of them; whoever builds with a newer compiler is warned, and not stopped.
target_compile_options(quor_options INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow)
if(CMAKE_CXX_COMPILER_ID STREQUAL GNU)
  # While it optimises, GCC 12 takes its library's own inlined copies for overruns.
  target_compile_options(quor_options INTERFACE
    $<$<NOT:$<CONFIG:Debug>>:-Wno-array-bounds;-Wno-restrict;-Wno-stringop-overflow;-Wno-stringop-overread>)
else()
  target_compile_options(quor_options INTERFACE -Wno-sign-conversion) # which is no part of GCC's -Wconversion
endif()
if(QUOR_SANITIZE)
  target_compile_options(quor_options INTERFACE -fsanitize=${QUOR_SANITIZE} -fno-omit-frame-pointer
                                                -fno-sanitize-recover=all)
  target_link_options(quor_options INTERFACE -fsanitize=${QUOR_SANITIZE})
endif()

# For targets with a precompiled header: without these ccache can't keep what is compiled with one.
add_library(quor_precompiled INTERFACE)
if(CCACHE)
  target_compile_options(quor_precompiled INTERFACE
    $<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess> "$<$<CXX_COMPILER_ID:Clang>:SHELL:-Xclang -fno-pch-timestamp>")
endif()

function(quor_library folder)
  cmake_parse_arguments(ARG "" "" "LINKS" ${ARGN})
  string(REPLACE "/" "_" name ${folder})
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/src/${folder}/*.cpp)
  if(sources)
    add_library(${name} STATIC ${sources})
    target_link_libraries(${name} PUBLIC quor_options)
    target_link_libraries(${name} PUBLIC ${ARG_LINKS})
  else()
    add_library(${name} INTERFACE)
    target_link_libraries(${name} INTERFACE quor_options ${ARG_LINKS})
  endif()
endfunction()
