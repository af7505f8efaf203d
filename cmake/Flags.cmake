# Every target of the project links orlen_flags: language level, warnings, sanitizers. That warnings are errors is for
# the presets to say: a compiler that is newer than the project knows more of them.
add_library(orlen_flags INTERFACE)
target_compile_features(orlen_flags INTERFACE cxx_std_20)
target_compile_options(orlen_flags INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor -Wold-style-cast)
# Plain structs initialise every field where it is declared, so naming some of them is enough.
target_compile_options(orlen_flags INTERFACE -Wno-missing-field-initializers)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    # Warns about impossible lengths inside std::string itself (GCC bug 105329).
    target_compile_options(orlen_flags INTERFACE -Wno-restrict)
    # With full optimisation it takes the unused parts of a moved std::variant for uninitialised.
    target_compile_options(orlen_flags INTERFACE $<$<CONFIG:Release>:-Wno-maybe-uninitialized>)
endif()
if(CMAKE_CXX_COMPILER_ID MATCHES Clang)
    # The kernel's headers end structures with arrays of no length.
    target_compile_options(orlen_flags INTERFACE -Wno-zero-length-array)
endif()
target_compile_definitions(orlen_flags INTERFACE _FILE_OFFSET_BITS=64 QT_NO_KEYWORDS)
target_include_directories(orlen_flags INTERFACE ${PROJECT_SOURCE_DIR}/src)

if(CMAKE_UNITY_BUILD)
    # Names of an unnamed namespace look shared when several sources are compiled as one.
    target_compile_options(orlen_flags INTERFACE -Wno-subobject-linkage)
endif()

if(ORLEN_SANITIZE)
    target_compile_options(orlen_flags INTERFACE
        -fsanitize=${ORLEN_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    target_link_options(orlen_flags INTERFACE -fsanitize=${ORLEN_SANITIZE})
endif()

find_program(ORLEN_CCACHE ccache)
if(ORLEN_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${ORLEN_CCACHE})
endif()
