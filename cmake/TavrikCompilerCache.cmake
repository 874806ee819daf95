# ccache passes by every file that uses a precompiled header unless it is told that a macro which
# the header defines may be taken for unused; and GCC has to name the header in what it preprocesses.
# https://ccache.dev/manual/4.7.5.html#_precompiled_headers

if(CMAKE_CXX_COMPILER_LAUNCHER MATCHES "ccache$")
  set(CMAKE_CXX_COMPILER_LAUNCHER
      ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros
      CCACHE_BASEDIR=${PROJECT_SOURCE_DIR} ${CMAKE_CXX_COMPILER_LAUNCHER})
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    add_compile_options($<$<COMPILE_LANGUAGE:CXX>:-fpch-preprocess>)
  endif()
endif()
