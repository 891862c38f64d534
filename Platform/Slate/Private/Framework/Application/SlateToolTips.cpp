#include "Framework/Application/SlateToolTips.h"

#include "Widgets/SWindow.h"

namespace
{
/** Seconds that the mouse rests before a tool tip appears. */
constexpr double Delay = 0.4;

/** From the tip of the cursor, in pixels. */
const FVector2D CursorOffset(12.0, 20.0);

/** Slate units between the tip of the cursor and a tool tip above it. */
constexpr double GapAbove = 6.0;

/** Slate units between a tool tip and the edge of its window. */
constexpr double EdgeGap = 4.0;

TSharedPtr<IToolTip> FindToolTip(const FWidgetPath& Path)
{
	for (int32 Index = Path.Widgets.Num() - 1; Index >= 0; --Index)
	{
		const TSharedPtr<IToolTip> ToolTip = Path.Widgets[Index].Widget->GetToolTip();
		if (ToolTip.IsValid() && !ToolTip->IsEmpty())
		{
			return ToolTip;
		}
	}
	return nullptr;
}
}

void FSlateToolTips::OnHover(const FWidgetPath& Path, const FVector2D& InCursorPosition, double CurrentTime)
{
	const TSharedPtr<IToolTip> Found = FindToolTip(Path);
	if (Found != Wanted)
	{
		Close();
		Wanted = Found;
		Window = Path.TopLevelWindow;
		ShowTime = CurrentTime + Delay;
		bDismissed = false;
	}
	CursorPosition = InCursorPosition;
}

double FSlateToolTips::GetNextCallTime() const
{
	return Wanted.IsValid() && !bShown && !bDismissed ? ShowTime : 1e300;
}

void FSlateToolTips::Tick(double CurrentTime)
{
	if (CurrentTime >= GetNextCallTime())
	{
		Show();
	}
}

void FSlateToolTips::Show()
{
	const TSharedPtr<SWindow> Host = Window.Pin();
	if (!Host.IsValid())
	{
		Wanted.Reset();
		return;
	}
	const TSharedRef<SWidget> Tip = Wanted->AsWidget();
	const float Scale = Host->GetDPIScaleFactor();
	const FVector2D HostSize = Host->GetSizeInScreen() / Scale;
	Wanted->LimitWidth(static_cast<float>(HostSize.X - 2.0 * EdgeGap));
	Tip->SlatePrepass(Scale);
	const FVector2D TipSize = Tip->GetDesiredSize();
	const FVector2D Room = HostSize - TipSize - FVector2D(EdgeGap, EdgeGap);
	const FVector2D Cursor = (CursorPosition - Host->GetPositionInScreen()) / Scale;
	FVector2D Place = Cursor + CursorOffset / Scale;
	if (Place.Y > Room.Y)
	{
		// Moved up just into the window, it would lie under the cursor.
		Place.Y = Cursor.Y - GapAbove - TipSize.Y;
	}
	Host->AddPopup(
		Tip, FVector2D(FMath::Max(FMath::Min(Place.X, Room.X), EdgeGap), FMath::Max(FMath::Min(Place.Y, Room.Y), EdgeGap)));
	bShown = true;
}

void FSlateToolTips::Hide()
{
	if (bShown)
	{
		if (const TSharedPtr<SWindow> Host = Window.Pin())
		{
			Host->RemovePopup(Wanted->AsWidget());
		}
	}
	bShown = false;
}

void FSlateToolTips::Dismiss()
{
	Hide();
	bDismissed = true;
}

void FSlateToolTips::Close()
{
	Hide();
	Wanted.Reset();
}
