# One interface target carries the warnings and the sanitizers of every target of the project.
add_library(tavelo_flags INTERFACE)

if(MSVC)
    target_compile_options(tavelo_flags INTERFACE /W4 /WX /utf-8 /permissive-)
else()
    target_compile_options(tavelo_flags INTERFACE
        -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wold-style-cast
        -Woverloaded-virtual -Wnon-virtual-dtor -Werror)
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        # g++ 12 warns without ground about joining std::strings (GCC bug 105651).
        target_compile_options(tavelo_flags INTERFACE -Wno-restrict)
    endif()
    if(TAVELO_SANITIZE)
        target_compile_options(tavelo_flags INTERFACE
            -fsanitize=${TAVELO_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
        target_link_options(tavelo_flags INTERFACE -fsanitize=${TAVELO_SANITIZE})
    endif()
endif()

# clang 16 hides <expected> of libstdc++ 12 because it announces an older revision of concepts than it has.
if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
    target_compile_options(tavelo_flags INTERFACE
        -Wno-builtin-macro-redefined -Wno-macro-redefined -D__cpp_concepts=202002L)
endif()

# libFuzzer finds its way by coverage, so the rules are built with its instrumentation as well.
if(TAVELO_FUZZ)
    target_compile_options(tavelo_flags INTERFACE -fsanitize=fuzzer-no-link)
endif()
