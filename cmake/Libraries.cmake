# The two libraries the program calls, as the targets tarvik_jpeg (libjpeg-turbo) and tarvik_gif (giflib): static, built
# with the program from the sources that cmake/libraries.txt names, which come from Debian's package server.
#
# Without apt (for example MSYS2 on Windows), unpack an archive of each library yourself into one folder, so that it
# contains for example libjpeg-turbo-2.1.5/ and giflib-5.2.1/, and configure with -DTARVIK_SOURCES=FOLDER; or configure
# with -DTARVIK_SYSTEM_LIBRARIES=ON to use the system's installed static libraries.
set(TARVIK_SOURCES "" CACHE PATH "Folder that holds the unpacked sources of the libraries; empty: fetch them")
option(TARVIK_SYSTEM_LIBRARIES "Take the libjpeg-turbo and the giflib that the system has installed" OFF)

# tarvik_system_libraries(): defines the two targets from the system's installed libraries. It only looks for static ones,
# because the program is one file.
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

# Lists the sources used, one per line, for the bill of materials (packaging/make_sbom.py).
set(libraries_used ${PROJECT_BINARY_DIR}/libraries-used.txt)
file(WRITE ${libraries_used} "")

set(library_table ${CMAKE_CURRENT_LIST_DIR}/libraries.txt)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${library_table})

# tarvik_unpacked_source(NAME RESULT): the folder in TARVIK_SOURCES of the library's first listed version that exists.
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

# Wrong uses of a library show inside it, so it gets the same sanitizers as our own code.
set(library_flags "-w")
if(TARVIK_SANITIZE)
  string(APPEND library_flags " -fsanitize=address -fno-omit-frame-pointer")
endif()
if(TARVIK_FUZZ)
  string(APPEND library_flags " -fsanitize=fuzzer-no-link")
endif()

# libjpeg-turbo must be configured by its own project. This build needs no assembler: the output is the same without SIMD,
# and the pictures here are small.
# The size-increasing options are off too: unrolled loops, two 64 KB tables that replace one processor instruction,
# arithmetic coding, which readers do not support, and a memory limit from the environment with its own number parser.
include(ExternalProject)
set(jpeg_flags "${library_flags} -DUSE_CLZ_INTRINSIC -DNO_GETENV -DNO_PUTENV")
cmake_path(GET jpeg_source FILENAME jpeg_name)
set(jpeg_build ${PROJECT_BINARY_DIR}/${jpeg_name})
set(jpeg_library ${jpeg_build}/${CMAKE_STATIC_LIBRARY_PREFIX}jpeg${CMAKE_STATIC_LIBRARY_SUFFIX})
set(jpeg_compiler -DCMAKE_C_COMPILER=${CMAKE_C_COMPILER})
if(CMAKE_TOOLCHAIN_FILE)
  set(jpeg_compiler -DCMAKE_TOOLCHAIN_FILE=${CMAKE_TOOLCHAIN_FILE})
endif()
# A fixed build number, and an unused install folder: the defaults are the build date and a Windows path. Version 2.1.5
# declares a minimum CMake version that CMake 4 no longer supports.
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
# The library's build generates jconfig.h, but its folder must exist when CMake configures. From version 3.1 on the other
# headers are in a sub-folder.
file(MAKE_DIRECTORY ${jpeg_build})
find_path(jpeg_headers jpeglib.h PATHS ${jpeg_source} PATH_SUFFIXES src REQUIRED NO_CACHE NO_DEFAULT_PATH
  NO_CMAKE_FIND_ROOT_PATH)
target_include_directories(tarvik_jpeg INTERFACE ${jpeg_headers} ${jpeg_build})
add_dependencies(tarvik_jpeg tarvik_jpeg_build)

# giflib's reader is for the tests only; the linker leaves it out of the program.
set(gif_files egif_lib.c dgif_lib.c gif_err.c gif_hash.c gifalloc.c openbsd-reallocarray.c)
list(TRANSFORM gif_files PREPEND ${gif_source}/)
add_library(tarvik_gif STATIC ${gif_files})
target_include_directories(tarvik_gif SYSTEM PUBLIC ${gif_source})
separate_arguments(gif_flags NATIVE_COMMAND "${library_flags} -O2")
target_compile_options(tarvik_gif PRIVATE ${gif_flags})
