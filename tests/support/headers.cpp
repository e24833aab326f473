// Nothing of its own: the headers that tests of the core have in common are compiled with it.
