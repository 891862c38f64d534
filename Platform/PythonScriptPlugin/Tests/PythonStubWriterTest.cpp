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

TEST(PythonStubWriter, ShowsMethodsOperatorsAndConstantsOfLibraries)
{
	const FString Text = PythonStubWriter::Describe();
	const auto Has = [&Text](const TCHAR* Part)
	{
		return Text.Contains(Part, ESearchCase::CaseSensitive);
	};
	EXPECT_TRUE(Has(TEXT(
		"    def steps_to(self, other: Union[PythonTestPlace, Mapping[str, Any], Sequence[Any]], stride: int = 2) -> int:\n")));
	EXPECT_TRUE(Has(TEXT("    def steps(self, other: ")));
	EXPECT_TRUE(Has(TEXT("    def relabel(self, label: str) -> None:\n")));
	EXPECT_TRUE(Has(TEXT("    def __lshift__(self, other: Union[str, int]) -> PythonTestPlace:\n")));
	EXPECT_TRUE(Has(TEXT("    def __ilshift__(self, other: Union[str, int]) -> PythonTestPlace:\n")));
	EXPECT_TRUE(Has(TEXT("    def __bool__(self) -> bool:\n")));
	EXPECT_TRUE(Has(TEXT("    def __eq__(self, other: object) -> bool:\n")));
	EXPECT_TRUE(Has(TEXT("    CELLAR: \"PythonTestPlace\" = ...\n")));
	EXPECT_TRUE(Has(TEXT("    LOWEST_FLOOR: \"int\" = ...\n")));
	EXPECT_TRUE(Has(TEXT("    def __init__(self, roll: float = 0.0, pitch: float = 0.0, yaw: float = 0.0) -> None:\n")));
	EXPECT_TRUE(
		Has(TEXT("class Array:\n    \"\"\"A list of values of one type.\"\"\"\n\n    def __init__(self, type) -> None:\n")));
}

TEST(PythonStubWriter, EveryTypeHasTheSameNamesInStubAndRuntime)
{
	const FTempProject Project;
	EXPECT_TRUE(PythonStubWriter::Write(Project.Path(TEXT("Stub"))));
	EXPECT_TRUE(RunPython(FString::Printf(
		TEXT("import ast\ntree = ast.parse(open('%s', encoding='utf-8').read())"), *Project.Path(TEXT("Stub/unreal.pyi")))));
	EXPECT_TRUE(
		RunPython(TEXT("def name_of(node): return node.name if hasattr(node, 'name') else getattr(node, 'target', node).id\n"
					   "kinds = (ast.FunctionDef, ast.AnnAssign)\n"
					   "stub = {c.name: {name_of(n) for n in c.body if isinstance(n, kinds)} for c in tree.body "
					   "if isinstance(c, ast.ClassDef)}\n"
					   "common = {'__class__', '__doc__', '__hash__', '__init__', '__module__', '__new__'}\n"
					   "types = {n: t for n, t in vars(unreal).items() if isinstance(t, type)}\n"
					   "runtime = {n: set(vars(t)) - common for n, t in types.items()}")));
	EXPECT_EQ(Evaluate(TEXT("len(runtime) > 30 and sorted(set(runtime) ^ set(stub))")), TEXT("[]"));
	EXPECT_EQ(
		Evaluate(TEXT("{n: (runtime[n] ^ stub[n]) - common for n in runtime if (runtime[n] ^ stub[n]) - common}")), TEXT("{}"));
}
