# tarvik_delayed_imports(TARGET DLL FUNCTION...): has the target call these functions of a DLL of the system (named
# without its extension). The DLL is loaded with the first call and not when the program starts, which is quicker, and
# by then the program has bound itself to the system's own folder.
function(tarvik_delayed_imports target dll)
  set(folder ${PROJECT_BINARY_DIR}/delayed)
  set(library ${folder}/lib${dll}.a)
  list(JOIN ARGN "\n" functions)
  file(CONFIGURE OUTPUT ${folder}/${dll}.def CONTENT "LIBRARY ${dll}.dll\nEXPORTS\n${functions}\n")
  add_custom_command(
    OUTPUT ${library}
    COMMAND ${CMAKE_DLLTOOL} --dllname ${dll}.dll --def ${folder}/${dll}.def --output-delaylib ${library}
    DEPENDS ${folder}/${dll}.def
    VERBATIM)
  add_custom_target(delayed_${dll} DEPENDS ${library})
  add_dependencies(${target} delayed_${dll})
  target_link_libraries(${target} PUBLIC ${library} delayimp)
endfunction()
