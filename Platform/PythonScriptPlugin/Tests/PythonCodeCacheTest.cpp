#include "PythonCodeCache.h"

#include <gtest/gtest.h>

static PyObject* Find(FPythonCodeCache& Cache, const FString& Text, int StartSymbol = Py_file_input)
{
	return Cache.Find(*Text, Text.Len(), StartSymbol);
}

static FPythonRef Add(FPythonCodeCache& Cache, const FString& Text, int StartSymbol = Py_file_input)
{
	const FPythonRef Function = FPythonRef::Steal(PyDict_New());
	Cache.Add(*Text, Text.Len(), StartSymbol, Function);
	return Function;
}

TEST(PythonCodeCache, FindsExactTextsOnly)
{
	FPythonCodeCache Cache;
	const FPythonRef Function = Add(Cache, TEXT("Print(1)"));

	EXPECT_EQ(Find(Cache, TEXT("Print(1)")), Function.Get());
	EXPECT_EQ(Find(Cache, TEXT("print(1)")), nullptr);
	EXPECT_EQ(Find(Cache, TEXT("Print(1) ")), nullptr);
	EXPECT_EQ(Find(Cache, TEXT("Print(1)"), Py_eval_input), nullptr);
}

TEST(PythonCodeCache, LongestUnusedTextMakesRoom)
{
	FPythonCodeCache Cache;
	TArray<FPythonRef> Functions;
	for (int32 Index = 0; Index < FPythonCodeCache::Capacity; ++Index)
	{
		Functions.Add(Add(Cache, FString::FromInt(Index)));
	}
	EXPECT_EQ(Find(Cache, TEXT("0")), Functions[0].Get());

	Add(Cache, TEXT("new"));

	EXPECT_EQ(Cache.Num(), FPythonCodeCache::Capacity);
	EXPECT_EQ(Find(Cache, TEXT("0")), Functions[0].Get());
	EXPECT_EQ(Find(Cache, TEXT("1")), nullptr);
	EXPECT_EQ(Find(Cache, TEXT("2")), Functions[2].Get());
	EXPECT_EQ(Py_REFCNT(Functions[1].Get()), 1);
}

TEST(PythonCodeCache, AllTextsAreFoundAfterManyReplacements)
{
	FPythonCodeCache Cache;
	const int32 Count = FPythonCodeCache::Capacity * 3;
	TArray<FPythonRef> Functions;
	for (int32 Index = 0; Index < Count; ++Index)
	{
		Functions.Add(Add(Cache, FString::Printf(TEXT("f(%d)"), Index)));
	}
	for (int32 Index = 0; Index < Count; ++Index)
	{
		PyObject* const Expected = Index < Count - FPythonCodeCache::Capacity ? nullptr : Functions[Index].Get();
		EXPECT_EQ(Find(Cache, FString::Printf(TEXT("f(%d)"), Index)), Expected);
	}
}

TEST(PythonCodeCache, GeneratedTextsOfGreatLengthAreNotKept)
{
	FPythonCodeCache Cache;
	Add(Cache, FString::ChrN(FPythonCodeCache::MaxLength + 1, TEXT(' ')));
	EXPECT_EQ(Cache.Num(), 0);
	Add(Cache, FString::ChrN(FPythonCodeCache::MaxLength, TEXT(' ')));
	EXPECT_EQ(Cache.Num(), 1);
}

TEST(PythonCodeCache, EmptyLetsGoOfAllFunctions)
{
	FPythonCodeCache Cache;
	const FPythonRef Function = Add(Cache, TEXT("a"));
	Cache.Empty();
	EXPECT_EQ(Py_REFCNT(Function.Get()), 1);
	EXPECT_EQ(Find(Cache, TEXT("a")), nullptr);
}
