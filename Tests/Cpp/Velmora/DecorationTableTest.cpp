#include "Velmora/DecorationTable.h"

#include "Velmora/KeyTables.h"
#include "Velmora/TableText.h"

#include <gtest/gtest.h>

namespace
{
using EBadValue = FDecorationColumns::EBadValue;

FString NameOf(EBadValue BadValue)
{
	switch (BadValue)
	{
		case EBadValue::Default:
			return TEXT("default");
		case EBadValue::Unhandled:
			return TEXT("unhandled");
		case EBadValue::Ignored:
			return TEXT("ignored");
	}
	return TEXT("?");
}

FString Describe(const FDecorationColumns& Row)
{
	return FString::Printf(TEXT("%s | %s | %s | bad value: %s%s | others: %s | %s"), *Row.Key, *Row.Value,
		Row.bTypeTestFirst ? TEXT("type first") : TEXT("value first"), *NameOf(Row.BadValue),
		Row.BadValueWarning.IsEmpty() ? TEXT("") : *(TEXT(", ") + Row.BadValueWarning),
		Row.bIgnoredByOthers ? TEXT("ignored") : TEXT("unhandled"), *FString::Join(Row.WidgetTypes, TEXT(", ")));
}
}

TEST(DecorationTable, RowsAreThoseWrittenDown)
{
	TArray<FString> Lines;
	for (const FDecoration& Row : GetDecorations())
	{
		Lines.Add(Describe(Row.Columns));
	}
	ExpectTable("Decorations.txt", Lines);
}

TEST(DecorationTable, CompoundWidgetTypesAreThoseWrittenDown)
{
	EXPECT_EQ(CompoundWidgetTypes.Num(), 18);
	ExpectTable("CompoundWidgetTypes.txt", CompoundWidgetTypes);
}

TEST(DecorationTable, NoKeyAndNoWidgetTypeOfAKeyStandsTwice)
{
	TSet<FString> Keys;
	for (const FDecoration& Row : GetDecorations())
	{
		bool bStoodBefore = false;
		Keys.Add(Row.Columns.Key, &bStoodBefore);
		EXPECT_FALSE(bStoodBefore) << TCHAR_TO_UTF8(*Row.Columns.Key);

		TSet<FString> Types;
		for (const FString& Type : Row.Columns.WidgetTypes)
		{
			Types.Add(Type, &bStoodBefore);
			EXPECT_FALSE(bStoodBefore) << TCHAR_TO_UTF8(*Row.Columns.Key) << ": " << TCHAR_TO_UTF8(*Type);
		}
	}
}

TEST(DecorationTable, EveryKeyIsABehaviorKeyAndEveryTypeAWidget)
{
	for (const FDecoration& Row : GetDecorations())
	{
		EXPECT_TRUE(IsBehaviorKey(Row.Columns.Key)) << TCHAR_TO_UTF8(*Row.Columns.Key);
		for (const FString& Type : Row.Columns.WidgetTypes)
		{
			EXPECT_TRUE(Type.StartsWith(TEXT("(")) || IsWidgetTypeKey(Type)) << TCHAR_TO_UTF8(*Type);
		}
	}
}
