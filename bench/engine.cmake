list(APPEND COURTMERE_BENCH_SOURCES ${CMAKE_CURRENT_SOURCE_DIR}/engine_bench.cc
     ${PROJECT_SOURCE_DIR}/cli/exhibition_setup.cc)
list(APPEND COURTMERE_BENCH_LIBS courtmere_engine)
