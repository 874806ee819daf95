# The few functions of our own: a shared library, a part of the plug-in, a program, a test.
# Each refuses arguments that it does not know.

add_library(tavrik_options INTERFACE)
target_compile_features(tavrik_options INTERFACE cxx_std_17)
target_compile_options(tavrik_options INTERFACE
  -Wall -Wextra -Wpedantic -Werror -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-align
  -Wold-style-cast -Wunused -Wformat=2 -Wnull-dereference -Wimplicit-fallthrough)
target_compile_definitions(tavrik_options INTERFACE
  QT_NO_CAST_TO_ASCII QT_DEPRECATED_WARNINGS QT_DISABLE_DEPRECATED_BEFORE=0x050F00)
target_include_directories(tavrik_options INTERFACE
  ${PROJECT_SOURCE_DIR} ${PROJECT_SOURCE_DIR}/src ${PROJECT_SOURCE_DIR}/host)
if(TAVRIK_SANITIZE)
  target_compile_options(tavrik_options INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(tavrik_options INTERFACE -fsanitize=address,undefined)
endif()
if(TAVRIK_SANITIZE_THREADS)
  target_compile_options(tavrik_options INTERFACE -fsanitize=thread -fno-omit-frame-pointer)
  target_link_options(tavrik_options INTERFACE -fsanitize=thread)
endif()
if(TAVRIK_COVERAGE)
  target_compile_options(tavrik_options INTERFACE --coverage)
  target_link_options(tavrik_options INTERFACE --coverage)
endif()

# The scene-graph headers are heavy and in nearly every file of ours.
set(_tavrik_coin_pch
  <Inventor/SoDB.h> <Inventor/SbString.h> <Inventor/SbName.h> <Inventor/fields/SoFields.h>
  <Inventor/nodes/SoGroup.h> <Inventor/sensors/SoFieldSensor.h> <Inventor/errors/SoDebugError.h>
  <algorithm> <functional> <map> <memory> <string> <vector>)
set(_tavrik_qt_pch
  <QApplication> <QDockWidget> <QFrame> <QHBoxLayout> <QLabel> <QLineEdit> <QMainWindow>
  <QPushButton> <QTreeView> <QTableView> <QVector> <QHash> <QPointer>)

function(_tavrik_common target)
  target_link_libraries(${target} PRIVATE tavrik_options)
  set_target_properties(${target} PROPERTIES
    POSITION_INDEPENDENT_CODE ON CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON)
endfunction()

function(_tavrik_pch target)
  if(TAVRIK_PCH)
    target_precompile_headers(${target} PRIVATE ${ARGN})
  endif()
endfunction()

function(_tavrik_no_more_arguments function prefix)
  if(${prefix}_UNPARSED_ARGUMENTS)
    message(FATAL_ERROR "${function}: unknown arguments: ${${prefix}_UNPARSED_ARGUMENTS}")
  endif()
endfunction()

# tavrik_shared_library(NAME SOURCES ... LINK ... [NO_QT])
# A library that exists once in the process; <NAME>Export.h gives its export macro.
function(tavrik_shared_library name)
  cmake_parse_arguments(A "NO_QT" "" "SOURCES;LINK" ${ARGN})
  _tavrik_no_more_arguments(tavrik_shared_library A)
  add_library(${name} SHARED ${A_SOURCES})
  _tavrik_common(${name})
  target_link_libraries(${name} PUBLIC ${A_LINK})
  include(GenerateExportHeader)
  generate_export_header(${name} EXPORT_FILE_NAME ${CMAKE_BINARY_DIR}/generated/${name}Export.h)
  target_include_directories(${name} PUBLIC $<BUILD_INTERFACE:${CMAKE_BINARY_DIR}/generated>)
  set_target_properties(${name} PROPERTIES VERSION ${PROJECT_VERSION} SOVERSION 0)
  if(A_NO_QT)
    _tavrik_pch(${name} ${_tavrik_coin_pch})
  else()
    set_target_properties(${name} PROPERTIES AUTOMOC ON AUTOUIC ON AUTORCC ON)
    _tavrik_pch(${name} ${_tavrik_coin_pch} ${_tavrik_qt_pch})
  endif()
endfunction()

# tavrik_module(NAME SOURCES ... LINK ...)
# One room of the plug-in: objects that the plug-in and the tests both link.
function(tavrik_module name)
  cmake_parse_arguments(A "" "" "SOURCES;LINK" ${ARGN})
  _tavrik_no_more_arguments(tavrik_module A)
  add_library(${name} OBJECT ${A_SOURCES})
  _tavrik_common(${name})
  target_link_libraries(${name} PUBLIC ${A_LINK})
  set_target_properties(${name} PROPERTIES AUTOMOC ON AUTOUIC ON AUTORCC ON)
  # A class that derives from its form has the form's generated header in its own.
  target_include_directories(${name} INTERFACE ${CMAKE_CURRENT_BINARY_DIR}/${name}_autogen/include)
  _tavrik_pch(${name} ${_tavrik_coin_pch} ${_tavrik_qt_pch})
endfunction()

function(_tavrik_executable name sources link)
  add_executable(${name} ${sources})
  _tavrik_common(${name})
  target_link_libraries(${name} PRIVATE ${link})
  set_target_properties(${name} PROPERTIES AUTOMOC ON AUTOUIC ON AUTORCC ON)
endfunction()

# tavrik_program(NAME SOURCES ... LINK ...)
function(tavrik_program name)
  cmake_parse_arguments(A "" "" "SOURCES;LINK" ${ARGN})
  _tavrik_no_more_arguments(tavrik_program A)
  _tavrik_executable(${name} "${A_SOURCES}" "${A_LINK}")
  _tavrik_pch(${name} ${_tavrik_coin_pch} ${_tavrik_qt_pch})
endfunction()

# All tests share one precompiled header, which takes longer to make than most of them.
function(_tavrik_test_pch name)
  if(NOT TAVRIK_PCH)
    return()
  endif()
  if(NOT TARGET tavrik_test_pch)
    file(GENERATE OUTPUT ${CMAKE_BINARY_DIR}/generated/tavrik_test_pch.cpp
         CONTENT "int main() { return 0; }\n")
    _tavrik_executable(tavrik_test_pch ${CMAKE_BINARY_DIR}/generated/tavrik_test_pch.cpp
                       "Qt5::Test;Qt5::Widgets;Tavrik::Coin")
    set_target_properties(tavrik_test_pch PROPERTIES AUTOMOC OFF AUTOUIC OFF AUTORCC OFF)
    _tavrik_pch(tavrik_test_pch ${_tavrik_coin_pch} ${_tavrik_qt_pch} <QtTest>)
  endif()
  target_precompile_headers(${name} REUSE_FROM tavrik_test_pch)
endfunction()

# tavrik_test(NAME SOURCES ... LINK ... [REAL_WINDOW])
# One QtTest class; it fails on any warning about a signal connection, since connections are
# string-based and break only at run time. REAL_WINDOW runs it under an X server of its own with a
# window manager; the others need no display.
function(tavrik_test name)
  cmake_parse_arguments(A "REAL_WINDOW" "" "SOURCES;LINK" ${ARGN})
  _tavrik_no_more_arguments(tavrik_test A)
  _tavrik_executable(${name} "${A_SOURCES}" "${A_LINK};Qt5::Test;Qt5::Widgets;Tavrik::Coin")
  _tavrik_test_pch(${name})
  if(A_REAL_WINDOW)
    add_test(NAME ${name}
             COMMAND ${PROJECT_SOURCE_DIR}/tools/with_display $<TARGET_FILE:${name}>)
    set_tests_properties(${name} PROPERTIES TIMEOUT 600 LABELS window)
  else()
    add_test(NAME ${name} COMMAND ${name})
    set_property(TEST ${name} PROPERTY ENVIRONMENT QT_QPA_PLATFORM=offscreen)
    set_tests_properties(${name} PROPERTIES TIMEOUT 300)
  endif()
  tavrik_test_environment(${name})
endfunction()

file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/test-home/runtime)
file(CHMOD ${CMAKE_BINARY_DIR}/test-home/runtime PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE)

# What every test of ours runs under, also those that are no QtTest class.
function(tavrik_test_environment name)
  if(ARGC GREATER 1)
    message(FATAL_ERROR "tavrik_test_environment: unknown arguments: ${ARGN}")
  endif()
  set_property(TEST ${name} APPEND PROPERTY ENVIRONMENT
    XDG_CONFIG_HOME=${CMAKE_BINARY_DIR}/test-home/${name}/config
    XDG_RUNTIME_DIR=${CMAKE_BINARY_DIR}/test-home/runtime
    COIN_ENVIRONMENT_CHECK=0
    LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/support/leaks.supp:print_suppressions=0
    ASAN_OPTIONS=detect_leaks=1:check_initialization_order=1
    UBSAN_OPTIONS=print_stacktrace=1
    TSAN_OPTIONS=ignore_noninstrumented_modules=1)
  set_property(TEST ${name} PROPERTY
    FAIL_REGULAR_EXPRESSION
    "QObject::connect;QObject::disconnect;runtime error:;WARNING: ThreadSanitizer")
endfunction()
