// Memory that is kept until the end of the process, and that the leak sanitizer cannot see being kept. Every program that is built
// with sanitizers holds this; the functions are the sanitizer's, see its documentation of run-time flags.

extern "C" const char* __lsan_default_suppressions()
{
	return
		// Fontconfig's and Pango's caches, GLib's types, D-Bus's buffers.
		"leak:libfontconfig\n"
		"leak:libpango\n"
		"leak:libglib\n"
		"leak:libdbus\n"
		// The interpreter's interned strings and static types.
		"leak:libpython\n"
		// A table of names that has grown leaves the old one to threads that may be reading it.
		"leak:NameTable.cpp\n";
}

extern "C" const char* __lsan_default_options()
{
	return "print_suppressions=0";
}
