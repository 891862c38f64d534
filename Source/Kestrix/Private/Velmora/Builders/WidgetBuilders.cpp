#include "Velmora/Builders/WidgetBuilders.h"

#include "Dom/JsonObject.h"
#include "KestrixLog.h"
#include "Velmora/Builders/ChoiceBuilders.h"
#include "Velmora/Builders/LayoutBuilders.h"
#include "Velmora/Builders/TextBuilders.h"
#include "Velmora/KeyTables.h"
#include "Velmora/VelmoraGenerator.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Input/SCheckBox.h"
#include "Widgets/Input/SEditableTextBox.h"
#include "Widgets/Input/SMultiLineEditableTextBox.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/Layout/SScrollBox.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SNullWidget.h"
#include "Widgets/Text/STextBlock.h"

namespace
{
using FWidgetBuilder = TSharedPtr<SWidget> (*)(const FWidgetSite& Site);

template <auto Parse>
TSharedPtr<SWidget> FromObject(const FWidgetSite& Site)
{
	return Parse(Site.Object);
}

template <auto Parse>
TSharedPtr<SWidget> FromPath(const FWidgetSite& Site)
{
	return Parse(Site.Object, Site.Path, Site.Context);
}

struct FWidgetBuilderRow
{
	const TCHAR* Key;
	FWidgetBuilder Build;
};

const FWidgetBuilderRow WidgetBuilders[] = {
	{TEXT("SBox"), &FromObject<&ParseSBox>},
	{TEXT("SBorder"), &FromObject<&ParseSBorder>},
	{TEXT("SButton"), &FromPath<&ParseSButton>},
	{TEXT("SScrollBox"), &FromObject<&ParseSScrollBox>},
	{TEXT("SVerticalBox"), &FromObject<&ParseSVerticalBox>},
	{TEXT("SHorizontalBox"), &FromObject<&ParseSHorizontalBox>},
	{TEXT("SCheckBox"), &FromObject<&ParseSCheckBox>},
	{TEXT("STextBlock"), &FromObject<&ParseSTextBlock>},
	{TEXT("SEditableTextBox"), &FromObject<&ParseSEditableTextBox>},
	{TEXT("SMultiLineEditableTextBox"), &FromObject<&ParseSMultiLineEditableTextBox>},
};

/** Widgets whose object says in its field "Type" of what their values are. */
struct FTypedWidgetRow
{
	const TCHAR* Key;
	TArray<FString> Types;

	/** A type that is none of these is named in small letters. */
	bool bLowersType = false;
};

const FTypedWidgetRow TypedWidgets[] = {
	{TEXT("SSpinBox"), {TEXT("float"), TEXT("int"), TEXT("integer")}},
	{TEXT("SBreadcrumbTrail"), {TEXT("string"), TEXT("str"), TEXT("integer"), TEXT("int")}, true},
};

template <typename RowT, int32 Num>
const RowT* FindRow(const RowT (&Rows)[Num], const FString& Key)
{
	for (const RowT& Row : Rows)
	{
		if (IsSameKey(Key, Row.Key))
		{
			return &Row;
		}
	}
	return nullptr;
}

/** Tells whether the object names one of the row's types. A missing "Type" is no fault; an unknown one is. */
bool HasKnownType(const FTypedWidgetRow& Row, const FWidgetSite& Site)
{
	if (!Site.Object->HasField(TEXT("Type")))
	{
		return false;
	}
	FString Type = Site.Object->GetStringField(TEXT("Type"));
	if (Row.bLowersType)
	{
		Type.ToLowerInline();
	}
	if (Row.Types.Contains(Type))
	{
		return true;
	}
	UE_LOG(Velmora, Warning, TEXT("%sSpinBox of type: %s not implement"), *GetIndent(Site.Depth), *Type);
	return false;
}

/** A header row belongs to the list that asks for it, and is nothing anywhere else. */
bool IsHeaderRowOutsideList(const FString& Key, const FWidgetSite& Site)
{
	return IsSameKey(Key, TEXT("SHeaderRow")) && Site.Parent != SNullWidget::NullWidget;
}
}

TSharedPtr<SWidget> RunWidgetBuilder(const FString& Key, const FWidgetSite& Site)
{
	if (const FWidgetBuilderRow* Row = FindRow(WidgetBuilders, Key))
	{
		return Row->Build(Site);
	}
	const FTypedWidgetRow* TypedRow = FindRow(TypedWidgets, Key);
	if ((TypedRow != nullptr && !HasKnownType(*TypedRow, Site)) || IsHeaderRowOutsideList(Key, Site))
	{
		return nullptr;
	}
	UE_LOG(Velmora, Error, TEXT("%sSlate %s 's Value Type not implement"), *GetIndent(Site.Depth), *Key);
	return nullptr;
}
