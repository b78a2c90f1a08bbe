// A shared library with nothing in it, for the time that loading alone takes.
