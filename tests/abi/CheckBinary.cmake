# cmake -D FILE=<plug-in> -D OBJDUMP=<objdump> -D NM=<nm> -D WINDOWS=<bool> -P CheckBinary.cmake
# The plug-in exports one function under its two names and nothing else, and needs only what every
# system has and, on Linux, the libraries that it draws with and that talk to the X server.
cmake_minimum_required(VERSION 3.25)

execute_process(COMMAND ${OBJDUMP} -p ${FILE} OUTPUT_VARIABLE headers COMMAND_ERROR_IS_FATAL ANY)
if(WINDOWS)
    string(REGEX MATCHALL "\n\t\\[ *[0-9]+\\] [A-Za-z_]+" exports "${headers}")
    list(TRANSFORM exports REPLACE ".* " "")
    string(REGEX MATCHALL "DLL Name: [^\n]+" needed "${headers}")
    set(system "^DLL Name: (KERNEL32|msvcrt|USER32|SHELL32|ADVAPI32|GDI32|gdiplus|MSIMG32)\\.dll$")
    string(REGEX MATCHALL "\\+base\\[ *[0-9]+\\] +[0-9a-f]+ Export RVA" addresses "${headers}")
    list(TRANSFORM addresses REPLACE ".*\\] +([0-9a-f]+) Export.*" "\\1")
else()
    execute_process(COMMAND ${NM} -D --defined-only --format=posix ${FILE}
        OUTPUT_VARIABLE symbols COMMAND_ERROR_IS_FATAL ANY)
    string(REGEX MATCHALL "[^\n]+" lines "${symbols}")
    set(exports ${lines})
    list(TRANSFORM exports REPLACE " .*" "")
    set(addresses ${lines})
    list(TRANSFORM addresses REPLACE "^[^ ]+ [^ ]+ ([0-9a-f]+).*" "\\1")
    # A loop compiled for fused multiply-add has the instruction. A call would mean that a part of
    # the loop was left out of it.
    execute_process(COMMAND ${NM} -D --undefined-only --format=posix ${FILE}
        OUTPUT_VARIABLE imports COMMAND_ERROR_IS_FATAL ANY)
    if(imports MATCHES "(^|\n)fma[ @]")
        message(FATAL_ERROR "calls fma()")
    endif()
    string(REGEX MATCHALL "NEEDED +[^\n]+" needed "${headers}")
    set(drawing "libfontconfig\\.so\\.1|libfreetype\\.so\\.6|libjpeg\\.so\\.62|libpng16\\.so\\.16")
    set(windows "libxcb\\.so\\.1|libxcb-xkb\\.so\\.1|libxkbcommon\\.so\\.0")
    set(system "^NEEDED +(libc\\.so\\.6|libm\\.so\\.6|ld-linux-x86-64\\.so\\.2|${drawing}|${windows})$")
endif()

list(SORT exports)
if(NOT exports STREQUAL "VSTPluginMain;main")
    message(FATAL_ERROR "exports: ${exports}")
endif()
list(REMOVE_DUPLICATES addresses)
list(LENGTH addresses functions)
if(NOT functions EQUAL 1)
    message(FATAL_ERROR "the two names belong to ${functions} functions: ${addresses}")
endif()
foreach(library IN LISTS needed)
    if(NOT library MATCHES "${system}")
        message(FATAL_ERROR "needs ${library}")
    endif()
endforeach()
