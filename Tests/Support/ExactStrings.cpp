#include "ExactStrings.h"

#include "Printers.h"

namespace
{
bool IsExactly(const FString& Left, const FString& Right)
{
	return Left.Equals(Right, ESearchCase::CaseSensitive);
}

bool IsExactly(const TArray<FString>& Left, const TArray<FString>& Right)
{
	bool bIsSame = Left.Num() == Right.Num();
	for (int32 Index = 0; bIsSame && Index < Left.Num(); ++Index)
	{
		bIsSame = IsExactly(Left[Index], Right[Index]);
	}
	return bIsSame;
}

template <typename T>
testing::AssertionResult CompareExactly(const char* LeftExpression, const char* RightExpression, const T& Left, const T& Right)
{
	if (IsExactly(Left, Right))
	{
		return testing::AssertionSuccess();
	}
	return testing::internal::CmpHelperEQFailure(LeftExpression, RightExpression, Left, Right);
}
}

testing::AssertionResult CmpHelperEQ(
	const char* LeftExpression, const char* RightExpression, const FString& Left, const FString& Right)
{
	return CompareExactly(LeftExpression, RightExpression, Left, Right);
}

testing::AssertionResult CmpHelperEQ(
	const char* LeftExpression, const char* RightExpression, const FString& Left, const TCHAR* Right)
{
	return CompareExactly(LeftExpression, RightExpression, Left, FString(Right));
}

testing::AssertionResult CmpHelperEQ(
	const char* LeftExpression, const char* RightExpression, const TArray<FString>& Left, const TArray<FString>& Right)
{
	return CompareExactly(LeftExpression, RightExpression, Left, Right);
}
