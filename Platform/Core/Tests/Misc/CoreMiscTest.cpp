#include "Misc/CoreMisc.h"

#include <gtest/gtest.h>

namespace
{
class FTaker final : public FSelfRegisteringExec
{
public:
	explicit FTaker(const TCHAR* InTaken)
		: Taken(InTaken)
	{
	}

	virtual bool Exec(UWorld*, const TCHAR* Cmd, FOutputDevice&) override
	{
		const bool bTakes = Taken.Equals(Cmd);
		NumTaken += bTakes ? 1 : 0;
		return bTakes;
	}

	FString Taken;
	int32 NumTaken = 0;
};
}

TEST(SelfRegisteringExec, InputGoesToTheHandlerThatTakesItForAsLongAsItLives)
{
	FTaker First(TEXT("first"));
	{
		FTaker Second(TEXT("second"));
		EXPECT_TRUE(FSelfRegisteringExec::StaticExec(nullptr, TEXT("second"), *GLog));
		EXPECT_EQ(Second.NumTaken, 1);
		EXPECT_EQ(First.NumTaken, 0);
	}
	EXPECT_FALSE(FSelfRegisteringExec::StaticExec(nullptr, TEXT("second"), *GLog));
	EXPECT_TRUE(FSelfRegisteringExec::StaticExec(nullptr, TEXT("first"), *GLog));
}
