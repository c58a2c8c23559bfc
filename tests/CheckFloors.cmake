# cmake -D SOURCE=<repository> -P CheckFloors.cmake
# Every folder is a floor: its files include their own folder and those below, never one above. No
# file outside src/platform includes a header of a system or asks which system it is built for, and
# the headers of src/platform show nothing of one.
cmake_minimum_required(VERSION 3.25)

# Folder: what it may include of ours. A new folder of src/ needs a line here.
set(floor_platform platform)
set(floor_dspclasses dspclasses)
set(floor_foundation foundation platform)
set(floor_hostlayer hostlayer foundation platform)
set(floor_toolkit toolkit foundation platform)
set(floor_effect effect editor hostlayer toolkit dspclasses foundation platform)
set(floor_editor ${floor_effect})
# The command-line host reaches the effect through its binary interface.
set(floor_corvel corvel effect hostlayer platform)

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
# The compiler's own, the same on every system.
set(compiler cpuid.h cxxabi.h emmintrin.h immintrin.h)
set(libraries_corvel CLI/CLI.hpp nlohmann/json.hpp samplerate.h sndfile.h)

file(GLOB_RECURSE files RELATIVE ${SOURCE} ${SOURCE}/src/*.h ${SOURCE}/src/*.cpp ${SOURCE}/tools/*.h
    ${SOURCE}/tools/*.cpp)
list(LENGTH files count)
if(count LESS 100)
    message(FATAL_ERROR "only ${count} files found in ${SOURCE}")
endif()

set(wrong "")
foreach(file IN LISTS files)
    string(REGEX REPLACE "^(src|tools)/([^/]+)/.*" "\\2" folder ${file})
    if(NOT DEFINED floor_${folder})
        string(APPEND wrong "${file}: its folder is on no floor\n")
    endif()
    set(is_backend NO)
    if(file MATCHES "^src/platform/(linux|win32)/")
        set(is_backend YES)
    endif()

    file(STRINGS ${SOURCE}/${file} includes REGEX "^[ \t]*#[ \t]*include")
    foreach(line IN LISTS includes)
        if(line MATCHES "\"(([^/\"]+)/[^\"]+)\"")
            if(NOT CMAKE_MATCH_2 IN_LIST floor_${folder})
                string(APPEND wrong "${file}: must not include ${CMAKE_MATCH_1}\n")
            endif()
        elseif(line MATCHES "<([^>]+)>")
            if(NOT is_backend AND NOT CMAKE_MATCH_1 IN_LIST standard AND NOT CMAKE_MATCH_1 IN_LIST compiler
                AND NOT CMAKE_MATCH_1 IN_LIST libraries_${folder})
                string(APPEND wrong "${file}: ${CMAKE_MATCH_1} is no standard header\n")
            endif()
        else()
            string(APPEND wrong "${file}: not from the include root: ${line}\n")
        endif()
    endforeach()

    file(STRINGS ${SOURCE}/${file} conditions
        REGEX "^[ \t]*#[ \t]*(el)?if.*(_WIN32|_WIN64|__MINGW|__linux|__unix|__APPLE__)")
    if(conditions AND NOT is_backend)
        string(APPEND wrong "${file}: asks for the system: ${conditions}\n")
    endif()
endforeach()

if(wrong)
    message(FATAL_ERROR "${wrong}")
endif()
