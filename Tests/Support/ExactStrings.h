#pragma once

#include <gtest/gtest.h>

#include "CoreMinimal.h"

// Strings of the engine are equal without regard to case, and so are arrays of them. What a test writes down is meant letter for
// letter: with these, which GoogleTest finds beside the types, EXPECT_EQ takes case into account. EXPECT_TRUE(A == B) does not.

testing::AssertionResult CmpHelperEQ(
	const char* LeftExpression, const char* RightExpression, const FString& Left, const FString& Right);

testing::AssertionResult CmpHelperEQ(
	const char* LeftExpression, const char* RightExpression, const FString& Left, const TCHAR* Right);

testing::AssertionResult CmpHelperEQ(
	const char* LeftExpression, const char* RightExpression, const TArray<FString>& Left, const TArray<FString>& Right);
