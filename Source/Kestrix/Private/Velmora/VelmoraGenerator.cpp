#include "Velmora/VelmoraGenerator.h"

#include "Dom/JsonObject.h"
#include "KestrixLog.h"
#include "Misc/Paths.h"
#include "NameOfText.h"
#include "Types/ISlateMetaData.h"
#include "Velmora/Builders/WidgetBuilders.h"
#include "Velmora/Decorators.h"
#include "Velmora/KeyTables.h"
#include "Velmora/SVelmoraWidget.h"
#include "Velmora/SlotAttachment.h"
#include "Velmora/ToolDescription.h"
#include "Velmora/VelmoraData.h"
#include "Velmora/WidgetContent.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/Text/STextBlock.h"

bool bLogCreateWidget = false;

namespace
{
/** Widgets within each other. Walk, layout and painting recurse, and the engine's main thread has a stack of 12 MB. */
constexpr int32 MaxNestedWidgets = 1000;

/** A widget's own fields are one level below it, its children two. */
constexpr int32 DepthPerWidget = 2;

/** Whether the tree that is being built has said that it goes too deep. */
bool bDepthReported = false;

/** What a field is handled in: everything of a call of Build but the field itself. */
struct FWalk
{
	TSharedRef<SWidget> Parent;
	int32 Depth;
	const FString& Path;
	SVelmoraWidget* Context;

	FString ParentType() const { return Parent->GetType().ToString(); }
	FString Indent() const { return GetIndent(Depth); }
};

/** Records the widget under its Aka name, by which scripts find it, and tags it with the name. */
void ApplyAka(const FString& Key, const TSharedPtr<FJsonValue>& Value, const FWalk& Walk)
{
	if (!Value.IsValid())
	{
		return;
	}
	if (Value->Type != EJson::String)
	{
		UE_LOG(Velmora, Error, TEXT("IsID: %s @Path %s"), *Key, *Walk.Path);
		return;
	}
	const FName AkaName = NameOfText(Value->AsString());
	Walk.Parent->AddMetadata(MakeShared<FTagMetaData>(AkaName));
	if (Walk.Context != nullptr && Walk.Context->DataObj != nullptr)
	{
		Walk.Context->DataObj->AddNamedWidget(AkaName, Walk.Path, Walk.Parent);
	}
}

/** Builds the fields of one element of "Slots" and attaches the first widget among them. */
void BuildSlot(const FJsonObject& Slot, const FWalk& Walk, const FString& ChildPath)
{
	const FSlotRequest Request = ReadSlotRequest(Slot);
	bool bAttached = false;
	for (const auto& Field : Slot.Values)
	{
		const TSharedRef<SWidget> Child = Build(Field.Key, Field.Value, Walk.Parent, Walk.Depth + 1, ChildPath, Walk.Context);
		if (Child == Walk.Parent || bAttached || Field.Value->Type != EJson::Object)
		{
			continue;
		}
		UE_CLOG(bLogCreateWidget, Velmora, Log, TEXT("%sAddSlot: %s -> %s"), *Walk.Indent(), *Field.Key, *Walk.ParentType());
		AttachWidget(Walk.Parent, Child, Request);
		bAttached = true;
	}
}

void BuildSlots(const FString& Key, const TSharedPtr<FJsonValue>& Value, const FWalk& Walk)
{
	const FString SlotsPath = Walk.Path / TEXT("Slots");
	UE_CLOG(bLogCreateWidget, Velmora, Log, TEXT("%sIsSlots: %s"), *Walk.Indent(), *Key);
	if (!Value.IsValid())
	{
		return;
	}
	const TArray<TSharedPtr<FJsonValue>>* Elements = nullptr;
	if (!Value->TryGetArray(Elements))
	{
		UE_LOG(Velmora, Log, TEXT("%sSlots Should be Array Type, KeyName: %s  parent: %s"), *Walk.Indent(), *Key,
			*Walk.ParentType());
		return;
	}
	for (int32 Index = 0; Index < Elements->Num(); ++Index)
	{
		const TSharedPtr<FJsonObject>* Slot = nullptr;
		if (!(*Elements)[Index]->TryGetObject(Slot))
		{
			UE_LOG(Velmora, Log, TEXT("%sSlots Element should be Object Type, KeyName: %s  parent: %s"), *Walk.Indent(), *Key,
				*Walk.ParentType());
			continue;
		}
		BuildSlot(**Slot, Walk, FString::Printf(TEXT("%s_%d"), *SlotsPath, Index));
	}
}

/** A content widget takes its one child from the object; a second replaces the first, and a third is not looked at. */
void BuildContentFields(const FString& Key, const FJsonObject& Content, const FWalk& Walk, const FString& ContentPath)
{
	constexpr int32 FieldLimit = 2;

	int32 NumFields = 0;
	for (const auto& Field : Content.Values)
	{
		const TSharedRef<SWidget> Child = Build(Field.Key, Field.Value, Walk.Parent, Walk.Depth + 1, ContentPath, Walk.Context);
		if (Child != Walk.Parent)
		{
			SetContent(Child, Walk.Parent);
		}
		else
		{
			UE_LOG(Velmora, Warning,
				TEXT("%sAdd Behavior Error, Parent == ContentWidget. Make sure \"Content\" has only one child. KeyName: %s  "
					 "parent: %s, path: %s"),
				*Walk.Indent(), *Key, *Walk.ParentType(), *ContentPath);
		}
		if (++NumFields == FieldLimit)
		{
			return;
		}
	}
}

void BuildContent(const FString& Key, const TSharedPtr<FJsonValue>& Value, const FWalk& Walk)
{
	if (!Value.IsValid())
	{
		return;
	}
	const TSharedPtr<FJsonObject>* Content = nullptr;
	if (!Value->TryGetObject(Content))
	{
		UE_LOG(Velmora, Log, TEXT("%sIsBehavior Should be object Type, KeyName: %s  parent: %s"), *Walk.Indent(), *Key,
			*Walk.ParentType());
		return;
	}

	// The path decides, not the widget: within a slot the last component is that of the slot.
	if (IsContentWidget(FPaths::GetCleanFilename(Walk.Path)))
	{
		BuildContentFields(Key, **Content, Walk, Walk.Path / TEXT("Content"));
		return;
	}

	// The builder of a drop target reads its content itself.
	if (IsSameKey(Walk.ParentType(), TEXT("SDropTarget")))
	{
		return;
	}
	for (int32 Index = 0; Index < (*Content)->Values.Num(); ++Index)
	{
		UE_LOG(Velmora, Log, TEXT("%sSkip Content, KeyName: %s  parent: %s"), *Walk.Indent(), *Key, *Walk.ParentType());
	}
}

/** Makes a widget and hands every field of its object to the walk, those that its builder has read included. */
TSharedRef<SWidget> BuildWidget(const FString& Key, const TSharedPtr<FJsonValue>& Value, const FWalk& Walk)
{
	const TSharedPtr<FJsonObject>* Object = nullptr;
	if (!Value.IsValid() || !Value->TryGetObject(Object))
	{
		UE_LOG(Velmora, Warning, TEXT("%sSlate %s 's Value Type should be EJson::Object"), *Walk.Indent(), *Key);
		return Walk.Parent;
	}
	if (Walk.Depth >= MaxNestedWidgets * DepthPerWidget)
	{
		UE_CLOG(!bDepthReported, Velmora, Error,
			TEXT("%s: a tool has at most %d widgets within each other, what lies deeper is left out"),
			Walk.Context != nullptr ? *Walk.Context->JsonPath : TEXT(""), MaxNestedWidgets);
		bDepthReported = true;
		return Walk.Parent;
	}
	const TSharedPtr<SWidget> Widget = RunWidgetBuilder(Key, {*Object, Walk.Parent, Walk.Depth, Walk.Path, Walk.Context});
	if (!Widget.IsValid())
	{
		return Walk.Parent;
	}

	const TSharedRef<SWidget> Result = Widget.ToSharedRef();
	const FString WidgetPath = Walk.Path / Result->GetType().ToString();
	for (const auto& Field : (*Object)->Values)
	{
		Build(Field.Key, Field.Value, Result, Walk.Depth + 1, WidgetPath, Walk.Context);
	}
	return Result;
}

/** A key that nobody knows draws a warning, unless the widget's builder has read it. */
void CheckUnknownKey(const FString& Key, const FWalk& Walk)
{
	const FString ParentType = Walk.ParentType();
	if (InbornDecorate(ParentType, Key))
	{
		UE_CLOG(bLogCreateWidget, Velmora, Log, TEXT("InbornDecorate: %s @ %s regard as handled.."), *Key, *ParentType);
		return;
	}
	UE_LOG(Velmora, Warning, TEXT("%sNot Supported KeyName: %s @ %s"), *Walk.Indent(), *Key, *ParentType);
}
}

TSharedRef<SWidget> GenerateWidgetFromFile(const FString& FilePath, const FString& RootKey, SVelmoraWidget* Context)
{
	FString Error;
	const TSharedPtr<FJsonObject> Description = LoadJsonFile(FilePath, Error);
	if (!Description.IsValid())
	{
		return MakeErrorWidget(Error);
	}
	const TSharedPtr<FJsonObject>* Root = nullptr;
	if (!Description->TryGetObjectField(RootKey, Root) || (*Root)->Values.Num() == 0)
	{
		return MakeErrorWidget(TEXT("No Widget"));
	}

	const TGuardValue<bool> DepthGuard(bDepthReported, false);

	// The fields of a description belong to a widget; those of the root belong to one that nobody sees.
	const auto First = (*Root)->Values.CreateConstIterator();
	return Build(First.Key(), First.Value(), SNew(SBorder), 0, TEXT("/"), Context);
}

TSharedRef<SWidget> Build(const FString& Key, TSharedPtr<FJsonValue> Value, TSharedRef<SWidget> Parent, int32 Depth,
	const FString& Path, SVelmoraWidget* Context)
{
	const FWalk Walk = {Parent, Depth, Path, Context};
	UE_CLOG(bLogCreateWidget, Velmora, Log, TEXT("%sBuild call FieldName: %s  parent: %s   : %s"), *Walk.Indent(), *Key,
		*Walk.ParentType(), *Path);

	if (IsBehaviorKey(Key))
	{
		Decorate(Parent, Key, Value, Path);
	}
	else if (IsAkaKey(Key))
	{
		ApplyAka(Key, Value, Walk);
	}
	else if (IsSlotsKey(Key))
	{
		BuildSlots(Key, Value, Walk);
	}
	else if (IsContentKey(Key))
	{
		BuildContent(Key, Value, Walk);
	}
	else if (IsWidgetTypeKey(Key))
	{
		return BuildWidget(Key, Value, Walk);
	}
	else
	{
		CheckUnknownKey(Key, Walk);
	}
	return Parent;
}

TSharedRef<SWidget> MakeErrorWidget(const FString& Message)
{
	// clang-format off
	return SNew(SVerticalBox)
		+ SVerticalBox::Slot()
		.Padding(4.0f)
		[
			SNew(STextBlock)
			.Text(FText::FromString(Message))
		];
	// clang-format on
}

FString GetIndent(int32 Depth)
{
	return FString::ChrN(FMath::Max(Depth, 0), TEXT('\t'));
}
