#include "WidgetFinder.h"

#include "Framework/Application/SlateApplication.h"
#include "Framework/Docking/TabManager.h"
#include "Types/ISlateMetaData.h"
#include "Widgets/Docking/SDockTab.h"
#include "Widgets/Input/SEditableText.h"
#include "Widgets/SWindow.h"
#include "Widgets/Text/SMultiLineEditableText.h"
#include "Widgets/Text/STextBlock.h"

namespace
{
/** Calls a function on a widget and all below it, parents first. */
template <typename FunctionType>
void Visit(SWidget& Widget, int32 Depth, FunctionType&& Function)
{
	Function(Widget, Depth);
	FChildren& Children = *Widget.GetChildren();
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		Visit(Children.GetChildRefAt(Index), Depth + 1, Function);
	}
}

/** By identifier or whole label, or by a beginning that only one label has. */
TSharedPtr<SDockTab> FindTab(const FString& Name)
{
	TArray<TSharedRef<SDockTab>> Beginning;
	for (const TSharedRef<SDockTab>& Tab : FGlobalTabmanager::Get()->GetLiveTabs())
	{
		const FString Label = Tab->GetTabLabel().ToString();
		if (Tab->GetLayoutIdentifier().ToString() == Name || Label.Equals(Name))
		{
			return Tab;
		}
		if (Label.StartsWith(Name))
		{
			Beginning.Add(Tab);
		}
	}
	return Beginning.Num() == 1 ? TSharedPtr<SDockTab>(Beginning[0]) : nullptr;
}

TSharedPtr<SWindow> FindWindowByTitle(const FString& Title)
{
	for (const TSharedRef<SWindow>& Window : FSlateApplication::Get().GetTopLevelWindows())
	{
		if (Window->GetTitle().ToString().Contains(Title))
		{
			return Window;
		}
	}
	return nullptr;
}

FName GetAkaName(const SWidget& Widget)
{
	const TSharedPtr<FTagMetaData> Tag = Widget.GetMetaData<FTagMetaData>();
	return Tag.IsValid() ? Tag->Tag : FName();
}

bool IsOfDescribedType(const SWidget& Widget, const FString& Type)
{
	if (Type.StartsWith(TEXT("#")))
	{
		return GetAkaName(Widget) == FName(*Type.Mid(1));
	}
	return Type.IsEmpty() || Widget.GetTypeAsString() == Type;
}

/** What the author of a description that nothing fits may have meant: what has a name, or what is of the type. */
FString SuggestOthers(const FWidgetDescription& Description)
{
	constexpr int32 MaxSuggestions = 12;

	const bool bByName = Description.Type.StartsWith(TEXT("#"));
	if (!bByName && Description.Type.IsEmpty())
	{
		return FString();
	}
	TArray<FString> Others;
	for (const TSharedRef<SWidget>& Widget :
		WidgetFinder::FindAll({Description.Tab, bByName ? FString() : Description.Type, FString(), 0}))
	{
		const FName Name = GetAkaName(*Widget);
		if (!bByName || !Name.IsNone())
		{
			Others.Add(bByName ? TEXT("#") + Name.ToString() : WidgetFinder::Describe(*Widget));
		}
	}
	if (Others.Num() > MaxSuggestions)
	{
		Others.SetNum(MaxSuggestions);
		Others.Add(TEXT("..."));
	}
	return Others.Num() > 0 ? TEXT("; there is ") + FString::Join(Others, TEXT(", ")) : FString();
}

/** The text of a widget that has one of its own. */
TOptional<FString> GetOwnText(SWidget& Widget)
{
	const FString Type = Widget.GetTypeAsString();
	if (Type == TEXT("STextBlock"))
	{
		return static_cast<STextBlock&>(Widget).GetText().ToString();
	}
	if (Type == TEXT("SEditableText"))
	{
		return static_cast<SEditableText&>(Widget).GetText().ToString();
	}
	if (Type == TEXT("SMultiLineEditableText"))
	{
		return static_cast<SMultiLineEditableText&>(Widget).GetText().ToString();
	}
	return TOptional<FString>();
}
}

FString FWidgetDescription::ToString() const
{
	FString Result = Type.IsEmpty() ? FString(TEXT("widget")) : Type;
	if (!Text.IsEmpty())
	{
		Result += FString::Printf(TEXT(" \"%s\""), *Text);
	}
	if (Index > 0)
	{
		Result += FString::Printf(TEXT(" number %d"), Index);
	}
	return Result + FString::Printf(TEXT(" in \"%s\""), *Tab);
}

TSharedPtr<SWidget> WidgetFinder::FindRoot(const FString& Tab)
{
	if (const TSharedPtr<SDockTab> Found = FindTab(Tab))
	{
		return Found->GetContent();
	}
	return FindWindowByTitle(Tab);
}

TSharedPtr<SWindow> WidgetFinder::FindWindow(const FString& Tab)
{
	const TSharedPtr<SDockTab> Found = FindTab(Tab);
	return Found.IsValid() ? Found->GetParentWindow() : FindWindowByTitle(Tab);
}

TArray<TSharedRef<SWidget>> WidgetFinder::FindAll(const FWidgetDescription& Description)
{
	TArray<TSharedRef<SWidget>> Result;
	if (const TSharedPtr<SWidget> Root = FindRoot(Description.Tab))
	{
		Visit(*Root, 0,
			[&](SWidget& Widget, int32)
			{
				if (IsOfDescribedType(Widget, Description.Type) &&
					(Description.Text.IsEmpty() || GetShownText(Widget).Equals(Description.Text)))
				{
					Result.Add(Widget.AsShared());
				}
			});
	}
	return Result;
}

TSharedPtr<SWidget> WidgetFinder::Find(const FWidgetDescription& Description, FString& OutError)
{
	if (!FindRoot(Description.Tab).IsValid())
	{
		TArray<FString> Names;
		for (const TSharedRef<SDockTab>& Tab : FGlobalTabmanager::Get()->GetLiveTabs())
		{
			Names.Add(TEXT("\"") + Tab->GetTabLabel().ToString() + TEXT("\""));
		}
		OutError = FString::Printf(TEXT("There is no tab and no window \"%s\". Open tabs: %s"), *Description.Tab,
			Names.Num() > 0 ? *FString::Join(Names, TEXT(", ")) : TEXT("none"));
		return nullptr;
	}
	const TArray<TSharedRef<SWidget>> All = FindAll(Description);
	if (!All.IsValidIndex(Description.Index))
	{
		OutError = FString::Printf(TEXT("There is no %s"), *Description.ToString());
		if (All.Num() > 0)
		{
			OutError += FString::Printf(TEXT("; they are numbered from 0 to %d"), All.Num() - 1);
		}
		else
		{
			OutError += SuggestOthers(Description);
		}
		return nullptr;
	}
	return All[Description.Index];
}

FString WidgetFinder::GetShownText(SWidget& Widget)
{
	FString Result;
	bool bFound = false;
	Visit(Widget, 0,
		[&](SWidget& Each, int32)
		{
			if (!bFound)
			{
				const TOptional<FString> Text = GetOwnText(Each);
				bFound = Text.IsSet() && (!Text.GetValue().IsEmpty() || &Each == &Widget);
				Result = bFound ? Text.GetValue() : FString();
			}
		});
	return Result;
}

FString WidgetFinder::Describe(SWidget& Widget)
{
	FString Result = Widget.GetTypeAsString();
	const FName Aka = GetAkaName(Widget);
	if (!Aka.IsNone())
	{
		Result += TEXT(" #") + Aka.ToString();
	}
	const FString Text = GetShownText(Widget);
	return Text.IsEmpty() ? Result : Result + FString::Printf(TEXT(" \"%s\""), *Text);
}

FString WidgetFinder::Dump(SWidget& Root)
{
	FString Result;
	Visit(Root, 0,
		[&](SWidget& Widget, int32 Depth)
		{
			const TOptional<FString> Text = GetOwnText(Widget);
			const FName Aka = GetAkaName(Widget);
			Result += FString::ChrN(Depth * 2, TEXT(' ')) + Widget.GetTypeAsString();
			Result += Aka.IsNone() ? FString() : TEXT(" #") + Aka.ToString();
			Result += Text.IsSet() ? TEXT(" \"") + Text.GetValue() + TEXT("\"") : FString();
			if (Widget.IsShownInFrame())
			{
				const FSlateRect Place = Widget.GetPaintSpaceGeometry().GetLayoutBoundingRect();
				Result += FString::Printf(TEXT(" %d,%d %dx%d"), FMath::RoundToInt(Place.Left), FMath::RoundToInt(Place.Top),
					FMath::RoundToInt(Place.Right - Place.Left), FMath::RoundToInt(Place.Bottom - Place.Top));
			}
			else
			{
				Result += TEXT(" (not shown)");
			}
			Result += TEXT("\n");
		});
	return Result;
}
