list(APPEND COURTMERE_BENCH_SOURCES ${CMAKE_CURRENT_SOURCE_DIR}/season_bench.cc)
list(APPEND COURTMERE_BENCH_LIBS courtmere_season courtmere_screens)
