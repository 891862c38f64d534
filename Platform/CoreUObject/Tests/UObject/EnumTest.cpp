#include <gtest/gtest.h>

#include "ReflectionTestTypes.h"
#include "UObject/UnrealType.h"
#include "UObject/UObjectGlobals.h"

TEST(Enum, EntriesAreNamedByTheFormOfTheEnumeration)
{
	const UEnum* const Colour = StaticEnum<ETestColour>();

	EXPECT_EQ(Colour->GetName(), TEXT("ETestColour"));
	EXPECT_EQ(Colour->CppType, TEXT("ETestColour"));
	EXPECT_EQ(Colour->GetNameByIndex(1), TEXT("ETestColour::Green"));
	EXPECT_EQ(Colour->GetNameStringByIndex(1), TEXT("Green"));
	EXPECT_EQ(Colour->GetNameStringByValue(5), TEXT("Green"));
	EXPECT_EQ(Colour->GetNameStringByValue(77), TEXT(""));
	EXPECT_EQ(Colour->GetValueByName(TEXT("ETestColour::Green")), 5);
	EXPECT_EQ(Colour->GetValueByNameString(TEXT("green")), 5);
	EXPECT_EQ(Colour->GetValueByName(TEXT("Blue")), INDEX_NONE);
	EXPECT_EQ(Colour->GetIndexByValue(6), 2);
}

TEST(Enum, AMaxEntryIsAddedBehindTheOthers)
{
	const UEnum* const Colour = StaticEnum<ETestColour>();

	EXPECT_EQ(Colour->NumEnums(), 4);
	EXPECT_EQ(Colour->GetNameStringByIndex(3), TEXT("ETestColour_MAX"));
	EXPECT_EQ(Colour->GetValueByIndex(3), 7);
	EXPECT_TRUE(Colour->ContainsExistingMax());
}

TEST(Enum, DisplayNamesAndToolTipsComeFromTheHeader)
{
	const UEnum* const Colour = StaticEnum<ETestColour>();

	EXPECT_EQ(Colour->GetDisplayNameTextByIndex(0).ToString(), TEXT("Deep Red"));
	EXPECT_EQ(Colour->GetDisplayNameTextByValue(5).ToString(), TEXT("Green"));
	EXPECT_EQ(Colour->GetToolTipTextByIndex(0).ToString(), TEXT("Like a rose."));
	EXPECT_TRUE(Colour->HasMetaData(TEXT("Hidden"), 2));
	EXPECT_FALSE(Colour->HasMetaData(TEXT("Hidden"), 1));
	EXPECT_TRUE(Colour->GetBoolMetaData(TEXT("BlueprintType")));
}

TEST(Enum, NamespacedEnumerationsAreBytesInProperties)
{
	const FByteProperty* const Shape = FindFProperty<FByteProperty>(UTestObject::StaticClass(), TEXT("Shape"));

	ASSERT_NE(Shape, nullptr);
	EXPECT_EQ(Shape->Enum->GetName(), TEXT("ETestShape"));
	EXPECT_EQ(Shape->Enum->CppType, TEXT("ETestShape::Type"));
	EXPECT_EQ(Shape->Enum->GetNameByValue(7), TEXT("ETestShape::Square"));
	EXPECT_EQ(Shape->Enum->GetCppForm(), UEnum::ECppForm::Namespaced);
	EXPECT_EQ(Shape->GetCPPType(), TEXT("TEnumAsByte<ETestShape::Type>"));
}

TEST(Enum, EntriesCanBeSetAtRunTime)
{
	UEnum* const Made = NewObject<UEnum>(GetTransientPackage(), TEXT("EMade"), RF_Public);
	TArray<TPair<FName, int64>> Names = {
		TPair<FName, int64>(TEXT("EMade::NewEnumerator0"), 0), TPair<FName, int64>(TEXT("EMade::EMade_MAX"), 1)};
	Made->SetEnums(Names, UEnum::ECppForm::Namespaced);
	Made->SetMetaData(TEXT("DisplayName"), TEXT("First"), 0);

	EXPECT_EQ(Made->NumEnums(), 2);
	EXPECT_EQ(Made->GetDisplayNameTextByIndex(0).ToString(), TEXT("First"));
}
