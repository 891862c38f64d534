#include "Templates/UniquePtr.h"

#include <gtest/gtest.h>

#include "CoreMinimal.h"

namespace
{
struct FCounted
{
	explicit FCounted(int32& InNumAlive)
		: NumAlive(InNumAlive)
	{
		++NumAlive;
	}
	virtual ~FCounted() { --NumAlive; }
	int32& NumAlive;
};

struct FCountedDerived : FCounted
{
	using FCounted::FCounted;
};
}

TEST(UniquePtr, DestroysItsObjectAtItsEnd)
{
	int32 NumAlive = 0;
	{
		const TUniquePtr<FCounted> Pointer = MakeUnique<FCountedDerived>(NumAlive);
		EXPECT_TRUE(Pointer.IsValid());
		EXPECT_EQ(NumAlive, 1);
	}
	EXPECT_EQ(NumAlive, 0);
}

TEST(UniquePtr, ReleaseGivesTheObjectAway)
{
	int32 NumAlive = 0;
	TUniquePtr<FCounted> Pointer = MakeUnique<FCounted>(NumAlive);
	FCounted* const Released = Pointer.Release();
	EXPECT_FALSE(Pointer);
	EXPECT_EQ(NumAlive, 1);
	Pointer.Reset(Released);
	Pointer = nullptr;
	EXPECT_EQ(NumAlive, 0);
}
