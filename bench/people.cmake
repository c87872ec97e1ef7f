list(APPEND COURTMERE_BENCH_SOURCES ${CMAKE_CURRENT_SOURCE_DIR}/people_bench.cc)
list(APPEND COURTMERE_BENCH_LIBS courtmere_cpu courtmere_people)
