# kestrix_reflect(<target> [MODULE <module>] [FOLDERS <folder>...])
#
# Runs the header tool over the headers in the given folders (Public and Private, unless said otherwise) of the target's source
# folder and builds what it writes into the target. MODULE names the module where the target is only its objects. The tool runs
# again when a header changes, appears or goes; which headers have something to reflect, and what, it finds out itself. Types of
# other reflected modules are known through the link dependencies.
function(kestrix_reflect TARGET)
	cmake_parse_arguments(ARG "" "MODULE" "FOLDERS" ${ARGN})
	get_target_property(TYPE ${TARGET} TYPE)
	if(TYPE STREQUAL "SHARED_LIBRARY" AND NOT ARG_MODULE)
		set(ARG_MODULE ${TARGET})
	endif()
	set(API)
	if(ARG_MODULE)
		string(TOUPPER ${ARG_MODULE}_API API)
	else()
		set(ARG_MODULE ${TARGET})
	endif()
	if(NOT ARG_FOLDERS)
		set(ARG_FOLDERS Public Private)
	endif()
	set(OUTPUT ${CMAKE_BINARY_DIR}/Reflection/${ARG_MODULE})
	set(SOURCE ${OUTPUT}/${ARG_MODULE}.init.gen.cpp)
	set(MANIFEST ${OUTPUT}/${ARG_MODULE}.manifest)

	list(TRANSFORM ARG_FOLDERS PREPEND ${CMAKE_CURRENT_SOURCE_DIR}/ OUTPUT_VARIABLE PATTERNS)
	list(TRANSFORM PATTERNS APPEND /*.h)
	file(GLOB_RECURSE HEADERS CONFIGURE_DEPENDS ${PATTERNS})

	# What is reflected today, so that a new header tool rebuilds all that sees its text. One that turns reflected later is picked up
	# by the compiler's own dependencies.
	set(BYPRODUCTS)
	foreach(HEADER IN LISTS HEADERS)
		file(STRINGS ${HEADER} INCLUDES REGEX "^#include \".*\\.generated\\.h\"")
		if(INCLUDES)
			get_filename_component(NAME ${HEADER} NAME_WE)
			list(APPEND BYPRODUCTS ${OUTPUT}/${NAME}.generated.h ${OUTPUT}/${NAME}.gen.cpp)
		endif()
	endforeach()

	add_custom_command(
		OUTPUT ${SOURCE} ${MANIFEST}
		BYPRODUCTS ${BYPRODUCTS}
		COMMAND HeaderTool --module ${ARG_MODULE} --root ${CMAKE_CURRENT_SOURCE_DIR} --output ${OUTPUT} --api ${API}
			--imports "$<TARGET_PROPERTY:${TARGET},KESTRIX_IMPORTS>" --headers ${HEADERS}
		DEPENDS HeaderTool ${HEADERS} "$<TARGET_PROPERTY:${TARGET},KESTRIX_IMPORTS>"
		COMMENT "Reflecting ${ARG_MODULE}"
		COMMAND_EXPAND_LISTS VERBATIM)
	target_sources(${TARGET} PRIVATE ${SOURCE})
	target_include_directories(${TARGET} PUBLIC ${OUTPUT})
	set_target_properties(${TARGET} PROPERTIES KESTRIX_MANIFEST ${MANIFEST} KESTRIX_IMPORTS "")
	set_property(GLOBAL APPEND PROPERTY KESTRIX_REFLECTED_TARGETS ${TARGET})
endfunction()

# Called when all targets are known: each learns the manifests of the modules that it links, directly or not.
function(kestrix_resolve_reflection_imports)
	get_property(TARGETS GLOBAL PROPERTY KESTRIX_REFLECTED_TARGETS)
	foreach(TARGET IN LISTS TARGETS)
		set(IMPORTS)
		set(SEEN ${TARGET})
		set(PENDING ${TARGET})
		while(PENDING)
			list(POP_FRONT PENDING CURRENT)
			get_target_property(LINKED ${CURRENT} LINK_LIBRARIES)
			foreach(LIBRARY IN LISTS LINKED)
				if(NOT TARGET ${LIBRARY} OR LIBRARY IN_LIST SEEN)
					continue()
				endif()
				list(APPEND SEEN ${LIBRARY})
				list(APPEND PENDING ${LIBRARY})
				get_target_property(MANIFEST ${LIBRARY} KESTRIX_MANIFEST)
				if(MANIFEST)
					list(APPEND IMPORTS ${MANIFEST})
				endif()
			endforeach()
		endwhile()
		set_target_properties(${TARGET} PROPERTIES KESTRIX_IMPORTS "${IMPORTS}")
	endforeach()
endfunction()

cmake_language(DEFER DIRECTORY ${CMAKE_SOURCE_DIR} CALL kestrix_resolve_reflection_imports)
