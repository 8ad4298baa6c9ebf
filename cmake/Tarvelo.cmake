# How every target of this project is built, and the two helpers with which the folders declare theirs.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_AUTOMOC ON)
set(CMAKE_AUTOUIC ON)
set(CMAKE_AUTORCC ON)
set_property(GLOBAL PROPERTY AUTOGEN_SOURCE_GROUP Generated)

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM)
    set(CMAKE_CXX_COMPILER_LAUNCHER "${CCACHE_PROGRAM}")
endif()

add_library(tarvelo_options INTERFACE)
target_compile_options(tarvelo_options INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wold-style-cast -Wnon-virtual-dtor
    -Woverloaded-virtual $<$<BOOL:${TARVELO_WARNINGS_ARE_ERRORS}>:-Werror>)
target_compile_definitions(tarvelo_options INTERFACE
    QT_NO_KEYWORDS QT_NO_CAST_FROM_ASCII QT_DISABLE_DEPRECATED_BEFORE=0x060400
    $<$<NOT:$<CONFIG:Release,RelWithDebInfo>>:QT_FORCE_ASSERTS>)
if(TARVELO_SANITIZE)
    target_compile_options(tarvelo_options INTERFACE
        -fsanitize=${TARVELO_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    target_link_options(tarvelo_options INTERFACE -fsanitize=${TARVELO_SANITIZE})
endif()

# Counters are atomic, since the engine counts from several threads; unoptimised, so that a line of the report is one of
# the source; and without the clean-up that the compiler would write behind every call, lest that counted as branches.
# Files that catch keep it. Tests count too: what stands in a header is often their copy of it.
if(TARVELO_COVERAGE)
    target_compile_options(tarvelo_options INTERFACE --coverage -O0 -fprofile-update=atomic -fno-exceptions)
    target_link_options(tarvelo_options INTERFACE --coverage)
endif()
function(tarvelo_keep_exceptions)
    foreach(source ${ARGN})
        file(STRINGS ${source} catches REGEX "catch \\(")
        if(catches)
            set_property(SOURCE ${source} APPEND PROPERTY COMPILE_OPTIONS -fexceptions)
        endif()
    endforeach()
endfunction()

# A folder of src/ is a static library: tarvelo_library(store SOURCES a.cpp LINK Qt6::Core ...).
function(tarvelo_library name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINK;PRIVATE_LINK" ${ARGN})
    add_library(tarvelo_${name} STATIC ${ARG_SOURCES})
    target_include_directories(tarvelo_${name} PUBLIC "${PROJECT_SOURCE_DIR}/src")
    target_link_libraries(tarvelo_${name} PUBLIC ${ARG_LINK} PRIVATE ${ARG_PRIVATE_LINK} tarvelo_options)
    if(TARVELO_COVERAGE)
        tarvelo_keep_exceptions(${ARG_SOURCES})
    endif()
endfunction()

# A test that starts another program forks while other threads run, which the sanitizer would refuse.
if(TARVELO_SANITIZE STREQUAL "thread")
    set(TARVELO_TEST_ENVIRONMENT
        "TSAN_OPTIONS=die_after_fork=0:suppressions=${PROJECT_SOURCE_DIR}/tests/tsan.supp")
endif()

# Under valgrind threads take turns, each a fair one, and everything takes thirty times as long.
if(TARVELO_VALGRIND)
    set(TARVELO_TEST_LAUNCHER valgrind --quiet --fair-sched=yes --num-callers=30 --error-exitcode=99
        --leak-check=full --show-leak-kinds=definite --errors-for-leak-kinds=definite
        --suppressions=${PROJECT_SOURCE_DIR}/tests/valgrind.supp)
endif()

# One test program a production class:
# tarvelo_test(SqliteTest SOURCES SqliteTest.cpp LINK tarvelo_store [LABELS x] [ENVIRONMENT a=b]).
function(tarvelo_test name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINK;LABELS;ENVIRONMENT" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    target_include_directories(${name} PRIVATE "${PROJECT_SOURCE_DIR}/tests")
    target_link_libraries(${name} PRIVATE ${ARG_LINK} tarvelo_test_support Qt6::Test tarvelo_options)
    add_test(NAME ${name} COMMAND ${TARVELO_TEST_LAUNCHER} $<TARGET_FILE:${name}>)
    set_tests_properties(${name} PROPERTIES LABELS "${ARG_LABELS}"
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;QT_ENABLE_HIGHDPI_SCALING=0;LC_ALL=C.UTF-8;TZ=UTC;${TARVELO_TEST_ENVIRONMENT};${ARG_ENVIRONMENT}")
endfunction()

# Tests that start the program that was just built and drive it from outside: a case a process, since the way to the
# accessibility bus is found once in each.
# tarvelo_journey(WalkTest.py [SOUND] [CASES the_menus ...] [ARGUMENTS x] [ENVIRONMENT a=b]).
function(tarvelo_journey file)
    cmake_parse_arguments(ARG "SOUND" "" "CASES;ARGUMENTS;ENVIRONMENT" ${ARGN})
    if(NOT TARGET Tarvelo)
        return()
    endif()
    get_filename_component(test ${file} NAME_WE)
    list(TRANSFORM ARG_CASES PREPEND ${test}.)
    if(NOT ARG_CASES)
        set(ARG_CASES ${test})
    endif()
    foreach(case ${ARG_CASES})
        string(REPLACE "." ".test_" chosen ${case})
        add_test(NAME ${case}
            COMMAND ${TARVELO_PYTHON} -B ${file} $<TARGET_FILE:Tarvelo> ${ARG_ARGUMENTS} ${chosen}
            WORKING_DIRECTORY "${CMAKE_CURRENT_SOURCE_DIR}")
        set_tests_properties(${case} PROPERTIES LABELS journey ENVIRONMENT "LC_ALL=C.UTF-8;${ARG_ENVIRONMENT}")
        if(ARG_SOUND)
            set_tests_properties(${case} PROPERTIES RESOURCE_LOCK sound)
        endif()
    endforeach()
endfunction()
