# Builds a small program with a reflected class, then edits its headers only, and looks which functions the program knows:
# a new function, a new header and a function that is gone show without any other edit, and a mistake stops the build.
#
# cmake -DPROJECT=<Project> -DWORK=<empty folder> -DSOURCE=<source folder> -DBINARY=<build folder> -DBUILD_TYPE=<type>
#	-DSANITIZERS=<list> -DCOMPILER=<c++> -P NewFunctionsAppear.cmake

file(REMOVE_RECURSE ${WORK})
file(COPY ${PROJECT}/ DESTINATION ${WORK}/Source)
set(HEADER ${WORK}/Source/Public/Tools.h)

function(build OUT_RESULT OUT_TEXT)
	execute_process(COMMAND ${CMAKE_COMMAND} --build ${WORK}/Build RESULT_VARIABLE RESULT OUTPUT_VARIABLE TEXT ERROR_VARIABLE TEXT)
	set(${OUT_RESULT} ${RESULT} PARENT_SCOPE)
	set(${OUT_TEXT} "${TEXT}" PARENT_SCOPE)
endfunction()

function(expect_functions EXPECTED)
	build(RESULT TEXT)
	if(NOT RESULT EQUAL 0)
		message(FATAL_ERROR "The build failed:\n${TEXT}")
	endif()
	execute_process(COMMAND ${WORK}/Build/bin/ListFunctions RESULT_VARIABLE RESULT OUTPUT_VARIABLE FOUND)
	if(NOT RESULT EQUAL 0 OR NOT FOUND STREQUAL EXPECTED)
		message(FATAL_ERROR "Expected the functions '${EXPECTED}', found '${FOUND}' (status ${RESULT})")
	endif()
	message(STATUS "Found ${FOUND}")
endfunction()

function(edit FROM TO)
	file(READ ${HEADER} TEXT)
	string(REPLACE "${FROM}" "${TO}" TEXT "${TEXT}")
	file(WRITE ${HEADER} "${TEXT}")
endfunction()

execute_process(
	COMMAND ${CMAKE_COMMAND} -G Ninja -S ${WORK}/Source -B ${WORK}/Build -DKESTRIX_SOURCE_DIR=${SOURCE} -DKESTRIX_BINARY_DIR=${BINARY}
		-DCMAKE_BUILD_TYPE=${BUILD_TYPE} -DKESTRIX_SANITIZERS=${SANITIZERS} -DCMAKE_CXX_COMPILER=${COMPILER}
	RESULT_VARIABLE RESULT OUTPUT_VARIABLE TEXT ERROR_VARIABLE TEXT)
if(NOT RESULT EQUAL 0)
	message(FATAL_ERROR "The configuration failed:\n${TEXT}")
endif()
expect_functions("Tools.First")

set(SECOND "UFUNCTION(BlueprintCallable, Category = \"Tools\")\n\tint32 Second(const FString& Text, float& OutNumber) const { return 2; }\n")
edit("// More here." "${SECOND}\t// More here.")
expect_functions("Tools.First Tools.Second")

file(WRITE ${WORK}/Source/Public/Further.h "#pragma once\n\n#include \"Tools.h\"\n#include \"Further.generated.h\"\n\n"
	"UCLASS()\nclass UFurther : public UTools\n{\n\tGENERATED_BODY()\n\n\tUFUNCTION()\n\tvoid Third(UTools* Tools) {}\n};\n")
expect_functions("Further.First Further.Second Further.Third Tools.First Tools.Second")

edit("${SECOND}\t" "")
expect_functions("Further.First Further.Third Tools.First")

edit("// More here." "UFUNCTION(BlueprintCallable, Category = \"Tools\")\n\tstatic void First(int32 Number);")
build(RESULT TEXT)
if(RESULT EQUAL 0 OR NOT TEXT MATCHES "Tools\\.h\\([0-9]+\\): Error: 'UTools::First': expected one function of that name")
	message(FATAL_ERROR "Expected the build to stop at the overload, found status ${RESULT} and:\n${TEXT}")
endif()
