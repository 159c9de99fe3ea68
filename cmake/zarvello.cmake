# What every target of the project shares: language level, warnings, sanitizers, fences.

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_AUTOMOC ON)

if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
    set(CMAKE_BUILD_TYPE Release CACHE STRING "Build type" FORCE)
endif()

# The coup loop runs through many small functions of several libraries: optimising across them
# makes a run twice as fast. Fat objects let everything else link as usual.
set(ZARVELLO_LTO OFF)
if(CMAKE_BUILD_TYPE STREQUAL "Release" AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND NOT ZARVELLO_SANITIZE)
    set(ZARVELLO_LTO ON)
endif()

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM)
    set(CMAKE_CXX_COMPILER_LAUNCHER "${CCACHE_PROGRAM}")
endif()

# Warnings and sanitizers of our own code; generated moc code is compiled with them too.
function(zarvello_compile_options target)
    target_compile_definitions(${target} PRIVATE
        QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING
        QT_NO_NARROWING_CONVERSIONS_IN_CONNECT)
    if(MSVC)
        target_compile_options(${target} PRIVATE /W4 /utf-8)
        return()
    endif()
    target_compile_options(${target} PRIVATE
        -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor -Woverloaded-virtual)
    if(CMAKE_CXX_COMPILER_ID MATCHES "Clang") # Qt's logging macros are called without arguments
        target_compile_options(${target} PRIVATE -Wno-gnu-zero-variadic-macro-arguments)
    endif()
    if(ZARVELLO_FUZZ)
        target_compile_options(${target} PRIVATE -fsanitize=fuzzer-no-link)
    endif()
    if(ZARVELLO_LTO)
        target_compile_options(${target} PRIVATE -flto=auto -ffat-lto-objects)
    endif()
    if(ZARVELLO_SANITIZE)
        target_compile_options(${target} PRIVATE
            -fsanitize=${ZARVELLO_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
        target_link_options(${target} PRIVATE -fsanitize=${ZARVELLO_SANITIZE})
    endif()
endfunction()

# Links a program with optimisation across all libraries.
function(zarvello_link_optimised target)
    if(ZARVELLO_LTO)
        target_link_options(${target} PRIVATE -flto=auto -fuse-linker-plugin -O3)
    endif()
endfunction()

# A floor of the house. Exports its own folders and nothing else; what it may know is what it links.
# FOLDERS beside the current one belong to it too.
# The empty fence program links the whole library: a call upwards does not link there.
function(zarvello_library name)
    cmake_parse_arguments(ARG "" "" "SOURCES;FOLDERS;LINK" ${ARGN})
    set(folders "${CMAKE_CURRENT_SOURCE_DIR}" ${ARG_FOLDERS})
    foreach(folder ${ARG_FOLDERS})
        file(GLOB sources CONFIGURE_DEPENDS "${folder}/*.cpp" "${folder}/*.h")
        list(APPEND ARG_SOURCES ${sources})
    endforeach()
    add_library(${name} STATIC ${ARG_SOURCES})
    target_include_directories(${name} PUBLIC ${folders})
    target_link_libraries(${name} PUBLIC ${ARG_LINK})
    zarvello_compile_options(${name})
    if(ZARVELLO_TESTS)
        add_executable(fence_${name} "${PROJECT_SOURCE_DIR}/cmake/empty_main.cpp")
        target_link_libraries(fence_${name} PRIVATE "$<LINK_LIBRARY:WHOLE_ARCHIVE,${name}>")
        zarvello_compile_options(fence_${name})
    endif()
endfunction()

# A Qt Test program tests/<folder>/tst_<name>.cpp, registered with CTest under its file name.
function(zarvello_test name)
    cmake_parse_arguments(ARG "" "" "LINK" ${ARGN})
    add_executable(${name} ${name}.cpp)
    target_link_libraries(${name} PRIVATE zarvello_test_support ${ARG_LINK})
    zarvello_compile_options(${name})
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES TIMEOUT 300)
    if(ZARVELLO_SANITIZE STREQUAL "thread")
        set_tests_properties(${name} PROPERTIES
            ENVIRONMENT "TSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/cmake/tsan.supp")
    endif()
endfunction()
