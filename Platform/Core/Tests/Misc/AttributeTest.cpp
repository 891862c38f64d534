#include "Misc/Attribute.h"

#include <gtest/gtest.h>

#include "CoreMinimal.h"

namespace
{
class FSource : public TSharedFromThis<FSource>
{
public:
	int32 GetNumber() const { return Number; }
	TAttribute<int32> MakeAttribute() { return TAttribute<int32>(this, &FSource::GetNumber); }
	int32 Number = 3;
};

FText GetGreeting()
{
	return FText::FromString(TEXT("Hello"));
}
}

TEST(Attribute, IsUnsetUntilSet)
{
	TAttribute<int32> Attribute;
	EXPECT_FALSE(Attribute.IsSet());
	EXPECT_EQ(Attribute.Get(), 0);
	EXPECT_EQ(Attribute.Get(5), 5);

	Attribute = 2;
	EXPECT_TRUE(Attribute.IsSet());
	EXPECT_FALSE(Attribute.IsBound());
	EXPECT_EQ(Attribute.Get(5), 2);
}

TEST(Attribute, AsksItsBindingEachTime)
{
	int32 Number = 1;
	const TAttribute<int32> Attribute = TAttribute<int32>::CreateLambda([&Number] { return Number; });
	EXPECT_EQ(Attribute.Get(), 1);
	Number = 2;
	EXPECT_EQ(Attribute.Get(), 2);
}

// Setting a value replaces the binding.
TEST(Attribute, SettingAValueReplacesTheBinding)
{
	TAttribute<int32> Attribute = TAttribute<int32>::CreateLambda([] { return 1; });
	Attribute.Set(7);
	EXPECT_FALSE(Attribute.IsBound());
	EXPECT_EQ(Attribute.Get(), 7);
}

TEST(Attribute, KeepsTheLastValueWhenTheBoundObjectIsGone)
{
	TSharedPtr<FSource> Source = MakeShared<FSource>();
	const TAttribute<int32> Attribute = Source->MakeAttribute();
	EXPECT_EQ(Attribute.Get(), 3);
	Source.Reset();
	EXPECT_FALSE(Attribute.IsBound());
	EXPECT_EQ(Attribute.Get(), 3);
}

TEST(Attribute, BindsFunctionsMethodsAndFunctionValues)
{
	const TSharedRef<FSource> Source = MakeShared<FSource>();
	EXPECT_EQ(TAttribute<FText>::Create(&GetGreeting).Get().ToString(), TEXT("Hello"));
	EXPECT_EQ(TAttribute<FText>::CreateStatic(&GetGreeting).Get().ToString(), TEXT("Hello"));
	EXPECT_EQ(TAttribute<int32>::CreateRaw(&Source.Get(), &FSource::GetNumber).Get(), 3);
	EXPECT_EQ(TAttribute<int32>::CreateSP(&Source.Get(), &FSource::GetNumber).Get(), 3);
	EXPECT_EQ(TAttribute<int32>(Source, &FSource::GetNumber).Get(), 3);
	EXPECT_EQ(MakeAttributeLambda([] { return 4; }).Get(), 4);
}

TEST(Attribute, IsIdenticalByValueOrBySameBinding)
{
	const TAttribute<int32> Bound = TAttribute<int32>::CreateLambda([] { return 1; });
	const TAttribute<int32> BoundAlike = TAttribute<int32>::CreateLambda([] { return 1; });
	const TAttribute<int32> Copy = Bound;
	EXPECT_TRUE(Bound.IdenticalTo(Copy));
	EXPECT_FALSE(Bound.IdenticalTo(BoundAlike));
	EXPECT_FALSE(Bound.IdenticalTo(TAttribute<int32>(1)));
	EXPECT_TRUE(TAttribute<int32>(1).IdenticalTo(1));
	EXPECT_FALSE(TAttribute<int32>(0).IdenticalTo(TAttribute<int32>()));
}

TEST(Attribute, TextsAreComparedByIdentity)
{
	const FText Text = FText::FromString(TEXT("a"));
	EXPECT_TRUE(TAttribute<FText>(Text).IdenticalTo(TAttribute<FText>(Text)));
	EXPECT_FALSE(TAttribute<FText>(Text).IdenticalTo(TAttribute<FText>(FText::FromString(TEXT("b")))));
}

TEST(Attribute, ABindingCostsOnePointer)
{
	EXPECT_EQ(sizeof(TAttribute<bool>), 2 * sizeof(void*));
	EXPECT_LE(sizeof(TAttribute<FText>), sizeof(FText) + 2 * sizeof(void*));
}
