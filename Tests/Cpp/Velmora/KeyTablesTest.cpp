#include "Velmora/KeyTables.h"

#include "LogCapture.h"
#include "Velmora/TableText.h"

#include <gtest/gtest.h>

namespace
{
const TCHAR* NameOf(EWidgetTypeTest Test)
{
	switch (Test)
	{
		case EWidgetTypeTest::Is:
			return TEXT("is");
		case EWidgetTypeTest::StartsWith:
			return TEXT("starts with");
		case EWidgetTypeTest::Any:
			return TEXT("any");
	}
	return TEXT("?");
}
}

TEST(KeyTables, BehaviorKeysAreThoseWrittenDown)
{
	EXPECT_EQ(BehaviorKeys.Num(), 69);
	ExpectTable("BehaviorKeys.txt", BehaviorKeys);
}

TEST(KeyTables, WidgetTypesAreThoseWrittenDown)
{
	EXPECT_EQ(WidgetTypes.Num(), 42);
	ExpectTable("WidgetTypes.txt", WidgetTypes);
}

TEST(KeyTables, InbornKeysAreThoseWrittenDown)
{
	TArray<FString> Lines;
	for (const FInbornKeys& Row : GetInbornKeys())
	{
		const FString Keys = Row.Keys.Num() > 0 ? FString::Join(Row.Keys, TEXT(", ")) : FString(TEXT("every key"));
		Lines.Add(FString::Printf(TEXT("%s | %s | %s"), NameOf(Row.Test), *FString::Join(Row.WidgetTypes, TEXT(", ")), *Keys));
	}
	EXPECT_EQ(Lines.Num(), 38);
	ExpectTable("InbornKeys.txt", Lines);
}

TEST(KeyTables, NoKeyStandsInTwoTables)
{
	for (const FString& Key : BehaviorKeys)
	{
		EXPECT_FALSE(IsWidgetTypeKey(Key)) << TCHAR_TO_UTF8(*Key);
		EXPECT_FALSE(IsAkaKey(Key) || IsSlotsKey(Key) || IsContentKey(Key)) << TCHAR_TO_UTF8(*Key);
	}
}

TEST(KeyTables, OnlyTheStructureKeysMindCase)
{
	EXPECT_TRUE(IsBehaviorKey(TEXT("tExT")));
	EXPECT_TRUE(IsWidgetTypeKey(TEXT("sbox")));
	EXPECT_TRUE(IsAkaKey(TEXT("aka")));
	EXPECT_TRUE(IsSlotsKey(TEXT("Slots")));
	EXPECT_FALSE(IsSlotsKey(TEXT("slots")));
	EXPECT_TRUE(IsContentKey(TEXT("Content")));
	EXPECT_FALSE(IsContentKey(TEXT("content")));
}

TEST(InbornDecorate, EveryKeyOfAComboBoxOrHeaderRowIsHandled)
{
	EXPECT_TRUE(InbornDecorate(TEXT("SComboBox<TSharedPtr<FString>>"), TEXT("Whatever")));
	EXPECT_TRUE(InbornDecorate(TEXT("sheaderrow"), TEXT("Whatever")));
	EXPECT_FALSE(InbornDecorate(TEXT("SComboButton"), TEXT("Whatever")));
}

TEST(InbornDecorate, SomeKeysAreHandledOnAnyWidget)
{
	for (const TCHAR* Key : {TEXT("OptionSource"), TEXT("columns"), TEXT("OnTick")})
	{
		EXPECT_TRUE(InbornDecorate(TEXT("SBox"), Key)) << TCHAR_TO_UTF8(Key);
	}
	EXPECT_FALSE(InbornDecorate(TEXT("SBox"), TEXT("OptionsSource")));
}

TEST(InbornDecorate, TypesAreComparedAsWholeWordsUnlessTheRowSaysOtherwise)
{
	EXPECT_TRUE(InbornDecorate(TEXT("SSpinBox<NumericType>"), TEXT("Delta")));
	EXPECT_FALSE(InbornDecorate(TEXT("SSpinBox<float>"), TEXT("Delta")));
	EXPECT_TRUE(InbornDecorate(TEXT("SListView<TSharedPtr<FString>>"), TEXT("ItemHeight")));
	EXPECT_TRUE(InbornDecorate(TEXT("SButton"), TEXT("onclick")));
	EXPECT_FALSE(InbornDecorate(TEXT("SButtonRow"), TEXT("OnClick")));
}

TEST(InbornDecorate, DeprecatedSelectionKeyOfAListWarnsAndIsHandled)
{
	const FLogCapture Log(TEXT("PythonKX"));

	EXPECT_TRUE(InbornDecorate(TEXT("SListView<TSharedPtr<FString>>"), TEXT("OnSelectedChanged")));
	EXPECT_FALSE(InbornDecorate(TEXT("STreeView<TSharedPtr<FString>>"), TEXT("OnSelectedChanged")));

	EXPECT_EQ(Log.Warnings(),
		TArray<FString>(
			{TEXT("Key words \"OnSelectedChanged\" as been deprecated, Please use \"OnSelectionChanged\" instead.")}));
}
