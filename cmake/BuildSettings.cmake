# Settings shared by everything built in this tree; never installed.

set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/bin")
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/lib")
set(CMAKE_CXX_FLAGS_RELEASE "-O2 -DNDEBUG")

# An installed tool finds the library beside it, wherever the tree was put.
file(RELATIVE_PATH libraryFromTool "${CMAKE_INSTALL_FULL_BINDIR}" "${CMAKE_INSTALL_FULL_LIBDIR}")
set(CMAKE_INSTALL_RPATH "$ORIGIN/${libraryFromTool}")

if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
    set(CMAKE_BUILD_TYPE Release CACHE STRING "" FORCE)
endif()

find_program(CCACHE ccache)
mark_as_advanced(CCACHE)
if(CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER "${CCACHE}")
endif()

# g++ 12 warns of overlapping copies inside std::string's own operator+ (GCC bug 105651), and where many files are
# compiled as one of memory that std::vector gives back.
add_library(zedobjparam_settings INTERFACE)
target_compile_features(zedobjparam_settings INTERFACE cxx_std_20)
target_compile_options(
    zedobjparam_settings
    INTERFACE -Wall
              -Wextra
              -Wpedantic
              -Wshadow
              -Wconversion
              -Wnon-virtual-dtor
              -Woverloaded-virtual
              "$<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess>"
              "$<$<BOOL:${ZEDOBJPARAM_WERROR}>:-Werror;$<$<CXX_COMPILER_ID:GNU>:-Wno-error=restrict;-Wno-error=maybe-uninitialized;-Wno-error=free-nonheap-object>>"
              "$<$<CONFIG:Debug>:-gsplit-dwarf>")

if(ZEDOBJPARAM_SANITIZE)
    add_compile_options(-fsanitize=${ZEDOBJPARAM_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${ZEDOBJPARAM_SANITIZE})
endif()
