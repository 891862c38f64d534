#include "CoreMinimal.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

TEST(ExactStrings, StringsThatDifferInCaseAreEqualToTheEngineAndNotToATest)
{
	EXPECT_TRUE(FString(TEXT("True")) == FString(TEXT("true")));

	EXPECT_NONFATAL_FAILURE(EXPECT_EQ(FString(TEXT("True")), FString(TEXT("true"))), "true");
	EXPECT_NONFATAL_FAILURE(EXPECT_EQ(FString(TEXT("True")), TEXT("true")), "true");
	EXPECT_EQ(FString(TEXT("True")), TEXT("True"));
}

TEST(ExactStrings, ArraysAreComparedStringByString)
{
	using FLines = TArray<FString>;

	EXPECT_NONFATAL_FAILURE(EXPECT_EQ(FLines({TEXT("a"), TEXT("B")}), FLines({TEXT("a"), TEXT("b")})), "b");
	EXPECT_NONFATAL_FAILURE(EXPECT_EQ(FLines({TEXT("a")}), FLines({TEXT("a"), TEXT("b")})), "b");
	EXPECT_EQ(FLines({TEXT("a"), TEXT("B")}), FLines({TEXT("a"), TEXT("B")}));
}
