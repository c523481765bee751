# Runs one fuzz target over its corpus, the same way each time. New inputs go to an empty folder of the build,
# so that the corpus is unchanged and no run depends on the one before; a failing input is written there as well.
file(REMOVE_RECURSE ${finds})
file(MAKE_DIRECTORY ${finds})
execute_process(
  COMMAND ${program} -runs=${runs} -seed=1 -max_len=4096 -timeout=60 -print_final_stats=0 -verbosity=0
          -artifact_prefix=${finds}/failed- ${finds} ${corpus}
  RESULT_VARIABLE result)
if(NOT result EQUAL 0)
  message(FATAL_ERROR "${program} failed; the input is in ${finds}")
endif()
