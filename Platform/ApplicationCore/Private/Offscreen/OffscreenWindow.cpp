#include "Offscreen/OffscreenWindow.h"

#include "Offscreen/OffscreenApplication.h"

namespace
{

int32 Limit(int32 Value, const TOptional<float>& Least, const TOptional<float>& Most)
{
	const int32 NotTooLarge = Most.IsSet() ? FMath::Min(Value, FMath::TruncToInt(Most.GetValue())) : Value;
	return FMath::Max(NotTooLarge, Least.IsSet() ? FMath::TruncToInt(Least.GetValue()) : 1);
}

}

void FOffscreenWindow::Initialize(const TSharedRef<FGenericWindowDefinition>& InDefinition)
{
	Definition = InDefinition;
	const FIntPoint Position(
		FMath::RoundToInt(InDefinition->XDesiredPositionOnScreen), FMath::RoundToInt(InDefinition->YDesiredPositionOnScreen));
	const FIntPoint Size(FMath::Max(FMath::RoundToInt(InDefinition->WidthDesiredOnScreen), 1),
		FMath::Max(FMath::RoundToInt(InDefinition->HeightDesiredOnScreen), 1));
	Rect = FIntRect(Position, Position + Size);
	RestoredRect = Rect;
}

void FOffscreenWindow::SetRect(const FIntRect& NewRect)
{
	const FIntRect OldRect = Rect;
	Rect = NewRect;
	if (!bMaximized && !bMinimized)
	{
		RestoredRect = NewRect;
	}
	if (NewRect.Min != OldRect.Min)
	{
		Application->Report(*this, &FGenericApplicationMessageHandler::OnMovedWindow, NewRect.Min.X, NewRect.Min.Y);
	}
	if (NewRect.Size() != OldRect.Size())
	{
		Application->Report(*this, &FGenericApplicationMessageHandler::OnSizeChanged, NewRect.Width(), NewRect.Height(), false);
	}
}

void FOffscreenWindow::ReshapeWindow(int32 X, int32 Y, int32 Width, int32 Height)
{
	const FWindowSizeLimits& Limits = Definition->SizeLimits;
	const FIntPoint Size(
		Limit(Width, Limits.GetMinWidth(), Limits.GetMaxWidth()), Limit(Height, Limits.GetMinHeight(), Limits.GetMaxHeight()));
	SetRect(FIntRect(FIntPoint(X, Y), FIntPoint(X, Y) + Size));
}

void FOffscreenWindow::MoveWindowTo(int32 X, int32 Y)
{
	SetRect(FIntRect(FIntPoint(X, Y), FIntPoint(X, Y) + Rect.Size()));
}

void FOffscreenWindow::BringToFront(bool bForce)
{
	Application->Activate(AsShared());
}

void FOffscreenWindow::Destroy()
{
	if (Application)
	{
		Application->Forget(*this);
		Application = nullptr;
	}
	bVisible = false;
}

void FOffscreenWindow::Minimize()
{
	bMinimized = true;
	Application->Deactivate(*this);
}

void FOffscreenWindow::Maximize()
{
	bMaximized = true;
	bMinimized = false;
	const FPlatformRect Area = Application->GetWorkArea(FPlatformRect());
	SetRect(FIntRect(Area.Left, Area.Top, Area.Right, Area.Bottom));
}

void FOffscreenWindow::Restore()
{
	// A minimised window comes back as it was, maximised perhaps.
	if (bMinimized)
	{
		bMinimized = false;
		return;
	}
	bMaximized = false;
	SetRect(RestoredRect);
}

void FOffscreenWindow::Show()
{
	bVisible = true;
	const bool bFirst = !bWasShown;
	bWasShown = true;
	const EWindowActivationPolicy Policy = Definition->ActivationPolicy;
	const bool bActivates = Definition->AcceptsInput &&
		(Policy == EWindowActivationPolicy::Always || (Policy == EWindowActivationPolicy::FirstShown && bFirst));
	if (bActivates)
	{
		Application->Activate(AsShared());
	}
}

void FOffscreenWindow::Hide()
{
	bVisible = false;
	Application->Deactivate(*this);
}

bool FOffscreenWindow::GetRestoredDimensions(int32& X, int32& Y, int32& Width, int32& Height)
{
	X = RestoredRect.Min.X;
	Y = RestoredRect.Min.Y;
	Width = RestoredRect.Width();
	Height = RestoredRect.Height();
	return true;
}

void FOffscreenWindow::SetWindowFocus()
{
	Application->Activate(AsShared());
}

bool FOffscreenWindow::IsPointInWindow(int32 X, int32 Y) const
{
	return X >= 0 && Y >= 0 && X < Rect.Width() && Y < Rect.Height();
}

bool FOffscreenWindow::IsForegroundWindow() const
{
	return Application && Application->IsActive(*this);
}
