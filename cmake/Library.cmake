# A library of Sources/. The folder of a file decides to which library the file belongs.
#
#   kx_library(NAME FILES GLOB... [EXCEPT FILE...] USES LIBRARY...)
#
# The globs and files are relative to Sources/. The users of a library also see the libraries that it
# uses, because its headers name them.
function(kx_library NAME)
    cmake_parse_arguments(PARSE_ARGV 1 ARG "" "" "FILES;EXCEPT;USES")
    list(TRANSFORM ARG_FILES PREPEND "${CMAKE_CURRENT_SOURCE_DIR}/")
    list(TRANSFORM ARG_EXCEPT PREPEND "${CMAKE_CURRENT_SOURCE_DIR}/")
    file(GLOB sources CONFIGURE_DEPENDS ${ARG_FILES})
    list(REMOVE_ITEM sources ${ARG_EXCEPT})
    add_library(${NAME} STATIC ${sources})
    target_include_directories(${NAME} PUBLIC "${CMAKE_CURRENT_SOURCE_DIR}")
    target_link_libraries(${NAME} PUBLIC ${ARG_USES} PRIVATE kxwarnings)
    # The tests make most libraries do much and do little themselves, so only these libraries are worth the time
    # that the compiler takes to make sanitized code faster, three times that of other code.
    set(do_little kxcommands kxcontroller kxlinux)
    if(KX_SANITIZE AND NOT NAME IN_LIST do_little)
        target_compile_options(${NAME} PRIVATE -O1)
    endif()
endfunction()
