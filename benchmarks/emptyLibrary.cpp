// An empty shared library, to measure loading alone.
