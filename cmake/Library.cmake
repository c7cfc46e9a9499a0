# A library of Sources/: where a file lies decides which one it belongs to.
#
#   kx_library(NAME FILES GLOB... [EXCEPT FILE...] USES LIBRARY...)
#
# The globs and files are relative to Sources/. What a library uses, its users see as well: its headers
# name it.
function(kx_library NAME)
    cmake_parse_arguments(PARSE_ARGV 1 ARG "" "" "FILES;EXCEPT;USES")
    list(TRANSFORM ARG_FILES PREPEND "${CMAKE_CURRENT_SOURCE_DIR}/")
    list(TRANSFORM ARG_EXCEPT PREPEND "${CMAKE_CURRENT_SOURCE_DIR}/")
    file(GLOB sources CONFIGURE_DEPENDS ${ARG_FILES})
    list(REMOVE_ITEM sources ${ARG_EXCEPT})
    add_library(${NAME} STATIC ${sources})
    target_include_directories(${NAME} PUBLIC "${CMAKE_CURRENT_SOURCE_DIR}")
    target_link_libraries(${NAME} PUBLIC ${ARG_USES} PRIVATE kxwarnings)
endfunction()
