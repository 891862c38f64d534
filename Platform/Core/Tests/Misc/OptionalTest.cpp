#include "Misc/Optional.h"

#include <gtest/gtest.h>

#include "CoreMinimal.h"

TEST(Optional, IsUnsetUntilAValueIsGiven)
{
	TOptional<float> Optional;
	EXPECT_FALSE(Optional.IsSet());
	EXPECT_EQ(Optional.Get(7.0f), 7.0f);
	EXPECT_EQ(Optional.GetPtrOrNull(), nullptr);

	Optional = 2.0f;
	EXPECT_TRUE(Optional.IsSet());
	EXPECT_EQ(Optional.GetValue(), 2.0f);
	EXPECT_EQ(Optional.Get(7.0f), 2.0f);

	Optional.Reset();
	EXPECT_FALSE(Optional);
}

TEST(Optional, EqualsOnlyWhatIsSetAlike)
{
	EXPECT_EQ(TOptional<FString>(), TOptional<FString>());
	EXPECT_EQ(TOptional<FString>(TEXT("a")), TOptional<FString>(TEXT("A")));
	EXPECT_NE(TOptional<FString>(TEXT("")), TOptional<FString>());
}

TEST(Optional, ConstructsInPlace)
{
	TOptional<TArray<int32>> Optional(InPlace, std::initializer_list<int32>{1, 2});
	EXPECT_EQ(Optional->Num(), 2);
	Optional.Emplace();
	EXPECT_EQ(Optional->Num(), 0);
}

TEST(OptionalDeathTest, AMissingValueCannotBeRead)
{
	const TOptional<int32> Optional;
	EXPECT_DEATH(Optional.GetValue(), "It is an error to call GetValue\\(\\) on an unset TOptional");
}
