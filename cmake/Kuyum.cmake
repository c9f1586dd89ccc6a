# How this project declares its libraries and tests.

# The settings that every target of ours shares.
add_library(kuyum_options INTERFACE)
target_compile_options(kuyum_options INTERFACE -Wall -Wextra $<$<BOOL:${KUYUM_WERROR}>:-Werror>)
target_compile_definitions(kuyum_options INTERFACE
  QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS
  QT_DISABLE_DEPRECATED_BEFORE=0x060400)
if(KUYUM_SANITIZE)
  target_compile_options(kuyum_options INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  target_link_options(kuyum_options INTERFACE -fsanitize=address,undefined)
endif()

# kuyum_library(name USES lib... SOURCES file...)
# The library of a folder, named after it (orders/screens is orders_screens).
# Its own folder is all it gives to others, and it sees the headers of the
# libraries named in USES, of those that they use, and no more: that keeps
# includes running one way (app, screens, subjects, data, base).
function(kuyum_library name)
  cmake_parse_arguments(arg "" "" "USES;SOURCES" ${ARGN})
  add_library(${name} STATIC ${arg_SOURCES})
  target_include_directories(${name} PUBLIC ${CMAKE_CURRENT_SOURCE_DIR})
  target_link_libraries(${name} PUBLIC ${arg_USES} PRIVATE kuyum_options)
  if(name MATCHES "screens$|^widgets$|^platform")
    target_precompile_headers(${name} PRIVATE <QtWidgets> <memory> <functional>)
  else()
    target_precompile_headers(${name} PRIVATE <QtCore> <memory> <functional>)
  endif()
endfunction()

# kuyum_tests(folder USES lib... CLASSES TestClass...)
# One test program per folder; every class in it is a ctest of its own, run
# under the C locale and under the Turkish one, with the folder as its label.
function(kuyum_tests folder)
  cmake_parse_arguments(arg "" "" "USES;CLASSES;SOURCES" ${ARGN})
  set(program ${folder}_tests)
  list(TRANSFORM arg_CLASSES APPEND .cpp OUTPUT_VARIABLE sources)
  add_executable(${program} ${sources} ${arg_SOURCES})
  target_link_libraries(${program} PRIVATE test_support ${arg_USES} kuyum_options)
  target_precompile_headers(${program} PRIVATE <QtWidgets> <QtTest> <memory> <functional>)
  foreach(class ${arg_CLASSES})
    foreach(locale C.UTF-8 tr_TR.UTF-8)
      set(test ${folder}.${class}.${locale})
      add_test(NAME ${test} COMMAND ${program} ${class})
      set_tests_properties(${test} PROPERTIES
        LABELS ${folder}
        TIMEOUT 300
        ENVIRONMENT "LC_ALL=${locale};QT_QPA_PLATFORM=offscreen;KUYUM_ORNEK=${KUYUM_ORNEK};KUYUM_PROGRAM=$<TARGET_FILE:kuyum>;ASAN_OPTIONS=detect_leaks=0")
    endforeach()
  endforeach()
endfunction()

# A company's real legacy files, where they are present beside the project.
set(KUYUM_ORNEK ${PROJECT_SOURCE_DIR}/../shared/ornek CACHE PATH "Folder of example legacy files")
