# The one place for the language level, the warnings and the sanitizers of every target.
#
# A warning does not end the build, because another compiler may have a warning that nobody has seen yet.
# The continuous integration turns warnings into errors with CMAKE_COMPILE_WARNING_AS_ERROR.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

# Whatever tests run ends where it reads beyond a vector, a text or a view, or an absent value.
add_compile_definitions($<$<NOT:$<CONFIG:Release>>:_GLIBCXX_ASSERTIONS>)

# Nobody debugs a build that is made once and thrown away. Only what the sanitizers report names lines.
if(KX_JOIN AND KX_SANITIZE)
    add_compile_options($<$<NOT:$<CONFIG:Release>>:-g1>)
elseif(KX_JOIN)
    add_compile_options($<$<NOT:$<CONFIG:Release>>:-g0>)
endif()

# The tests count lines too, because they compile the inline functions of the headers once more.
if(KX_COUNT_LINES)
    add_compile_options(--coverage -fprofile-abs-path)
    add_link_options(--coverage)
endif()

add_library(kxwarnings INTERFACE)
target_compile_options(kxwarnings INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion
    # When files are compiled together, clang takes names of other files for hidden ones. GCC does not.
    $<$<NOT:$<AND:$<CXX_COMPILER_ID:Clang>,$<BOOL:$<TARGET_PROPERTY:UNITY_BUILD>>>>:-Wshadow>)

# When files are compiled together, GCC takes the anonymous namespace of an included file for the
# namespace of a header.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    target_compile_options(kxwarnings INTERFACE
        $<$<BOOL:$<TARGET_PROPERTY:UNITY_BUILD>>:-Wno-subobject-linkage>)
endif()

# At -O3 GCC 12 mistakes the joining of a literal and a text for an overlapping copy (GCC bug 105651),
# and the copying of bytes into a vector for a write behind its end (GCC bug 107852).
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    target_compile_options(kxwarnings INTERFACE
        "$<$<CONFIG:Release>:-Wno-restrict;-Wno-stringop-overflow>")
endif()

if(KX_SANITIZE)
    add_compile_options(-fsanitize=${KX_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${KX_SANITIZE})
    add_compile_definitions(KX_SANITIZED)
    # In instrumented code GCC cannot see that a value has been set, as in std::regex. The other presets
    # keep this warning.
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        target_compile_options(kxwarnings INTERFACE -Wno-maybe-uninitialized)
    endif()
endif()
