// Linked into a library of its own, to see what start-up code brings along.
void xfm_test_nothing() {}
