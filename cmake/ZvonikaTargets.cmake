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

# Where an installation has the program, and its tables, manual and songs.
if(WIN32)
  set(ZVONIKA_PROGRAM_FOLDER .)
  set(ZVONIKA_DATA_FOLDER .)
else()
  set(ZVONIKA_PROGRAM_FOLDER bin)
  set(ZVONIKA_DATA_FOLDER share/zvonika)
endif()

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

# Whether a source of the target, or the header beside it, has anything for moc: looking for that is a process and an empty
# file to compile for each target. Asked when CMake runs: after the first Q_OBJECT of a target, run it again.
function(zvonika_uses_moc target result)
  get_target_property(sources ${target} SOURCES)
  set(${result} OFF PARENT_SCOPE)
  foreach(source IN LISTS sources)
    string(REGEX REPLACE "\\.cpp$" ".h" header "${source}")
    foreach(file IN ITEMS "${source}" "${header}")
      get_filename_component(file "${file}" ABSOLUTE)
      if(EXISTS "${file}")
        file(STRINGS "${file}" found REGEX "^ *Q_(OBJECT|GADGET|NAMESPACE)" LIMIT_COUNT 1)
        if(found)
          set(${result} ON PARENT_SCOPE)
          return()
        endif()
      endif()
    endforeach()
  endforeach()
endfunction()

# Several sources compiled as one: a build from nothing in a third of the time. Builds without it show that each file
# stands on its own.
option(ZVONIKA_UNITY "Compile the sources of a target together" OFF)
set(CMAKE_UNITY_BUILD ${ZVONIKA_UNITY})

function(zvonika_house_rules target)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wconversion)
  if(ZVONIKA_UNITY AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU") # which takes the sources put together for headers
    target_compile_options(${target} PRIVATE -Wno-subobject-linkage)
  endif()
  get_target_property(sources ${target} SOURCES)
  zvonika_open_headers_of(${target} ${sources})
  target_compile_definitions(${target} PUBLIC QT_NO_KEYWORDS QT_NO_CAST_TO_ASCII)
  zvonika_uses_moc(${target} moc)
  set_target_properties(${target} PROPERTIES AUTOMOC ${moc})
  if(ZVONIKA_SANITIZE)
    target_compile_options(${target} PUBLIC -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(${target} PUBLIC -fsanitize=address,undefined)
  endif()
endfunction()

# Precompiled headers save much of a build from nothing; builds without them show that each file includes
# what it needs. One set for each kind of target, compiled once for all of that kind: their flags are the same.
option(ZVONIKA_PCH "Precompile the headers of Qt and GoogleTest" OFF)
set(ZVONIKA_PCH_core LIBS Qt6::Core HEADERS <functional> <memory> <QObject> <QString>)
set(ZVONIKA_PCH_widgets LIBS Qt6::Widgets HEADERS <functional> <memory> <QPainter> <QWidget>)
set(ZVONIKA_PCH_test LIBS GTest::gtest Qt6::Core HEADERS <gtest/gtest.h> <QObject> <QString>)
# QTest itself depends on the folder of the test that includes it.
set(ZVONIKA_PCH_test_widgets LIBS GTest::gtest Qt6::Widgets HEADERS <gtest/gtest.h> <functional> <memory> <QPainter> <QWidget>)
set(ZVONIKA_PCH_test_plain LIBS GTest::gtest HEADERS <gtest/gtest.h>)
function(zvonika_precompile target kind)
  if(NOT ZVONIKA_PCH)
    return()
  endif()
  if(NOT TARGET pch_${kind})
    cmake_parse_arguments(SET "" "" "LIBS;HEADERS" ${ZVONIKA_PCH_${kind}})
    file(CONFIGURE OUTPUT "${CMAKE_BINARY_DIR}/pch/${kind}.cpp" CONTENT "" @ONLY)
    add_library(pch_${kind} OBJECT "${CMAKE_BINARY_DIR}/pch/${kind}.cpp")
    zvonika_house_rules(pch_${kind})
    target_link_libraries(pch_${kind} PRIVATE ${SET_LIBS})
    target_precompile_headers(pch_${kind} PRIVATE ${SET_HEADERS})
    if(kind MATCHES "^test" AND NOT MSVC) # as the objects of a program
      set_target_properties(pch_${kind} PROPERTIES POSITION_INDEPENDENT_CODE OFF)
      target_compile_options(pch_${kind} PRIVATE -fPIE)
    endif()
  endif()
  target_precompile_headers(${target} REUSE_FROM pch_${kind})
endfunction()

function(zvonika_library name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LIBS" ${ARGN})
  add_library(${name} STATIC ${ARG_SOURCES})
  zvonika_house_rules(${name})
  target_link_libraries(${name} PUBLIC ${ARG_LIBS})
  if(name MATCHES "_ui$|^app_sestava$")
    zvonika_precompile(${name} widgets)
  elseif(NOT name MATCHES "^(xls|regular_descriptor)$") # these know no Qt
    zvonika_precompile(${name} core)
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
  if(ARG_LIBS MATCHES "_ui(;|$)")
    zvonika_precompile(${name} test_widgets)
  elseif("xls" IN_LIST ARG_LIBS)
    zvonika_precompile(${name} test_plain)
  else()
    zvonika_precompile(${name} test)
  endif()
  # The value of a parameter may be an object, whose printed bytes and addresses change from build to build.
  gtest_discover_tests(${name}
    DISCOVERY_MODE PRE_TEST
    NO_PRETTY_VALUES
    PROPERTIES ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8" TIMEOUT 120)
endfunction()
