// Nothing of its own: the headers that many sources have in common are compiled with it, once.
