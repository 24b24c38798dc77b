# Warnings of our own code. Qt's headers are system headers and stay silent.
add_library(nvo_warnings INTERFACE)
target_compile_options(nvo_warnings INTERFACE
    $<$<CXX_COMPILER_ID:GNU,Clang,AppleClang>:-Wall -Wextra -Wpedantic -Wshadow -Wconversion
        -Wnon-virtual-dtor -Woverloaded-virtual -Wold-style-cast>
    $<$<CXX_COMPILER_ID:MSVC>:/W4 /utf-8>)
if(NVO_WARNINGS_AS_ERRORS)
    target_compile_options(nvo_warnings INTERFACE
        $<$<CXX_COMPILER_ID:GNU,Clang,AppleClang>:-Werror>
        $<$<CXX_COMPILER_ID:MSVC>:/WX>)
endif()

# Deprecated up to Qt 5.15 does not compile: the sources stay close to Qt 6.
target_compile_definitions(nvo_warnings INTERFACE
    QT_DISABLE_DEPRECATED_BEFORE=0x050F00 QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS)
