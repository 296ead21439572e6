# The highest level compiles a quarter longer, and nothing that is measured is quicker by it.
string(REPLACE "-O3" "-O2" CMAKE_CXX_FLAGS_RELEASE "${CMAKE_CXX_FLAGS_RELEASE}")

# Everything that every target of the project is compiled with.
add_library(ferrowick_options INTERFACE)
target_compile_options(ferrowick_options INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Wcast-align -Woverloaded-virtual -Wnull-dereference)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    # GCC 12 sees overlaps in the standard library's own string concatenation that cannot be (its bug 105651).
    target_compile_options(ferrowick_options INTERFACE -Wno-restrict)
endif()
if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
    # What clang-tidy would look for at many times the cost. What moc makes has names that are reserved.
    target_compile_options(ferrowick_options INTERFACE -Wsuggest-override
        $<$<NOT:$<BOOL:$<TARGET_PROPERTY:AUTOMOC>>>:-Wreserved-identifier>)
endif()
if(FERROWICK_WERROR)
    target_compile_options(ferrowick_options INTERFACE -Werror)
endif()
if(FERROWICK_SANITIZE)
    target_compile_options(ferrowick_options INTERFACE
        -fsanitize=${FERROWICK_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    target_link_options(ferrowick_options INTERFACE -fsanitize=${FERROWICK_SANITIZE})
endif()

# Every room is linked with every test program; a package is linked by the system's own linker.
find_program(MOLD_PROGRAM mold)
if(MOLD_PROGRAM AND (FERROWICK_TESTS OR FERROWICK_FUZZ))
    target_link_options(ferrowick_options INTERFACE -fuse-ld=mold)
endif()

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM)
    # Without this ccache keeps nothing that was compiled with a precompiled header.
    set(CMAKE_CXX_COMPILER_LAUNCHER "env;CCACHE_SLOPPINESS=pch_defines,time_macros;${CCACHE_PROGRAM}")
endif()

# ferrowick_unity(TARGET ...)
# A file must still include what it uses: builds without FERROWICK_UNITY, the daily ones, check that. A room is one or
# two files then, since most of the time goes into the headers.
function(ferrowick_unity)
    set_target_properties(${ARGN} PROPERTIES UNITY_BUILD ${FERROWICK_UNITY} UNITY_BUILD_BATCH_SIZE 32)
endfunction()

# ferrowick_precompile(TARGET HEADER ...)
# A file must still include what it uses: builds without FERROWICK_PCH, and the fuzz targets, check that. In optimised
# builds GCC 12 takes precompiled standard headers for the project's own and warns of them.
function(ferrowick_precompile target)
    if(FERROWICK_PCH AND CMAKE_BUILD_TYPE STREQUAL "Debug")
        target_precompile_headers(${target} PRIVATE ${ARGN})
    endif()
endfunction()

# ferrowick_moc(TARGET)
# Classes with signals: what Qt's moc makes of them.
function(ferrowick_moc target)
    set_target_properties(${target} PROPERTIES AUTOMOC ON)
    if(FERROWICK_UNITY)
        find_package(Qt6 REQUIRED COMPONENTS CoreTools)
        get_target_property(moc Qt6::moc IMPORTED_LOCATION)
        configure_file(${PROJECT_SOURCE_DIR}/cmake/moc.sh.in ${PROJECT_BINARY_DIR}/moc.sh @ONLY)
        set_target_properties(${target} PROPERTIES AUTOMOC_EXECUTABLE ${PROJECT_BINARY_DIR}/moc.sh)
    endif()
endfunction()
