# Memory that is kept until the end of the process, and that the leak sanitizer cannot see being kept.

# Fontconfig's and Pango's caches, GLib's types, D-Bus's buffers.
leak:libfontconfig
leak:libpango
leak:libglib
leak:libdbus

# The interpreter's interned strings and static types.
leak:libpython

# A table of names that has grown leaves the old one to threads that may be reading it.
leak:NameTable.cpp
