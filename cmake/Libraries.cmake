# The two libraries the program calls, as static libraries built with it: tarvik_jpeg (libjpeg-turbo) and tarvik_gif
# (giflib). Their sources are Debian's, pinned by upstream version and by the hash of the original archive.
#
# Where there is no apt (MSYS2 on Windows, say), unpack the two upstream archives yourself into one folder, so that
# it holds libjpeg-turbo-2.1.5/ and giflib-5.2.1/, and configure with -DTARVIK_SOURCES=FOLDER.
set(TARVIK_SOURCES "" CACHE PATH "Folder that holds the unpacked sources of the libraries; empty: fetch them")

# tarvik_library_source(NAME VERSION SHA256 RESULT): sets RESULT to the folder with the library's source.
function(tarvik_library_source name version sha256 result)
  if(TARVIK_SOURCES)
    set(folder ${TARVIK_SOURCES}/${name}-${version})
    if(NOT IS_DIRECTORY ${folder})
      message(FATAL_ERROR "TARVIK_SOURCES is set, but there is no folder ${folder}")
    endif()
  else()
    set(folder ${PROJECT_SOURCE_DIR}/build/sources/${name}-${version})
    execute_process(
      COMMAND ${PROJECT_SOURCE_DIR}/scripts/fetch-source ${name} ${version} ${sha256} ${folder}
      RESULT_VARIABLE status)
    if(NOT status EQUAL 0)
      message(FATAL_ERROR "The source of ${name} ${version} could not be fetched (or set TARVIK_SOURCES)")
    endif()
  endif()
  set(${result} ${folder} PARENT_SCOPE)
endfunction()

tarvik_library_source(libjpeg-turbo 2.1.5
  254f3642b04e309fee775123133c6464181addc150499561020312ec61c1bf7c jpeg_source)
tarvik_library_source(giflib 5.2.1
  31da5562f44c5f15d63340a09a4fd62b48c45620cd302f77a6d9acf0077879bd gif_source)

# Wrong uses of a library show inside it, so it is watched where our own code is.
set(library_flags "-w")
if(TARVIK_SANITIZE)
  string(APPEND library_flags " -fsanitize=address -fno-omit-frame-pointer")
endif()
if(TARVIK_FUZZ)
  string(APPEND library_flags " -fsanitize=fuzzer-no-link")
endif()

# libjpeg-turbo must be configured by itself. It needs no assembler this way: with and without it the files come out
# the same, and the pictures here are small.
include(ExternalProject)
set(jpeg_build ${PROJECT_BINARY_DIR}/libjpeg-turbo)
set(jpeg_library ${jpeg_build}/${CMAKE_STATIC_LIBRARY_PREFIX}jpeg${CMAKE_STATIC_LIBRARY_SUFFIX})
set(jpeg_compiler -DCMAKE_C_COMPILER=${CMAKE_C_COMPILER})
if(CMAKE_TOOLCHAIN_FILE)
  set(jpeg_compiler -DCMAKE_TOOLCHAIN_FILE=${CMAKE_TOOLCHAIN_FILE})
endif()
# A build number of its own, and an install folder that nothing is installed to: its defaults are the date of the
# build and a Windows path.
ExternalProject_Add(tarvik_jpeg_build
  SOURCE_DIR ${jpeg_source}
  BINARY_DIR ${jpeg_build}
  CMAKE_ARGS ${jpeg_compiler} -DCMAKE_BUILD_TYPE=Release -DCMAKE_C_FLAGS=${library_flags}
    -DCMAKE_INSTALL_PREFIX=${jpeg_build}/install -DBUILD=0
    -DENABLE_SHARED=OFF -DWITH_TURBOJPEG=OFF -DWITH_SIMD=OFF
  BUILD_COMMAND ${CMAKE_COMMAND} --build . --target jpeg-static
  INSTALL_COMMAND ""
  BUILD_BYPRODUCTS ${jpeg_library}
  LOG_CONFIGURE ON LOG_BUILD ON LOG_OUTPUT_ON_FAILURE ON)

add_library(tarvik_jpeg STATIC IMPORTED GLOBAL)
set_target_properties(tarvik_jpeg PROPERTIES IMPORTED_LOCATION ${jpeg_library})
# jconfig.h is made by the library's build, which the folder must not wait for.
file(MAKE_DIRECTORY ${jpeg_build})
target_include_directories(tarvik_jpeg INTERFACE ${jpeg_source} ${jpeg_build})
add_dependencies(tarvik_jpeg tarvik_jpeg_build)

# giflib's reader is there for the tests; the linker leaves it out of the program.
set(gif_files egif_lib.c dgif_lib.c gif_err.c gif_hash.c gifalloc.c openbsd-reallocarray.c)
list(TRANSFORM gif_files PREPEND ${gif_source}/)
add_library(tarvik_gif STATIC ${gif_files})
target_include_directories(tarvik_gif SYSTEM PUBLIC ${gif_source})
separate_arguments(gif_flags NATIVE_COMMAND "${library_flags} -O2")
target_compile_options(tarvik_gif PRIVATE ${gif_flags})
