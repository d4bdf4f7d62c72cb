find_program(CCACHE ccache)
if(CCACHE)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros ${CCACHE})
  set(CMAKE_C_COMPILER_LAUNCHER ${CCACHE})
endif()

add_library(quillon_options INTERFACE)
target_include_directories(quillon_options INTERFACE ${PROJECT_SOURCE_DIR}/src)
target_compile_options(quillon_options INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Wconversion -Werror
  $<$<AND:$<CXX_COMPILER_ID:GNU>,$<BOOL:${CCACHE}>>:-fpch-preprocess>)
target_compile_definitions(quillon_options INTERFACE
  QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS QT_NO_FOREACH
  QUILLON_VERSION="${PROJECT_VERSION}")

# One static library a folder. Its links are its permission to include: a folder sees only what it
# names here and what those name in turn. APART: its files are compiled one by one, since what each
# keeps to itself has the same names in all.
function(quillon_library folder)
  cmake_parse_arguments(arg "APART;QOBJECTS" "" "LINK;PARTS" ${ARGN})
  string(REPLACE "/" "_" name ${folder})
  file(GLOB sources CONFIGURE_DEPENDS
    ${PROJECT_SOURCE_DIR}/src/${folder}/*.cpp ${PROJECT_SOURCE_DIR}/src/${folder}/*.h
    ${PROJECT_SOURCE_DIR}/src/${folder}/conditions/*.cpp ${PROJECT_SOURCE_DIR}/src/${folder}/actions/*.cpp
    ${PROJECT_SOURCE_DIR}/src/${folder}/backends/*.cpp ${PROJECT_SOURCE_DIR}/src/${folder}/backends/*.h)
  foreach(part IN LISTS arg_PARTS)
    file(GLOB found CONFIGURE_DEPENDS
      ${PROJECT_SOURCE_DIR}/src/${folder}/${part}/*.cpp ${PROJECT_SOURCE_DIR}/src/${folder}/${part}/*.h)
    list(APPEND sources ${found})
  endforeach()
  add_library(quillon_${name} STATIC ${sources})
  set_target_properties(quillon_${name} PROPERTIES LINKER_LANGUAGE CXX AUTOMOC ${arg_QOBJECTS})
  if(arg_APART)
    set_target_properties(quillon_${name} PROPERTIES UNITY_BUILD OFF)
  endif()
  target_link_libraries(quillon_${name} PUBLIC quillon_options Qt6::Core ${arg_LINK})
  if(TARGET quillon_platform AND NOT name STREQUAL "platform")
    target_precompile_headers(quillon_${name} REUSE_FROM quillon_platform)
  else()
    target_precompile_headers(quillon_${name} PRIVATE ${PROJECT_SOURCE_DIR}/cmake/Precompiled.h)
  endif()
endfunction()
