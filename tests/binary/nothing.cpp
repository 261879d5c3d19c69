// Linked into a library of its own, to see what the toolchain adds to every library.
void xfm_test_nothing() {}
