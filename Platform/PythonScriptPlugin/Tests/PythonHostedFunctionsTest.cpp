#include "PythonTest.h"

#include <gtest/gtest.h>

using namespace PythonTest;

TEST(PythonScriptMethod, IsAMethodOfTheFirstParameter)
{
	EXPECT_TRUE(RunPython(TEXT("a = unreal.PythonTestPlace(floor=1)\nb = unreal.PythonTestPlace(floor=7)")));
	EXPECT_EQ(Evaluate(TEXT("(a.steps_to(b), a.steps_to(other=b, stride=3), unreal.PythonTestPlace.steps_to(b, a))")),
		TEXT("(3, 2, -3)"));
	EXPECT_EQ(Evaluate(TEXT("unreal.PythonTestHostedFunctions.count_steps(a, b)")), TEXT("3"));
	EXPECT_EQ(ErrorOf(TEXT("a.steps_to()")), TEXT("TypeError: steps_to() missing required argument 'other' (pos 1)"));
	EXPECT_EQ(ErrorOf(TEXT("a.steps_to(b, 1, 2)")), TEXT("TypeError: steps_to() takes at most 2 arguments (3 given)"));
	EXPECT_EQ(ErrorOf(TEXT("a.steps_to(b, 'x')")),
		TEXT("TypeError: PythonTestPlace.steps_to(): argument 'stride' (pos 2): expected int, got str"));
	EXPECT_EQ(ErrorOf(TEXT("unreal.PythonTestPlace.steps_to(unreal.Vector(), a)")),
		TEXT("TypeError: steps_to() needs a value of type 'PythonTestPlace' to be called on"));
}

TEST(PythonScriptMethod, FurtherNamesAreDeprecated)
{
	EXPECT_TRUE(RunPython(TEXT("import warnings\nwith warnings.catch_warnings(record=True) as told:\n    "
							   "warnings.simplefilter('always')\n    unreal.PythonTestPlace().steps([0])")));
	EXPECT_EQ(Evaluate(TEXT("[str(w.message) for w in told]")),
		TEXT("[\"PythonTestHostedFunctions: Function 'steps' on 'PythonTestHostedFunctions' is deprecated: use 'steps_to'\"]"));
}

TEST(PythonScriptMethod, AReferenceChangesTheValue)
{
	EXPECT_TRUE(RunPython(TEXT("p = unreal.PythonTestPlace(floor=1)")));
	EXPECT_EQ(Evaluate(TEXT("(p.lift_place(3), p.floor)")), TEXT("(30, 4)"));
	EXPECT_EQ(Evaluate(TEXT("(p.relabel('new'), p.label, p.floor)")), TEXT("(None, 'new', 4)"));
}

TEST(PythonScriptMethod, ObjectsHaveThemToo)
{
	EXPECT_EQ(Evaluate(TEXT("unreal.PythonTestChild().count_of(factor=4)")), TEXT("12"));
}

TEST(PythonScriptMethod, HelpTellsOfThem)
{
	EXPECT_EQ(Evaluate(TEXT("unreal.PythonTestPlace.steps_to.__doc__.splitlines()[:2]")),
		TEXT("['X.steps_to(other, stride=2) -> int', 'How far it is to the other place.']"));
	EXPECT_EQ(Evaluate(TEXT("str(__import__('inspect').signature(unreal.PythonTestPlace.steps_to))")),
		TEXT("'(self, /, other, stride=2)'"));
}

TEST(PythonScriptOperator, TheFirstFunctionThatTakesTheOperandIsCalled)
{
	EXPECT_TRUE(RunPython(TEXT("p = unreal.PythonTestPlace(1, 2, 'l')")));
	EXPECT_EQ(Evaluate(TEXT("((p << 'm').to_tuple(), (p << 9).to_tuple(), p.to_tuple())")),
		TEXT("((1.0, 2, 'm'), (1.0, 9, 'l'), (1.0, 2, 'l'))"));
	EXPECT_EQ(ErrorOf(TEXT("p << []")), TEXT("TypeError: unsupported operand type(s) for <<: 'PythonTestPlace' and 'list'"));
	EXPECT_EQ(ErrorOf(TEXT("p << 1.5")), TEXT("TypeError: unsupported operand type(s) for <<: 'PythonTestPlace' and 'float'"));
	EXPECT_EQ(ErrorOf(TEXT("3 << p")), TEXT("TypeError: unsupported operand type(s) for <<: 'int' and 'PythonTestPlace'"));
	EXPECT_EQ(
		ErrorOf(TEXT("p + p")), TEXT("TypeError: unsupported operand type(s) for +: 'PythonTestPlace' and 'PythonTestPlace'"));
}

TEST(PythonScriptOperator, InPlaceChangesTheValueItself)
{
	EXPECT_TRUE(RunPython(TEXT("p = q = unreal.PythonTestPlace(1, 2, 'l')\np <<= 'm'")));
	EXPECT_EQ(Evaluate(TEXT("(p is q, q.label)")), TEXT("(True, 'm')"));
}

TEST(PythonScriptOperator, TellsTruthEqualityAndItsOpposite)
{
	EXPECT_EQ(Evaluate(TEXT("(bool(unreal.PythonTestPlace()), bool(unreal.PythonTestPlace(label='l')))")), TEXT("(False, True)"));
	EXPECT_TRUE(
		RunPython(TEXT("a = unreal.PythonTestPlace(1, 2)\nb = unreal.PythonTestPlace(5, 2)\nc = unreal.PythonTestPlace(1)")));
	EXPECT_EQ(Evaluate(TEXT("(a == b, a != b, a == c, a != c, a == None, a != 'text')")),
		TEXT("(True, False, False, True, False, True)"));
	EXPECT_EQ(Evaluate(TEXT("unreal.PythonTestPlace(floor=9) % 4")), TEXT("1"));
}

TEST(PythonScriptOperator, AnErrorOfTheOperandsOwnIsRaised)
{
	EXPECT_EQ(
		ErrorOf(TEXT(
			"class Bad(dict):\n    def keys(self): 1 / 0\n    def __iter__(self): 1 / 0\nunreal.PythonTestPlace() == Bad(a=1)")),
		TEXT("ZeroDivisionError: division by zero"));
}

TEST(PythonScriptConstant, IsAnAttributeOfTheTypeThatNobodyCanChange)
{
	EXPECT_EQ(Evaluate(TEXT("unreal.PythonTestPlace.CELLAR.floor")), TEXT("-1"));
	EXPECT_EQ(Evaluate(TEXT("unreal.PythonTestPlace.LOWEST_FLOOR")), TEXT("-4"));
	EXPECT_TRUE(RunPython(TEXT("unreal.PythonTestPlace.CELLAR.floor = 8")));
	EXPECT_EQ(Evaluate(TEXT("unreal.PythonTestPlace().CELLAR.floor")), TEXT("-1"));
	EXPECT_EQ(ErrorOf(TEXT("unreal.PythonTestPlace().CELLAR = None")),
		TEXT("AttributeError: constant 'CELLAR' of 'PythonTestPlace' is read-only"));
}

TEST(PythonHostedFunctions, WhatCannotBeWhatItsMetadataSaysIsLeftOutWithAWarning)
{
	const FString Class = TEXT("/Script/PythonScriptPluginTests.PythonTestMisplacedLibrary:");
	EXPECT_EQ(WarningsOfStart(),
		TArray<FString>({
			Class + TEXT("WithoutResult: cannot be the operator '+' of 'PythonTestPlace'"),
			Class + TEXT("WithUnknownSign: cannot be the operator '@' of 'PythonTestPlace'"),
			Class + TEXT("WithoutTruth: cannot be the operator '<' of 'PythonTestPlace'"),
			Class + TEXT("OfNumber: ScriptMethod wants a static function and a type that has it"),
			Class + TEXT("OfMember: ScriptMethod wants a static function and a type that has it"),
			Class + TEXT("WithParameter: cannot be the constant 'CHANGING' of 'PythonTestPlace'"),
		}));
	EXPECT_EQ(
		Evaluate(TEXT("[n for n in ('__add__', '__matmul__', 'member', 'CHANGING') if hasattr(unreal.PythonTestPlace, n)]")),
		TEXT("[]"));
	EXPECT_EQ(Evaluate(TEXT("unreal.PythonTestMisplacedFunctions.of_number(4)")), TEXT("4"));
}
