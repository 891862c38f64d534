#pragma once

#include "CoreMinimal.h"
#include "Layout/ArrangedWidget.h"
#include "Layout/Visibility.h"

/** What a parent fills in OnArrangeChildren: its children in paint order, those that pass the visibility filter. */
class FArrangedChildren
{
public:
	explicit FArrangedChildren(EVisibility InVisibilityFilter)
		: VisibilityFilter(InVisibilityFilter)
	{
	}

	void AddWidget(const FArrangedWidget& InWidgetGeometry) { Array.Add(InWidgetGeometry); }

	void AddWidget(EVisibility VisibilityOverride, const FArrangedWidget& InWidgetGeometry)
	{
		if (Accepts(VisibilityOverride))
		{
			Array.Add(InWidgetGeometry);
		}
	}

	bool Accepts(EVisibility InVisibility) const { return EVisibility::DoesVisibilityPassFilter(InVisibility, VisibilityFilter); }
	EVisibility GetFilter() const { return VisibilityFilter; }

	int32 Num() const { return Array.Num(); }
	FArrangedWidget& operator[](int32 Index) { return Array[Index]; }
	const FArrangedWidget& operator[](int32 Index) const { return Array[Index]; }

	/** Empties the list and keeps its memory for the next arrangement. */
	void Reset() { Array.Reset(); }

private:
	EVisibility VisibilityFilter;
	TArray<FArrangedWidget> Array;
};
