# The options every target of ours is built with, as the interface target tarvik_options.
add_library(tarvik_options INTERFACE)
target_compile_features(tarvik_options INTERFACE cxx_std_20)
target_include_directories(tarvik_options INTERFACE ${PROJECT_SOURCE_DIR}/src)
target_compile_options(tarvik_options INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wshadow -Wnon-virtual-dtor
  -Woverloaded-virtual -Wold-style-cast)
# What has a destructor of its own is not copied by accident: a class that owns something has the base NonCopyable.
target_compile_options(tarvik_options INTERFACE
  $<$<COMPILE_LANG_AND_ID:CXX,GNU>:-Wdeprecated-copy-dtor>
  $<$<COMPILE_LANG_AND_ID:CXX,Clang>:-Wdeprecated-copy-with-user-provided-dtor>)
if(TARVIK_WARNINGS_ARE_ERRORS)
  target_compile_options(tarvik_options INTERFACE -Werror)
endif()

if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  # GCC 12 takes "text" + string for overlapping memory at -O3 (its bug 105651).
  target_compile_options(tarvik_options INTERFACE -Wno-restrict)
endif()

if(WIN32)
  # Windows 7 is the oldest system the program starts on. UNICODE settles the names without A or W.
  target_compile_definitions(tarvik_options INTERFACE
    UNICODE _UNICODE WIN32_LEAN_AND_MEAN NOMINMAX _WIN32_WINNT=0x0601 WINVER=0x0601 _WIN32_IE=0x0700)
  target_compile_options(tarvik_options INTERFACE -fstack-protector-strong)
  # Given to the linker too: the compiler knows which library its own checks need, if any.
  target_link_options(tarvik_options INTERFACE -fstack-protector-strong)
  # One file with no DLL beside it, at an address that changes with each start, data never run.
  target_link_options(tarvik_options INTERFACE
    -static -Wl,--dynamicbase -Wl,--nxcompat -Wl,--high-entropy-va -Wl,--no-insert-timestamp)
endif()

if(TARVIK_SANITIZE)
  target_compile_options(tarvik_options INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer -D_GLIBCXX_ASSERTIONS)
  target_link_options(tarvik_options INTERFACE -fsanitize=address,undefined)
endif()
