#include "PythonStubWriter.h"

#include "PythonTest.h"
#include "TempProject.h"

#include <gtest/gtest.h>

using namespace PythonTest;

TEST(PythonStubWriter, DescribesFunctionsWithTypesDefaultsAndDocumentation)
{
	const FLogCapture Log;
	const FString Text = PythonStubWriter::Describe();
	EXPECT_EQ(Log.Lines(), TArray<FString>());
	EXPECT_TRUE(Text.Contains(TEXT("class PythonTestChild(PythonTestObject):\n"), ESearchCase::CaseSensitive));
	EXPECT_TRUE(Text.Contains(
		TEXT("    def get_text(self, aka_name: Union[Name, str]) -> Optional[str]:\n"), ESearchCase::CaseSensitive));
	EXPECT_TRUE(Text.Contains(
		TEXT("    def scroll_to(self, aka_name: Union[Name, str], line_index: int = 4, offset: int = -1) -> int:\n")));
	EXPECT_TRUE(Text.Contains(TEXT("    @classmethod\n    def two_outs(cls, number: int) -> Tuple[int, str]:\n")));
	EXPECT_TRUE(Text.Contains(TEXT(
		"    @property\n    def title(self) -> str:\n        \"\"\"Text at the top.\"\"\"\n        ...\n\n    @title.setter\n")));
	EXPECT_TRUE(Text.Contains(TEXT("    LIGHT_GREEN: \"PythonTestColor\" = ...\n")));
	EXPECT_TRUE(Text.Contains(TEXT("def log_warning(arg, /):\n")));
	EXPECT_TRUE(Text.Contains(TEXT("class Array:\n")));
}

TEST(PythonStubWriter, WritesPythonThatCompiles)
{
	const FTempProject Project;
	EXPECT_TRUE(PythonStubWriter::Write(Project.Path(TEXT("Stub"))));
	EXPECT_EQ(Project.Read(TEXT("Stub/unreal.py")), Project.Read(TEXT("Stub/unreal.pyi")));
	EXPECT_EQ(ErrorOf(FString::Printf(
				  TEXT("compile(open('%s', encoding='utf-8').read(), 'stub', 'exec')"), *Project.Path(TEXT("Stub/unreal.py")))),
		TEXT(""));
}

TEST(PythonStubWriter, HasEveryPublicNameOfTheModule)
{
	const FTempProject Project;
	EXPECT_TRUE(PythonStubWriter::Write(Project.Path(TEXT("Stub"))));
	EXPECT_TRUE(RunPython(FString::Printf(TEXT("import ast\ntree = ast.parse(open('%s', encoding='utf-8').read())\ndescribed = "
											   "{n.name for n in tree.body if hasattr(n, 'name')}"),
		*Project.Path(TEXT("Stub/unreal.py")))));
	EXPECT_EQ(Evaluate(TEXT("[n for n in dir(unreal) if not n.startswith('_') and n not in described]")), TEXT("[]"));
}
