# What every target of the house is built with, and how a folder becomes one.

add_library(quillon_house INTERFACE)
# GCC 12 sees overlapping copies in sums of strings that have none, in optimised builds only.
target_compile_options(quillon_house INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Werror -Wno-restrict)
target_compile_definitions(quillon_house INTERFACE QT_NO_KEYWORDS)

option(QUILLON_SANITIZE "Build with the address and undefined-behaviour sanitizers" OFF)
if(QUILLON_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()

# Declares the current folder as the link target NAME. A folder sees the headers of the targets in USES and of
# what these use, and no others: each target offers its headers through a root of its own that holds a link to
# just this folder, so a forbidden include does not compile.
function(quillon_folder name)
  cmake_parse_arguments(ARG "SHARED" "" "USES;LIBRARIES" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp)
  list(FILTER sources EXCLUDE REGEX "/main\\.cpp$")
  file(RELATIVE_PATH folder ${CMAKE_SOURCE_DIR}/src ${CMAKE_CURRENT_SOURCE_DIR})
  set(root ${CMAKE_BINARY_DIR}/headers/${name})
  get_filename_component(parent ${root}/${folder} DIRECTORY)
  file(MAKE_DIRECTORY ${parent})
  file(CREATE_LINK ${CMAKE_CURRENT_SOURCE_DIR} ${root}/${folder} SYMBOLIC)
  if(ARG_SHARED)
    add_library(${name} SHARED ${sources})
  else()
    add_library(${name} STATIC ${sources})
  endif()
  target_include_directories(${name} PUBLIC ${root})
  target_link_libraries(${name} PUBLIC quillon_house ${ARG_USES} PRIVATE ${ARG_LIBRARIES})
endfunction()
