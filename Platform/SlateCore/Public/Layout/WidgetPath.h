#pragma once

#include "CoreMinimal.h"
#include "Layout/ArrangedWidget.h"

class SWindow;

/** The widgets from a window down to one of its descendants, with their places on the desktop. Holds references. */
class SLATECORE_API FWidgetPath
{
public:
	FWidgetPath() = default;
	FWidgetPath(const TSharedRef<SWindow>& InTopLevelWindow, TArray<FArrangedWidget> InWidgets)
		: Widgets(MoveTemp(InWidgets))
		, TopLevelWindow(InTopLevelWindow)
	{
	}

	/** The path from the widget's window down to it; invalid when no window shows it. */
	static FWidgetPath To(const TSharedRef<const SWidget>& Widget);

	bool IsValid() const { return Widgets.Num() > 0; }
	bool ContainsWidget(const SWidget* Widget) const;
	const TSharedRef<SWidget>& GetLastWidget() const { return Widgets.Last().Widget; }
	TSharedRef<SWindow> GetWindow() const { return TopLevelWindow.ToSharedRef(); }

	/** From the window to the leaf. */
	TArray<FArrangedWidget> Widgets;

	TSharedPtr<SWindow> TopLevelWindow;
};

/** The same without references: what is left of it is found by ToWidgetPath. */
class SLATECORE_API FWeakWidgetPath
{
public:
	FWeakWidgetPath() = default;
	FWeakWidgetPath(const FWidgetPath& Path);

	bool IsValid() const { return Widgets.Num() > 0; }
	bool ContainsWidget(const SWidget* Widget) const;
	TWeakPtr<SWidget> GetLastWidget() const { return Widgets.Num() > 0 ? Widgets.Last() : nullptr; }

	/** The path as far down as its widgets still live and hang together. */
	FWidgetPath ToWidgetPath() const;

	TArray<TWeakPtr<SWidget>> Widgets;
};
