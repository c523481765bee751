# The options of all our own targets, as the interface target tarvik_options.
add_library(tarvik_options INTERFACE)
target_compile_features(tarvik_options INTERFACE cxx_std_20)
target_include_directories(tarvik_options INTERFACE ${PROJECT_SOURCE_DIR}/src)
target_compile_options(tarvik_options INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wshadow -Wnon-virtual-dtor
  -Woverloaded-virtual -Wold-style-cast)
# A class with a user-declared destructor must not be copied by accident: owners have the base NonCopyable.
target_compile_options(tarvik_options INTERFACE
  $<$<COMPILE_LANG_AND_ID:CXX,GNU>:-Wdeprecated-copy-dtor>
  $<$<COMPILE_LANG_AND_ID:CXX,Clang>:-Wdeprecated-copy-with-user-provided-dtor>)
if(TARVIK_WARNINGS_ARE_ERRORS)
  target_compile_options(tarvik_options INTERFACE -Werror)
endif()

if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  # GCC 12 wrongly reports "text" + string as overlapping memory at -O3 (its bug 105651).
  target_compile_options(tarvik_options INTERFACE -Wno-restrict)
endif()

if(WIN32)
  # Windows 7 is the oldest supported system. UNICODE makes names without A or W the W functions.
  target_compile_definitions(tarvik_options INTERFACE
    UNICODE _UNICODE WIN32_LEAN_AND_MEAN NOMINMAX _WIN32_WINNT=0x0601 WINVER=0x0601 _WIN32_IE=0x0700)
  target_compile_options(tarvik_options INTERFACE -fstack-protector-strong)
  # Passed to the linker too: the compiler knows which library its own checks need, if any.
  target_link_options(tarvik_options INTERFACE -fstack-protector-strong)
  # One file without DLLs of its own, with ASLR (high entropy) and non-executable data (DEP).
  target_link_options(tarvik_options INTERFACE
    -static -Wl,--dynamicbase -Wl,--nxcompat -Wl,--high-entropy-va -Wl,--no-insert-timestamp)
endif()

if(TARVIK_SANITIZE)
  target_compile_options(tarvik_options INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer -D_GLIBCXX_ASSERTIONS)
  target_link_options(tarvik_options INTERFACE -fsanitize=address,undefined)
endif()
