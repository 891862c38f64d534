#include "Velmora/WidgetTree.h"

#include "Layout/ArrangedChildren.h"
#include "Velmora/JsonText.h"
#include "Velmora/VelmoraGenerator.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/SNullWidget.h"

#include <gtest/gtest.h>

TSharedRef<SWidget> BuildTree(const char* RootObject)
{
	const TSharedPtr<FJsonObject> Root = JsonObject(RootObject);
	if (!Root.IsValid() || Root->Values.Num() == 0)
	{
		ADD_FAILURE() << "no root object: " << RootObject;
		return SNullWidget::NullWidget;
	}
	const auto First = Root->Values.CreateConstIterator();
	return Build(First.Key(), First.Value(), SNew(SBorder), 0, TEXT("/"), nullptr);
}

FString Outline(const TSharedRef<SWidget>& Widget)
{
	TArray<FString> Children;
	for (int32 Index = 0; Index < Widget->GetChildren()->Num(); ++Index)
	{
		const TSharedRef<SWidget> Child = ChildOf(Widget, Index);
		if (Child != SNullWidget::NullWidget)
		{
			Children.Add(Outline(Child));
		}
	}
	const FString Type = Widget->GetType().ToString();
	return Children.Num() > 0 ? Type + TEXT("[") + FString::Join(Children, TEXT(" ")) + TEXT("]") : Type;
}

TSharedRef<SWidget> ChildOf(const TSharedRef<SWidget>& Parent, int32 Index)
{
	const int32 NumChildren = Parent->GetChildren()->Num();
	if (Index >= NumChildren)
	{
		ADD_FAILURE() << TCHAR_TO_UTF8(*Outline(Parent)) << " has no child " << Index;
		return SNullWidget::NullWidget;
	}
	return Parent->GetChildren()->GetChildAt(Index);
}

void ReportWrongType(const TSharedRef<SWidget>& Widget, const FString& ExpectedType)
{
	ADD_FAILURE() << "expected " << TCHAR_TO_UTF8(*ExpectedType) << ", found " << TCHAR_TO_UTF8(*Outline(Widget));
}

FChildRect ArrangeChild(const TSharedRef<SWidget>& Parent, const FVector2D& ParentSize, int32 Index)
{
	Parent->SlatePrepass(1.0f);
	FArrangedChildren Arranged(EVisibility::Visible);
	Parent->ArrangeChildren(FGeometry::MakeRoot(ParentSize, FSlateLayoutTransform()), Arranged);
	if (Index >= Arranged.Num())
	{
		ADD_FAILURE() << TCHAR_TO_UTF8(*Outline(Parent)) << " arranges no child " << Index;
		return {};
	}
	const FGeometry& Geometry = Arranged[Index].Geometry;
	return {FVector2D(Geometry.GetAbsolutePosition()), Geometry.GetLocalSize()};
}

const FSlateBrush* BorderImageOf(const TSharedRef<SBorder>& Border)
{
	struct FLook : SBorder
	{
		static const FSlateBrush* Of(const SBorder& Border) { return (Border.*&FLook::GetBorder)(); }
	};
	return FLook::Of(*Border);
}
