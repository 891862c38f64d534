#pragma once

#include "CoreMinimal.h"
#include "Widgets/SWidget.h"

class SBorder;
struct FSlateBrush;

/** Builds the widget of a root object, e.g. R"({ "SBox": {} })", as the generator does for a file. */
TSharedRef<SWidget> BuildTree(const char* RootObject);

/** The types of a tree, e.g. "SVerticalBox[SBox[STextBlock] SBorder]". Null widgets are left out. */
FString Outline(const TSharedRef<SWidget>& Widget);

/** A child in the order of painting. */
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

/** A widget as the class it is known to be. */
template <typename T>
TSharedRef<T> As(const TSharedRef<SWidget>& Widget)
{
	return StaticCastSharedRef<T>(Widget);
}
