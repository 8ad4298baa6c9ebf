"""One promise a module: what is done to Tarvelo, what may be lost at most, and what was found."""
