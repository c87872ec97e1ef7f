list(APPEND COURTMERE_BENCH_SOURCES ${CMAKE_CURRENT_SOURCE_DIR}/league_bench.cc)
list(APPEND COURTMERE_BENCH_LIBS courtmere_screens courtmere_league)
