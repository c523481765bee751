# Cross toolchain: clang for the C++ of the program, with the headers, the libraries and the linker of GCC's toolchain. The
# two C libraries are compiled by GCC as ever.
include(${CMAKE_CURRENT_LIST_DIR}/mingw-w64.cmake)
set(gcc_cxx ${CMAKE_CXX_COMPILER})
set(CMAKE_CXX_COMPILER clang++)
set(CMAKE_CXX_COMPILER_TARGET x86_64-w64-mingw32)

# clang does not know the folders that Debian has for GCC with posix threads.
execute_process(COMMAND ${gcc_cxx} -print-file-name=include OUTPUT_VARIABLE gcc_include OUTPUT_STRIP_TRAILING_WHITESPACE)
cmake_path(GET gcc_include PARENT_PATH gcc_folder)
set(CMAKE_CXX_FLAGS_INIT "-nostdinc++ -nostdlibinc -isystem ${gcc_include}/c++ \
-isystem ${gcc_include}/c++/x86_64-w64-mingw32 -isystem ${gcc_include}/c++/backward -isystem /usr/x86_64-w64-mingw32/include")
# Without optimization clang puts a comparison of libstdc++'s header into objects, which libstdc++ has too.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-B${gcc_folder} -L${gcc_folder} -L/usr/x86_64-w64-mingw32/lib \
-Wl,--allow-multiple-definition -Wno-unused-command-line-argument")
# libstdc++ takes its threads from libpthread, and clang adds libstdc++ alone, behind everything else.
set(CMAKE_CXX_STANDARD_LIBRARIES "-lstdc++ -lgcc_eh -lpthread -lkernel32 -luser32 -lgdi32 -lshell32 -lole32 -luuid -ladvapi32"
  CACHE STRING "What every program is linked with")
