option(CORVEL_BENCHMARKS "Build the benchmark programs" OFF)
option(CORVEL_FUZZERS "Build the fuzz targets for libFuzzer, which is part of clang" OFF)
set(CORVEL_SANITIZERS "" CACHE STRING "Sanitizers of the whole build: address,undefined or thread")

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/bin)

# Linked by all our targets. Rounding is part of the sound: no contraction, never -ffast-math.
# Warnings are errors with g++, which builds the product, but not with clang, which builds the fuzzers
# and warns about other things.
add_library(project_options INTERFACE)
target_compile_options(project_options INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wshadow -ffp-contract=off
    $<$<CXX_COMPILER_ID:GNU>:-Werror>)
target_include_directories(project_options INTERFACE ${PROJECT_SOURCE_DIR}/src)

# The subfolder with the sources for this operating system
if(WIN32)
    set(backend win32)
else()
    set(backend linux)
endif()

if(WIN32)
    # The printf of MinGW instead of Microsoft's, so that both systems format numbers in the same way
    target_compile_definitions(project_options INTERFACE __USE_MINGW_ANSI_STDIO=1)
endif()

if(CORVEL_SANITIZERS)
    add_compile_options(-fsanitize=${CORVEL_SANITIZERS} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${CORVEL_SANITIZERS})
endif()
