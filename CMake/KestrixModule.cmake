# kestrix_module(<Name> [REFLECTED] [PCH <target>] [DEPENDS <module>...] [PRIVATE_DEPENDS <module>...] [LIBRARIES <library>...])
#
# One engine module: a shared library from Private/**/*.cpp with its headers in Public/. DEPENDS are modules whose headers
# its own headers show; LIBRARIES are third-party libraries, which only its sources see. REFLECTED runs the header tool
# over its headers. The precompiled header comes from the module named by PCH (Core, unless said otherwise).
function(kestrix_module NAME)
	cmake_parse_arguments(ARG "REFLECTED" "PCH" "DEPENDS;PRIVATE_DEPENDS;LIBRARIES" ${ARGN})

	file(GLOB_RECURSE SOURCES CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/Private/*.cpp)
	add_library(${NAME} SHARED ${SOURCES})
	set_target_properties(${NAME} PROPERTIES DEFINE_SYMBOL "")
	target_include_directories(${NAME} PUBLIC Public PRIVATE Private)
	target_link_libraries(${NAME} PUBLIC ${ARG_DEPENDS} PRIVATE ${ARG_PRIVATE_DEPENDS} ${ARG_LIBRARIES})
	kestrix_refuse_undefined_symbols(${NAME})
	kestrix_use_precompiled_header(${NAME} "${ARG_PCH}")

	if(ARG_REFLECTED)
		kestrix_reflect(${NAME})
	endif()
endfunction()

# kestrix_editor_program(<Name> <source>...): an executable that can be the editor. Modules that are only loaded by name are there
# as well, and extension modules of Python find the interpreter's symbols.
function(kestrix_editor_program NAME)
	add_executable(${NAME} ${ARGN})
	# Descriptions become many small blocks, all freed at once, which this allocator does best. It stands first, so that it serves
	# the whole process. Sanitizers bring their own.
	if(NOT KESTRIX_SANITIZERS)
		find_package(mimalloc REQUIRED)
		target_link_libraries(${NAME} PRIVATE mimalloc)
	endif()
	find_package(Python3 3.11 REQUIRED COMPONENTS Development.Embed)
	target_link_libraries(${NAME} PRIVATE Launch Python3::Python)
	target_link_options(${NAME} PRIVATE -Wl,--no-as-needed)
	add_dependencies(${NAME} EditorDriver)
	kestrix_use_precompiled_header(${NAME} "")
endfunction()

# kestrix_module_tests(<Name> [REFLECTED] [LIBRARIES <library>...]): <Name>Tests from Tests/**/*.cpp, one ctest entry per module.
# REFLECTED runs the header tool over the headers in Tests/.
function(kestrix_module_tests NAME)
	cmake_parse_arguments(ARG "REFLECTED" "PCH" "LIBRARIES" ${ARGN})

	file(GLOB_RECURSE SOURCES CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/Tests/*.cpp)
	add_executable(${NAME}Tests ${SOURCES})
	target_include_directories(${NAME}Tests PRIVATE Tests)
	target_link_libraries(${NAME}Tests PRIVATE ${NAME} TestSupport GTest::gtest ${ARG_LIBRARIES})
	kestrix_use_precompiled_header(${NAME}Tests "${ARG_PCH}")
	if(ARG_REFLECTED)
		kestrix_reflect(${NAME}Tests FOLDERS Tests)
	endif()
	add_test(NAME ${NAME}Tests COMMAND ${NAME}Tests)
endfunction()

# A library must find all it calls in what it links, but for the sanitizers' own functions, which stand in the executable.
function(kestrix_refuse_undefined_symbols TARGET)
	if(NOT KESTRIX_SANITIZERS)
		target_link_options(${TARGET} PRIVATE -Wl,--no-undefined)
	endif()
endfunction()

# The precompiled header of <owner> (Core by default) for a target. Core's own sources use it too.
function(kestrix_use_precompiled_header TARGET OWNER)
	if(NOT OWNER)
		set(OWNER Core)
	endif()
	if(NOT TARGET ${OWNER}.Pch)
		kestrix_precompiled_header(${OWNER})
	endif()
	target_precompile_headers(${TARGET} REUSE_FROM ${OWNER}.Pch)
endfunction()

# <owner>.Pch compiles Platform/<owner>/Public/<owner>SharedPch.h once for everybody who reuses it.
function(kestrix_precompiled_header OWNER)
	set(ANCHOR ${CMAKE_BINARY_DIR}/Pch/${OWNER}Pch.cpp)
	if(NOT EXISTS ${ANCHOR})
		file(WRITE ${ANCHOR} "// Anchor of the shared precompiled header.\n")
	endif()
	add_library(${OWNER}.Pch OBJECT ${ANCHOR})
	target_include_directories(${OWNER}.Pch PRIVATE $<TARGET_PROPERTY:${OWNER},INTERFACE_INCLUDE_DIRECTORIES>)
	target_precompile_headers(${OWNER}.Pch PRIVATE ${CMAKE_SOURCE_DIR}/Platform/${OWNER}/Public/${OWNER}SharedPch.h)
endfunction()

include(KestrixReflection)
