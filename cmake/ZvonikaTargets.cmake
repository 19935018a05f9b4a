# zvonika_library(NAME SOURCES ... LIBS ...): a static library with the house's warnings.
# zvonika_headers(NAME HEADERS ... LIBS ...): what has headers only.
# zvonika_plugin(NAME SOURCES ... LIBS ...): a library that the running program loads when it first needs it.
# zvonika_test(NAME SOURCES ... LIBS ...): a GoogleTest program, each of its cases one CTest test.
#
# The headers of a target are those that its SOURCES name, and those that stand beside a source and have its name. Whoever
# links the target can include them, and nobody else: the tree itself is on no target's search path.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
# The architecture test asks them what a folder can include.
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

# Opens HEADERS of this folder to whoever links `target`, under their path from the root: by a header of one line in a
# search folder of the target's own.
function(zvonika_open_headers target visibility)
  set(search "${CMAKE_BINARY_DIR}/include/${target}")
  get_property(opened GLOBAL PROPERTY ZVONIKA_OPEN_${target})
  foreach(header IN LISTS ARGN)
    get_filename_component(header "${header}" ABSOLUTE)
    file(RELATIVE_PATH name "${CMAKE_SOURCE_DIR}" "${header}")
    get_filename_component(folder "${search}/${name}" DIRECTORY)
    file(RELATIVE_PATH way "${folder}" "${header}")
    file(CONFIGURE OUTPUT "${search}/${name}" CONTENT "#include \"${way}\"\n" @ONLY)
    list(APPEND opened "${search}/${name}")
  endforeach()
  set_property(GLOBAL PROPERTY ZVONIKA_OPEN_${target} ${opened})
  file(GLOB_RECURSE closed "${search}/*.h")
  list(REMOVE_ITEM closed ${opened})
  if(closed)
    file(REMOVE ${closed})
  endif()
  target_include_directories(${target} ${visibility} "${search}")
endfunction()

function(zvonika_open_headers_of target)
  set(headers)
  foreach(source IN LISTS ARGN)
    string(REGEX REPLACE "\\.cpp$" ".h" header "${source}")
    get_filename_component(file "${header}" ABSOLUTE)
    if(EXISTS "${file}")
      list(APPEND headers "${header}")
    endif()
  endforeach()
  if(headers)
    list(REMOVE_DUPLICATES headers)
    zvonika_open_headers(${target} PUBLIC ${headers})
  endif()
endfunction()

function(zvonika_headers name)
  cmake_parse_arguments(ARG "" "" "HEADERS;LIBS" ${ARGN})
  add_library(${name} INTERFACE)
  zvonika_open_headers(${name} INTERFACE ${ARG_HEADERS})
  target_link_libraries(${name} INTERFACE ${ARG_LIBS})
  target_compile_definitions(${name} INTERFACE QT_NO_KEYWORDS QT_NO_CAST_TO_ASCII)
endfunction()

function(zvonika_house_rules target)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wconversion)
  get_target_property(sources ${target} SOURCES)
  zvonika_open_headers_of(${target} ${sources})
  target_compile_definitions(${target} PUBLIC QT_NO_KEYWORDS QT_NO_CAST_TO_ASCII)
  set_target_properties(${target} PROPERTIES AUTOMOC ON)
  if(ZVONIKA_SANITIZE)
    target_compile_options(${target} PUBLIC -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(${target} PUBLIC -fsanitize=address,undefined)
  endif()
endfunction()

# Precompiled headers save much of a build from nothing; builds without them show that each file includes
# what it needs.
option(ZVONIKA_PCH "Precompile the headers of Qt and GoogleTest" OFF)
function(zvonika_precompile target)
  if(ZVONIKA_PCH)
    target_precompile_headers(${target} PRIVATE ${ARGN})
  endif()
endfunction()

function(zvonika_library name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LIBS" ${ARGN})
  add_library(${name} STATIC ${ARG_SOURCES})
  zvonika_house_rules(${name})
  target_link_libraries(${name} PUBLIC ${ARG_LIBS})
  if(name MATCHES "_ui$|^app_sestava$")
    zvonika_precompile(${name} <functional> <memory> <QPainter> <QWidget>)
  elseif(NOT name STREQUAL "xls")
    zvonika_precompile(${name} <functional> <QObject> <QString>)
  endif()
endfunction()

# They stand in "plugins" beside the executables in the build tree, in lib/zvonika when installed.
function(zvonika_plugin name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LIBS" ${ARGN})
  add_library(${name} MODULE ${ARG_SOURCES})
  zvonika_house_rules(${name})
  target_link_libraries(${name} PRIVATE ${ARG_LIBS})
  set_target_properties(${name} PROPERTIES LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin/plugins")
  install(TARGETS ${name} DESTINATION lib/zvonika)
  set_property(GLOBAL APPEND PROPERTY ZVONIKA_PLUGINS ${name})
endfunction()

function(zvonika_test name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LIBS" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  zvonika_house_rules(${name})
  target_link_libraries(${name} PRIVATE ${ARG_LIBS} test_support GTest::gtest_main)
  if("Qt6::Test" IN_LIST ARG_LIBS)
    zvonika_precompile(${name} <gtest/gtest.h> <QTest>)
  elseif("xls" IN_LIST ARG_LIBS)
    zvonika_precompile(${name} <gtest/gtest.h>)
  else()
    zvonika_precompile(${name} <gtest/gtest.h> <QObject> <QString>)
  endif()
  # The value of a parameter may be an object, whose printed bytes and addresses change from build to build.
  gtest_discover_tests(${name}
    DISCOVERY_MODE PRE_TEST
    NO_PRETTY_VALUES
    PROPERTIES ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8" TIMEOUT 120)
endfunction()
