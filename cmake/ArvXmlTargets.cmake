# Settings of all targets of the project.

# Sets the language and the warnings, and disables the Qt shortcuts that the project does not use.
function(arvxml_configure_target target)
    set_target_properties(${target} PROPERTIES CXX_STANDARD 17 CXX_STANDARD_REQUIRED ON CXX_EXTENSIONS OFF
                                               UNITY_BUILD OFF) # except for the library
    target_compile_definitions(${target} PRIVATE
        QT_NO_KEYWORDS QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_BYTEARRAY
        QT_NO_URL_CAST_FROM_STRING QT_DISABLE_DEPRECATED_BEFORE=0x050F00)
    if(MSVC)
        target_compile_options(${target} PRIVATE /W4)
    else()
        target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wconversion -Wshadow)
    endif()
    if(ARVXML_WARNINGS_AS_ERRORS)
        target_compile_options(${target} PRIVATE $<IF:$<CXX_COMPILER_ID:MSVC>,/WX,-Werror>)
    endif()
    if(ARVXML_SANITIZERS)
        target_compile_options(${target} PRIVATE -fsanitize=${ARVXML_SANITIZERS} -fno-sanitize-recover=all
                                                 -fno-omit-frame-pointer)
        target_link_options(${target} PRIVATE -fsanitize=${ARVXML_SANITIZERS})
    endif()
endfunction()

# With ARVXML_COVERAGE, clang measures the coverage of this target, but not of targets that use it.
function(arvxml_count_coverage target)
    if(ARVXML_COVERAGE)
        target_compile_options(${target} PRIVATE -fprofile-instr-generate -fcoverage-mapping)
        target_link_options(${target} PRIVATE -fprofile-instr-generate)
    endif()
endfunction()
