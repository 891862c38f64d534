#include "Framework/Application/SlateRoutingScope.h"

#include "Framework/Docking/TabManager.h"
#include "Types/ISlateMetaData.h"
#include "Widgets/Docking/SDockTab.h"
#include "Widgets/Text/STextBlock.h"

namespace
{
const FName TextBlockType(TEXT("STextBlock"));

/** The first text that shows within a widget, itself included. */
FString FindShownText(SWidget& Widget)
{
	if (Widget.GetType() == TextBlockType)
	{
		return static_cast<STextBlock&>(Widget).GetText().ToString();
	}
	FChildren& Children = *Widget.GetChildren();
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		const FString Text = FindShownText(Children.GetChildRefAt(Index));
		if (!Text.IsEmpty())
		{
			return Text;
		}
	}
	return FString();
}

/** The name that scripts know the widget by, or else the nearest one around it. */
FString FindTag(const TSharedRef<SWidget>& Widget)
{
	for (TSharedPtr<SWidget> Each = Widget; Each.IsValid(); Each = Each->GetParentWidget())
	{
		if (const TSharedPtr<FTagMetaData> Tag = Each->GetMetaData<FTagMetaData>())
		{
			return (Each == Widget ? TEXT(" #") : TEXT(" in #")) + Tag->Tag.ToString();
		}
	}
	return FString();
}
}

FString SlateEventText::Describe(const FRoutedEvent& Event)
{
	FString Text = FString::Printf(TEXT("%s on %s"), Event.Kind, *Event.Widget->GetTypeAsString());
	const FString Shown = FindShownText(Event.Widget.Get());
	if (!Shown.IsEmpty())
	{
		Text += FString::Printf(TEXT(" \"%s\""), *Shown);
	}
	Text += FindTag(Event.Widget);
	if (const TSharedPtr<SDockTab> Tab = FGlobalTabmanager::Get()->FindTabOfContent(Event.Widget))
	{
		Text += FString::Printf(TEXT(" in tab \"%s\""), *Tab->GetTabLabel().ToString());
	}
	return Text;
}
