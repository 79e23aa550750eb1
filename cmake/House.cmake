# What every target of the house is built with, and how folders become one.

add_library(quillon_house INTERFACE)
# GCC 12 sees overlapping copies in sums of strings that have none, in optimised builds only.
target_compile_options(quillon_house INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror
                                               $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)
target_compile_definitions(quillon_house INTERFACE QT_NO_KEYWORDS)

option(QUILLON_SANITIZE "Build with the address and undefined-behaviour sanitizers" OFF)
if(QUILLON_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
  link_libraries($<$<STREQUAL:$<TARGET_PROPERTY:TYPE>,EXECUTABLE>:$<TARGET_OBJECTS:quillon_leaks>>)
endif()

# Reads the table of arrows: QUILLON_TARGETS, and of each target its folders and what it uses.
set(QUILLON_TARGETS)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${CMAKE_CURRENT_LIST_DIR}/arrows.txt)
file(STRINGS ${CMAKE_CURRENT_LIST_DIR}/arrows.txt lines REGEX "^[^#].*\\|")
foreach(line ${lines})
  if(NOT line MATCHES "^ *([^ |]+) *\\|([^|]*)\\|(.*)$")
    message(FATAL_ERROR "arrows.txt: ${line}")
  endif()
  set(target ${CMAKE_MATCH_1})
  list(APPEND QUILLON_TARGETS ${target})
  separate_arguments(QUILLON_FOLDERS_${target} UNIX_COMMAND "${CMAKE_MATCH_2}")
  separate_arguments(uses UNIX_COMMAND "${CMAKE_MATCH_3}")
  list(TRANSFORM uses PREPEND quillon_)
  set(QUILLON_USES_${target} ${uses})
endforeach()

# Gives a target the root through which it offers its headers: a folder that holds links to just its own folders, so
# that a forbidden include does not compile.
function(quillon_headers target root)
  foreach(folder ${QUILLON_FOLDERS_${target}})
    get_filename_component(parent ${root}/${folder} DIRECTORY)
    file(MAKE_DIRECTORY ${parent})
    file(CREATE_LINK ${CMAKE_SOURCE_DIR}/src/${folder} ${root}/${folder} SYMBOLIC)
  endforeach()
endfunction()

# Declares the link target quillon_NAME of the table's line NAME. It sees the headers of the targets that its line
# names and of what these may see, and no others.
function(quillon_folder name)
  cmake_parse_arguments(ARG "SHARED" "" "LIBRARIES" ${ARGN})
  if(NOT name IN_LIST QUILLON_TARGETS)
    message(FATAL_ERROR "cmake/arrows.txt has no line for ${name}")
  endif()
  set(sources)
  foreach(folder ${QUILLON_FOLDERS_${name}})
    file(GLOB found CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/src/${folder}/*.cpp)
    list(APPEND sources ${found})
  endforeach()
  list(FILTER sources EXCLUDE REGEX "/main\\.cpp$")
  set(root ${CMAKE_BINARY_DIR}/headers/${name})
  quillon_headers(${name} ${root})
  if(NOT sources)
    add_library(quillon_${name} INTERFACE)
    target_include_directories(quillon_${name} INTERFACE ${root})
    target_link_libraries(quillon_${name} INTERFACE quillon_house ${QUILLON_USES_${name}})
    return()
  elseif(ARG_SHARED)
    add_library(quillon_${name} SHARED ${sources})
  else()
    add_library(quillon_${name} STATIC ${sources})
  endif()
  target_include_directories(quillon_${name} PUBLIC ${root})
  target_link_libraries(quillon_${name} PUBLIC quillon_house ${QUILLON_USES_${name}} PRIVATE ${ARG_LIBRARIES})
endfunction()

# Joins pieces that lie in files of their own, so that two people who add one share no file: each NAME.PIECE.cpp of the
# target's folders defines `TYPE NAMEPiece()`, and a generated source gives all of them as `std::vector<TYPE> TYPEs()`
# in the order of their `Place`; HEADER declares it with TYPE.
function(quillon_collect name piece type header)
  string(SUBSTRING ${piece} 0 1 first)
  string(SUBSTRING ${piece} 1 -1 rest)
  string(TOUPPER ${first} first)
  set(declared "")
  set(listed "")
  foreach(folder ${QUILLON_FOLDERS_${name}})
    file(GLOB found CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/src/${folder}/*.${piece}.cpp)
    foreach(file ${found})
      get_filename_component(own ${file} NAME_WE)
      string(APPEND declared "${type} ${own}${first}${rest}();\n")
      string(APPEND listed "${own}${first}${rest}(), ")
    endforeach()
  endforeach()
  file(CONFIGURE OUTPUT ${CMAKE_BINARY_DIR}/pieces/${type}s.cpp CONTENT
"#include \"${header}\"

#include <algorithm>

namespace quillon {

${declared}
std::vector<${type}> ${type}s() {
  std::vector<${type}> all{${listed}};
  std::stable_sort(all.begin(), all.end(), [](const ${type}& a, const ${type}& b) { return a.Place < b.Place; });
  return all;
}

}  // namespace quillon
")
  target_sources(quillon_${name} PRIVATE ${CMAKE_BINARY_DIR}/pieces/${type}s.cpp)
endfunction()

# A program made of the main.cpp in src/FOLDER, linked to that folder's target, with the module beside it unless it is
# one that stands ALONE.
function(quillon_program program folder)
  cmake_parse_arguments(ARG "ALONE" "" "" ${ARGN})
  string(REPLACE "desk/" "" target ${folder})
  string(REPLACE "/" "_" target ${target})
  add_executable(${program} ${CMAKE_SOURCE_DIR}/src/${folder}/main.cpp)
  target_compile_definitions(${program} PRIVATE QUILLON_VERSION="${PROJECT_VERSION}")
  target_link_libraries(${program} PRIVATE quillon_${target} ${ARG_UNPARSED_ARGUMENTS})
  if(NOT ARG_ALONE)
    add_dependencies(${program} quillon_module)
  endif()
endfunction()
