#pragma once

#include "CoreMinimal.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SWidget.h"

class SBorder;
struct FSlateBrush;

/** Builds the widget of a root object, e.g. R"({ "SBox": {} })", as the generator does for a file. */
TSharedRef<SWidget> BuildTree(const char* RootObject);

/** The types of a tree, e.g. "SVerticalBox[SBox[STextBlock] SBorder]". Null widgets are left out. */
FString Outline(const TSharedRef<SWidget>& Widget);

/** A child in the order of painting. One that is not there fails the test, which goes on with the null widget. */
TSharedRef<SWidget> ChildOf(const TSharedRef<SWidget>& Parent, int32 Index = 0);

/** Where a parent of a given size puts a child, in its own space: left, top, width, height. */
struct FChildRect
{
	FVector2D Position;
	FVector2D Size;
};
FChildRect ArrangeChild(const TSharedRef<SWidget>& Parent, const FVector2D& ParentSize, int32 Index = 0);

/** The brush that a border was given. */
const FSlateBrush* BorderImageOf(const TSharedRef<SBorder>& Border);

/** The name of a class as SNew spells it: the T of this function's own name. */
template <typename T>
FString TypeTextOf()
{
	const FString Function = UTF8_TO_TCHAR(__PRETTY_FUNCTION__);
	return Function.RightChop(Function.Find(TEXT("[T = ")) + 5).LeftChop(1);
}

/** Fails the test that is running. */
void ReportWrongType(const TSharedRef<SWidget>& Widget, const FString& ExpectedType);

/** A widget as the class that SNew was told; another one fails the test. */
template <typename T>
TSharedRef<T> As(const TSharedRef<SWidget>& Widget)
{
	const FString Type = TypeTextOf<T>();
	if (Widget->GetType().ToString() == Type)
	{
		return StaticCastSharedRef<T>(Widget);
	}
	ReportWrongType(Widget, Type);
	return SNew(T);
}
