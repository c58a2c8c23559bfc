# cmake -D SOURCE=<repository> -P CheckFloors.cmake
# Every folder is a floor. Its files may include files of their own folder and of those in its row of
# the table in docs/architecture.md, and a row may name only rows above it. Only the files in
# src/platform/linux and src/platform/win32 may include system headers or test which system they are
# built for.
cmake_minimum_required(VERSION 3.25)

# Sets floors, and floor_<folder> to the folders that it may include.
set(floors "")
set(wrong "")
file(STRINGS ${SOURCE}/docs/architecture.md rows REGEX "^\\| `(src|tools)/")
foreach(row IN LISTS rows)
    string(REGEX MATCH "^\\| `(src|tools)/([^`]+)` \\|[^|]*\\|([^|]*)\\|$" cells "${row}")
    set(folder ${CMAKE_MATCH_2})
    string(REGEX MATCHALL "[a-z0-9/]+" lower "${CMAKE_MATCH_3}")
    foreach(other IN LISTS lower)
        if(NOT other IN_LIST floors)
            string(APPEND wrong "docs/architecture.md: ${folder} names ${other}, which is not above it\n")
        endif()
    endforeach()
    list(APPEND floors ${folder})
    set(floor_${folder} ${folder} ${lower})
endforeach()

# Sets result to the floor that a path below src/ or tools/ belongs to, or to "".
function(find_floor path result)
    set(${result} "" PARENT_SCOPE)
    foreach(floor IN LISTS floors)
        string(FIND ${path} ${floor}/ position)
        if(position EQUAL 0)
            set(${result} ${floor} PARENT_SCOPE)
        endif()
    endforeach()
endfunction()

set(standard
    algorithm any array atomic barrier bit bitset cctype cerrno cfenv cfloat charconv chrono cinttypes
    climits clocale cmath compare complex concepts condition_variable coroutine csetjmp csignal cstdarg
    cstddef cstdint cstdio cstdlib cstring ctime cuchar cwchar cwctype deque exception execution
    filesystem format forward_list fstream functional future initializer_list iomanip ios iosfwd
    iostream istream iterator latch limits list locale map memory memory_resource mutex new numbers
    numeric optional ostream queue random ranges ratio regex scoped_allocator semaphore set shared_mutex
    source_location span sstream stack stdexcept stop_token streambuf string string_view syncstream
    system_error thread tuple type_traits typeindex typeinfo unordered_map unordered_set utility
    valarray variant vector version)
# Headers of the compiler, the same on every system
set(compiler cpuid.h cxxabi.h emmintrin.h immintrin.h)
set(libraries_corvel CLI/CLI.hpp cairo-svg.h ebur128.h jack/jack.h jack/midiport.h nlohmann/json.hpp samplerate.h
    sndfile.h)
set(libraries_manual_facts nlohmann/json.hpp)

file(GLOB_RECURSE files RELATIVE ${SOURCE} ${SOURCE}/src/*.h ${SOURCE}/src/*.cpp ${SOURCE}/tools/*.h
    ${SOURCE}/tools/*.cpp)
list(LENGTH files count)
if(count LESS 100 OR NOT floors)
    message(FATAL_ERROR "found only ${count} files in ${SOURCE} and the floors \"${floors}\"")
endif()

foreach(file IN LISTS files)
    string(REGEX REPLACE "^(src|tools)/" "" path ${file})
    find_floor(${path} floor)
    if(floor STREQUAL "")
        string(APPEND wrong "${file}: its folder is not in the table of docs/architecture.md\n")
        continue()
    endif()
    set(is_backend NO)
    if(file MATCHES "^src/platform/(linux|win32)/")
        set(is_backend YES)
    endif()

    file(STRINGS ${SOURCE}/${file} includes REGEX "^[ \t]*#[ \t]*include")
    foreach(line IN LISTS includes)
        if(line MATCHES "\"([^\"]+/[^\"]+)\"")
            set(header ${CMAKE_MATCH_1})
            find_floor(${header} target)
            if(NOT target IN_LIST floor_${floor})
                string(APPEND wrong "${file}: must not include ${header}\n")
            endif()
        elseif(line MATCHES "<([^>]+)>")
            if(NOT is_backend AND NOT CMAKE_MATCH_1 IN_LIST standard AND NOT CMAKE_MATCH_1 IN_LIST compiler
                AND NOT CMAKE_MATCH_1 IN_LIST libraries_${floor})
                string(APPEND wrong "${file}: must not include the system header ${CMAKE_MATCH_1}\n")
            endif()
        else()
            string(APPEND wrong "${file}: must name the path from the include root: ${line}\n")
        endif()
    endforeach()

    file(STRINGS ${SOURCE}/${file} conditions
        REGEX "^[ \t]*#[ \t]*(el)?if.*(_WIN32|_WIN64|__MINGW|__linux|__unix|__APPLE__)")
    if(conditions AND NOT is_backend)
        string(APPEND wrong "${file}: must not test for a system: ${conditions}\n")
    endif()
endforeach()

if(wrong)
    message(FATAL_ERROR "${wrong}")
endif()
