# Stand-in for the platform's driver package, as far as the library's tests
# need it.
