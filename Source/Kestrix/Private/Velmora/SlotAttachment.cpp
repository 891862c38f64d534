#include "Velmora/SlotAttachment.h"

#include "Dom/JsonObject.h"
#include "KestrixLog.h"
#include "Layout/Margin.h"
#include "Velmora/KeyTables.h"
#include "Velmora/ValueParsers.h"
#include "Velmora/VelmoraGenerator.h"
#include "Widgets/Layout/SScrollBox.h"
#include "Widgets/SBoxPanel.h"

namespace
{
/** A key of an element of "Slots" and the part of the layout that it sets; a wrong value leaves that part as it is. */
struct FSlotKey
{
	const TCHAR* Key;
	void (*Read)(const TSharedPtr<FJsonValue>& Value, FSlotRequest& Request);
};

using FJsonValuePtr = TSharedPtr<FJsonValue>;

void ReadPadding(const FJsonValuePtr& Value, FSlotRequest& Request)
{
	FMargin Margin;
	ParsePaddingValues(Value, Request.PaddingValues, Margin);
}

// clang-format off
const FSlotKey SlotKeys[] = {
	{ TEXT("Padding"),    &ReadPadding },
	{ TEXT("AutoHeight"), [](const FJsonValuePtr& Value, FSlotRequest& Request) { Value->TryGetBool(Request.bAutoHeight); } },
	{ TEXT("AutoWidth"),  [](const FJsonValuePtr& Value, FSlotRequest& Request) { Value->TryGetBool(Request.bAutoWidth); } },
	{ TEXT("VAlign"),     [](const FJsonValuePtr& Value, FSlotRequest& Request) { ParseVAlign(Value, Request.VAlign); } },
	{ TEXT("HAlign"),     [](const FJsonValuePtr& Value, FSlotRequest& Request) { ParseHAlign(Value, Request.HAlign); } },
	{ TEXT("FillWidth"),  [](const FJsonValuePtr& Value, FSlotRequest& Request) { GetNumberValue(Value, Request.FillWidth); } },
	{ TEXT("FillHeight"), [](const FJsonValuePtr& Value, FSlotRequest& Request) { GetNumberValue(Value, Request.FillHeight); } },
};
// clang-format on

/** Pads a slot as the author gave the numbers. Without numbers the slot keeps its own padding. */
template <typename SlotT>
void ApplyPadding(SlotT& Slot, const TArray<float>& Values)
{
	const int32 Num = Values.Num();
	if (Num == 0)
	{
		return;
	}
	if (Num != 1 && Num != 2 && Num != 4)
	{
		UE_CLOG(bLogCreateWidget, Velmora, Error, TEXT("Apply ParsePaddingValues Error Array Size: %d"), Num);
		return;
	}
	Slot.Padding(MakeMargin(Values));
	if (bLogCreateWidget)
	{
		TArray<FString> Numbers;
		for (const float Value : Values)
		{
			Numbers.Add(FString::Printf(TEXT("%f"), Value));
		}
		UE_LOG(Velmora, Log, TEXT("\tApply padding %s%s"), *FString::Join(Numbers, TEXT(" ")), Num == 1 ? TEXT("  ") : TEXT(""));
	}
}

void AttachToScrollBox(SWidget& Panel, const TSharedRef<SWidget>& Child, const FSlotRequest& Request)
{
	auto Slot = static_cast<SScrollBox&>(Panel).AddSlot();
	ApplyPadding(Slot, Request.PaddingValues);
	Slot[Child];
}

void AttachToVerticalBox(SWidget& Panel, const TSharedRef<SWidget>& Child, const FSlotRequest& Request)
{
	auto Slot = static_cast<SVerticalBox&>(Panel).AddSlot();
	ApplyPadding(Slot, Request.PaddingValues);
	Slot.HAlign(Request.HAlign).VAlign(Request.VAlign);
	if (Request.bAutoHeight)
	{
		Slot.AutoHeight();
	}
	if (Request.FillHeight != FSlotRequest::NoFill)
	{
		Slot.FillHeight(Request.FillHeight);
	}
	Slot[Child];
}

void AttachToHorizontalBox(SWidget& Panel, const TSharedRef<SWidget>& Child, const FSlotRequest& Request)
{
	UE_CLOG(bLogCreateWidget && Request.PaddingValues.Num() > 0, Velmora, Log, TEXT("Apply PaddingValues: %f"),
		Request.PaddingValues[0]);
	auto Slot = static_cast<SHorizontalBox&>(Panel).AddSlot();
	ApplyPadding(Slot, Request.PaddingValues);
	Slot.HAlign(Request.HAlign).VAlign(Request.VAlign);
	if (Request.bAutoWidth)
	{
		Slot.AutoWidth();
	}
	if (Request.FillWidth != FSlotRequest::NoFill)
	{
		Slot.FillWidth(Request.FillWidth);
	}
	Slot[Child];
}

/** What a panel reads of the layout that a slot asks for. The other axis means nothing to a box. */
struct FPanel
{
	const TCHAR* Type;
	void (*Attach)(SWidget& Panel, const TSharedRef<SWidget>& Child, const FSlotRequest& Request);
};

const FPanel Panels[] = {
	{TEXT("SScrollBox"), &AttachToScrollBox},
	{TEXT("SVerticalBox"), &AttachToVerticalBox},
	{TEXT("SHorizontalBox"), &AttachToHorizontalBox},
};
}

FSlotRequest ReadSlotRequest(const FJsonObject& Slot)
{
	FSlotRequest Request;
	for (const auto& Field : Slot.Values)
	{
		for (const FSlotKey& SlotKey : SlotKeys)
		{
			if (IsSameKey(Field.Key, SlotKey.Key))
			{
				SlotKey.Read(Field.Value, Request);
				break;
			}
		}
	}
	return Request;
}

void AttachWidget(const TSharedRef<SWidget>& Parent, const TSharedRef<SWidget>& Child, const FSlotRequest& Request)
{
	const FString ParentType = Parent->GetType().ToString();
	for (const FPanel& Panel : Panels)
	{
		if (ParentType.Equals(Panel.Type, ESearchCase::CaseSensitive))
		{
			Panel.Attach(*Parent, Child, Request);
			return;
		}
	}
	UE_LOG(Velmora, Error, TEXT("AddToSlot missed shot: %s"), *ParentType);
}
