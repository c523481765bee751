# The two libraries the program calls, as the targets tarvik_jpeg (libjpeg-turbo) and tarvik_gif (giflib): static, built
# with the program from the sources that cmake/libraries.txt names, which come from Debian's package server.
#
# Where there is no apt (MSYS2 on Windows, say), unpack an archive of each library yourself into one folder, so that it
# holds for example libjpeg-turbo-2.1.5/ and giflib-5.2.1/, and configure with -DTARVIK_SOURCES=FOLDER; or configure with
# -DTARVIK_SYSTEM_LIBRARIES=ON to take the static libraries that the system has installed.
set(TARVIK_SOURCES "" CACHE PATH "Folder that holds the unpacked sources of the libraries; empty: fetch them")
option(TARVIK_SYSTEM_LIBRARIES "Take the libjpeg-turbo and the giflib that the system has installed" OFF)

# tarvik_system_libraries(): the two targets, made of what the system has installed. Only static libraries are looked
# for, because the program is one file.
function(tarvik_system_libraries)
  set(CMAKE_FIND_LIBRARY_SUFFIXES ${CMAKE_STATIC_LIBRARY_SUFFIX})
  find_package(JPEG REQUIRED)
  find_package(GIF 5 REQUIRED)
  add_library(tarvik_jpeg INTERFACE)
  target_link_libraries(tarvik_jpeg INTERFACE JPEG::JPEG)
  add_library(tarvik_gif INTERFACE)
  target_link_libraries(tarvik_gif INTERFACE GIF::GIF)
endfunction()

if(TARVIK_SYSTEM_LIBRARIES)
  tarvik_system_libraries()
  return()
endif()

# Which sources were taken, a line each, for the list of what the program is made of (packaging/make_sbom.py).
set(libraries_used ${PROJECT_BINARY_DIR}/libraries-used.txt)
file(WRITE ${libraries_used} "")

set(library_table ${CMAKE_CURRENT_LIST_DIR}/libraries.txt)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${library_table})

# tarvik_unpacked_source(NAME RESULT): the folder in TARVIK_SOURCES with the first of the library's versions that is there.
function(tarvik_unpacked_source name result)
  file(STRINGS ${library_table} rows REGEX "^${name} ")
  foreach(row IN LISTS rows)
    string(REPLACE " " ";" row ${row})
    list(GET row 1 version)
    set(folder ${TARVIK_SOURCES}/${name}-${version})
    if(IS_DIRECTORY ${folder})
      set(${result} ${folder} PARENT_SCOPE)
      return()
    endif()
    list(APPEND wanted ${name}-${version})
  endforeach()
  list(JOIN wanted ", " wanted)
  message(FATAL_ERROR "TARVIK_SOURCES is ${TARVIK_SOURCES}, but it holds none of these folders: ${wanted}")
endfunction()

# tarvik_library_source(NAME RESULT): sets RESULT to the folder with the library's source.
function(tarvik_library_source name result)
  if(TARVIK_SOURCES)
    tarvik_unpacked_source(${name} folder)
  else()
    execute_process(
      COMMAND ${PROJECT_SOURCE_DIR}/scripts/fetch-source ${name} ${library_table} ${PROJECT_SOURCE_DIR}/build/sources
      OUTPUT_VARIABLE folder OUTPUT_STRIP_TRAILING_WHITESPACE
      RESULT_VARIABLE status)
    if(NOT status EQUAL 0)
      message(FATAL_ERROR "The source of ${name} could not be fetched (or set TARVIK_SOURCES)")
    endif()
  endif()
  cmake_path(GET folder FILENAME found)
  message(STATUS "Library: ${found}")
  file(APPEND ${libraries_used} "${found}\n")
  set(${result} ${folder} PARENT_SCOPE)
endfunction()

tarvik_library_source(libjpeg-turbo jpeg_source)
tarvik_library_source(giflib gif_source)

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
# Nor does it need what makes it large: loops unrolled, two tables of 64 KB for what the processor has an instruction for,
# arithmetic coding, which nothing reads, and a limit of memory from the environment with a number reader of its own.
include(ExternalProject)
set(jpeg_flags "${library_flags} -DUSE_CLZ_INTRINSIC -DNO_GETENV -DNO_PUTENV")
cmake_path(GET jpeg_source FILENAME jpeg_name)
set(jpeg_build ${PROJECT_BINARY_DIR}/${jpeg_name})
set(jpeg_library ${jpeg_build}/${CMAKE_STATIC_LIBRARY_PREFIX}jpeg${CMAKE_STATIC_LIBRARY_SUFFIX})
set(jpeg_compiler -DCMAKE_C_COMPILER=${CMAKE_C_COMPILER})
if(CMAKE_TOOLCHAIN_FILE)
  set(jpeg_compiler -DCMAKE_TOOLCHAIN_FILE=${CMAKE_TOOLCHAIN_FILE})
endif()
# A build number of its own, and an install folder that nothing is installed to: its defaults are the date of the
# build and a Windows path. Version 2.1.5 asks for a CMake older than the oldest one whose ways CMake 4 still knows.
ExternalProject_Add(tarvik_jpeg_build
  SOURCE_DIR ${jpeg_source}
  BINARY_DIR ${jpeg_build}
  CMAKE_ARGS ${jpeg_compiler} -DCMAKE_BUILD_TYPE=Release -DCMAKE_C_FLAGS=${jpeg_flags}
    -DCMAKE_C_FLAGS_RELEASE=-O2\ -DNDEBUG
    -DCMAKE_INSTALL_PREFIX=${jpeg_build}/install -DBUILD=0 -DCMAKE_POLICY_VERSION_MINIMUM=3.5
    -DENABLE_SHARED=OFF -DWITH_TURBOJPEG=OFF -DWITH_SIMD=OFF -DWITH_ARITH_ENC=OFF -DWITH_ARITH_DEC=OFF
  BUILD_COMMAND ${CMAKE_COMMAND} --build . --target jpeg-static
  INSTALL_COMMAND ""
  BUILD_BYPRODUCTS ${jpeg_library}
  LOG_CONFIGURE ON LOG_BUILD ON LOG_OUTPUT_ON_FAILURE ON)

add_library(tarvik_jpeg STATIC IMPORTED GLOBAL)
set_target_properties(tarvik_jpeg PROPERTIES IMPORTED_LOCATION ${jpeg_library})
# jconfig.h is made by the library's build, which the folder must not wait for. From version 3.1 on the other headers are
# in a folder below.
file(MAKE_DIRECTORY ${jpeg_build})
find_path(jpeg_headers jpeglib.h PATHS ${jpeg_source} PATH_SUFFIXES src REQUIRED NO_CACHE NO_DEFAULT_PATH
  NO_CMAKE_FIND_ROOT_PATH)
target_include_directories(tarvik_jpeg INTERFACE ${jpeg_headers} ${jpeg_build})
add_dependencies(tarvik_jpeg tarvik_jpeg_build)

# giflib's reader is there for the tests; the linker leaves it out of the program.
set(gif_files egif_lib.c dgif_lib.c gif_err.c gif_hash.c gifalloc.c openbsd-reallocarray.c)
list(TRANSFORM gif_files PREPEND ${gif_source}/)
add_library(tarvik_gif STATIC ${gif_files})
target_include_directories(tarvik_gif SYSTEM PUBLIC ${gif_source})
separate_arguments(gif_flags NATIVE_COMMAND "${library_flags} -O2")
target_compile_options(tarvik_gif PRIVATE ${gif_flags})
