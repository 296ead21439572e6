# Everything that every target of the project is compiled with.
add_library(ferrowick_options INTERFACE)
target_compile_options(ferrowick_options INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Wcast-align -Woverloaded-virtual -Wnull-dereference)
if(FERROWICK_WERROR)
    target_compile_options(ferrowick_options INTERFACE -Werror)
endif()
if(FERROWICK_SANITIZE)
    target_compile_options(ferrowick_options INTERFACE
        -fsanitize=${FERROWICK_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    target_link_options(ferrowick_options INTERFACE -fsanitize=${FERROWICK_SANITIZE})
endif()

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM)
    set(CMAKE_CXX_COMPILER_LAUNCHER "${CCACHE_PROGRAM}")
endif()
