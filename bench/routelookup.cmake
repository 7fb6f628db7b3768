# DPDK's rte_lpm as the peer of the route lookup benchmark, when installed.
pkg_check_modules(DPDK QUIET IMPORTED_TARGET libdpdk)
if(DPDK_FOUND)
  target_link_libraries(bench_routelookup PRIVATE PkgConfig::DPDK)
  target_compile_definitions(bench_routelookup PRIVATE NETLOOM_HAVE_DPDK)
else()
  message(STATUS "libdpdk not found: bench_routelookup runs without the rte_lpm peer")
endif()
