# The language level and the flags that every part shares. They are the engine's: C++17, no exceptions, no RTTI, hidden symbols.
# One set of flags for all targets lets them share precompiled headers.

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
set(CMAKE_BUILD_RPATH_USE_ORIGIN ON)

add_compile_options(
	-fPIC -pthread -fno-exceptions -fno-rtti -fvisibility=hidden -fvisibility-inlines-hidden -fno-strict-aliasing
	-Wall -Wextra -Wno-unused-parameter -Wno-missing-field-initializers -Wno-invalid-offsetof
	-fcolor-diagnostics -Xclang -fno-pch-timestamp)
add_link_options(-pthread -fuse-ld=lld -Wl,--as-needed -Wl,-z,now)

option(KESTRIX_WARNINGS_AS_ERRORS "Stop at a warning, as all presets do" OFF)
if(KESTRIX_WARNINGS_AS_ERRORS)
	add_compile_options(-Werror)
endif()

set(KESTRIX_SANITIZERS "" CACHE STRING "Sanitizers to build with, e.g. address,undefined")
if(KESTRIX_SANITIZERS)
	add_compile_options(-fsanitize=${KESTRIX_SANITIZERS} -fno-omit-frame-pointer -fno-sanitize-recover=all
		-fsanitize-ignorelist=${CMAKE_CURRENT_LIST_DIR}/SanitizerIgnores.txt)
	add_link_options(-fsanitize=${KESTRIX_SANITIZERS})
	add_library(LeakIgnores OBJECT ${CMAKE_CURRENT_LIST_DIR}/LeakIgnores.cpp)
	target_compile_options(LeakIgnores PRIVATE -fvisibility=default -fno-sanitize=all)
	link_libraries($<$<STREQUAL:$<TARGET_PROPERTY:TYPE>,EXECUTABLE>:$<TARGET_OBJECTS:LeakIgnores>>)
endif()

# What default constructors leave unset gets values that show up, where a build is made to find faults.
if(KESTRIX_SANITIZERS OR CMAKE_BUILD_TYPE STREQUAL "Debug")
	add_compile_definitions(POISON_UNSET_NUMBERS=1)
endif()

# The libraries of several builds of a plugin stand side by side in Binaries/Linux; each build knows its own by this suffix.
set(KESTRIX_BUILD_SUFFIX "")
if(KESTRIX_SANITIZERS)
	set(KESTRIX_BUILD_SUFFIX "-Linux-Sanitizers")
elseif(CMAKE_BUILD_TYPE STREQUAL "Debug")
	set(KESTRIX_BUILD_SUFFIX "-Linux-Debug")
endif()

# The interpreter is the system's own, whatever else a PATH offers.
set(Python3_EXECUTABLE /usr/bin/python3)
set(Python3_FIND_STRATEGY LOCATION)

find_package(PkgConfig REQUIRED)
find_package(GTest REQUIRED)

# With shared libraries on both sides an export and an import look the same.
foreach(MODULE IN ITEMS CORE JSON COREUOBJECT PROJECTS INPUTCORE APPLICATIONCORE SLATECORE SLATE EDITORSTYLE
		PYTHONSCRIPTPLUGIN LAUNCH ENGINE UNREALED LEVELEDITOR IMAGEWRAPPER EDITORDRIVER KESTRIX)
	add_compile_definitions(${MODULE}_API=__attribute__\(\(visibility\("default"\)\)\))
endforeach()
add_compile_definitions(WITH_EDITOR=1 UE_BUILD_DEVELOPMENT=1)
