# One place for what every target of ours has: the language, warnings as errors, sanitizers, the linker, ccache.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

find_program(KESTO_CCACHE ccache)
if(KESTO_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  # Paths below the checkout are hashed as relative ones, so a clone in another folder finds what this one compiled.
  set(CMAKE_CXX_COMPILER_LAUNCHER
    "${CMAKE_COMMAND}" -E env "CCACHE_BASEDIR=${CMAKE_SOURCE_DIR}" CCACHE_NOHASHDIR=1 "${KESTO_CCACHE}")
endif()

find_program(KESTO_MOLD mold)
if(KESTO_MOLD)
  add_link_options(-fuse-ld=mold)
endif()

if(KESTO_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()

# Not CMAKE_SOURCE_DIR: that is another project's when this one is built as a part of it.
get_filename_component(KESTO_ROOT "${CMAKE_CURRENT_LIST_DIR}/.." ABSOLUTE)

# Strict warnings for C++ that we write; generated code of QML targets does not take them.
function(kesto_warnings target)
  target_compile_options(${target} PRIVATE
    -Wall -Wextra -Wpedantic -Werror -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-align -Wconversion -Wno-sign-conversion
    -Wno-missing-field-initializers) # designated initializers leave out what keeps its default
  if(KESTO_SANITIZE)
    # GCC no longer sees through the instrumented code, and complains of members that are there.
    target_compile_options(${target} PRIVATE -Wno-maybe-uninitialized)
  endif()
  target_compile_definitions(${target} PRIVATE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS QT_NO_FOREACH QT_DISABLE_DEPRECATED_BEFORE=0x060400)
endfunction()

# kesto_library(<name> SOURCES ... LINK ...): a static library of one folder of src/. What it links is whom it may know.
function(kesto_library name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINK" ${ARGN})
  add_library(${name} STATIC ${ARG_SOURCES})
  set_target_properties(${name} PROPERTIES AUTOMOC ON)
  target_include_directories(${name} PUBLIC "${KESTO_ROOT}/src")
  target_link_libraries(${name} PUBLIC ${ARG_LINK})
  kesto_warnings(${name})
endfunction()

# kesto_test(<name> SOURCES ... LINK ...): a GoogleTest program with the main() of tests/support, one CTest entry a program.
function(kesto_test name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINK" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  set_target_properties(${name} PROPERTIES AUTOMOC ON)
  target_include_directories(${name} PRIVATE "${KESTO_ROOT}/tests")
  target_link_libraries(${name} PRIVATE ${ARG_LINK} kesto_test_support GTest::gmock)
  kesto_warnings(${name})
  # A test program runs once after it was built: the time that its optimization takes is never won back.
  target_compile_options(${name} PRIVATE $<$<CONFIG:Release>:-O0>)
  add_test(NAME ${name} COMMAND ${name})
  set_tests_properties(${name} PROPERTIES ENVIRONMENT
    "QT_QPA_PLATFORM=offscreen;QT_QUICK_BACKEND=software;QT_HASH_SEED=0;LC_ALL=C.UTF-8;TZ=Europe/Berlin"
    TIMEOUT 300)
endfunction()
