# Cross toolchain: clang for the C++ of the program, with the headers, the libraries and the linker of GCC's toolchain. The
# two C libraries are still compiled by GCC.
include(${CMAKE_CURRENT_LIST_DIR}/mingw-w64.cmake)
set(gcc_cxx ${CMAKE_CXX_COMPILER})
set(CMAKE_CXX_COMPILER clang++)
set(CMAKE_CXX_COMPILER_TARGET x86_64-w64-mingw32)

# clang does not know Debian's folders for GCC with posix threads.
execute_process(COMMAND ${gcc_cxx} -print-file-name=include OUTPUT_VARIABLE gcc_include OUTPUT_STRIP_TRAILING_WHITESPACE)
cmake_path(GET gcc_include PARENT_PATH gcc_folder)
set(CMAKE_CXX_FLAGS_INIT "-nostdinc++ -nostdlibinc -isystem ${gcc_include}/c++ \
-isystem ${gcc_include}/c++/x86_64-w64-mingw32 -isystem ${gcc_include}/c++/backward -isystem /usr/x86_64-w64-mingw32/include")
# Without optimization clang emits a comparison operator of a libstdc++ header that libstdc++ itself also defines.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-B${gcc_folder} -L${gcc_folder} -L/usr/x86_64-w64-mingw32/lib \
-Wl,--allow-multiple-definition -Wno-unused-command-line-argument")
# libstdc++ needs libpthread, and clang only adds libstdc++, after everything else.
set(CMAKE_CXX_STANDARD_LIBRARIES "-lstdc++ -lgcc_eh -lpthread -lkernel32 -luser32 -lgdi32 -lshell32 -lole32 -luuid -ladvapi32"
  CACHE STRING "What every program is linked with")
