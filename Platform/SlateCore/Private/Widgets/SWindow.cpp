#include "Widgets/SWindow.h"

#include "Application/SlateApplicationBase.h"
#include "Rendering/DrawElements.h"
#include "Rendering/SlateRenderer.h"
#include "Styling/AppStyle.h"
#include "Styling/WidgetStyle.h"
#include "Types/PaintArgs.h"

DEFINE_LOG_CATEGORY_STATIC(LogSlateWindow, Log, All);

namespace
{
/** The pixels of a larger window would not fit into a picture, and hardly into memory. */
constexpr double MaxSide = 16384.0;

/** What is no number counts as nothing. */
double LimitSide(double Side)
{
	return Side >= 1.0 ? FMath::Min(Side, MaxSide) : 1.0;
}

FVector2D LimitSize(const FVector2D& Size)
{
	const FVector2D Limited(LimitSide(Size.X), LimitSide(Size.Y));
	if (Size.X > MaxSide || Size.Y > MaxSide)
	{
		UE_LOG(LogSlateWindow, Warning, TEXT("A window of %.0f x %.0f is too large; %.0f x %.0f is used."), Size.X, Size.Y,
			Limited.X, Limited.Y);
	}
	return Limited;
}
}

SWindow::SWindow()
{
	SetCanTick(false);
	SetClipping(EWidgetClipping::ClipToBounds);
}

SWindow::~SWindow() = default;

void SWindow::Construct(const FArguments& InArgs)
{
	Title.Assign(*this, InArgs._Title);
	AutoCenter = InArgs._AutoCenter;
	ScreenPosition = InArgs._ScreenPosition;
	Size = LimitSize(InArgs._ClientSize);
	MinWidth = InArgs._MinWidth;
	MinHeight = InArgs._MinHeight;
	bSupportsMaximize = InArgs._SupportsMaximize;
	bSupportsMinimize = InArgs._SupportsMinimize;
	bSaneWindowPlacement = InArgs._SaneWindowPlacement;

	SAssignNew(Layers, SOverlay) + SOverlay::Slot().Expose(ContentSlot)[InArgs._Content];
	ChildSlot[Layers.ToSharedRef()];
}

FGenericWindowDefinition SWindow::MakeDefinition(const FPlatformRect& WorkArea) const
{
	const FVector2D AreaStart(WorkArea.Left, WorkArea.Top);
	const FVector2D AreaSize(WorkArea.Right - WorkArea.Left, WorkArea.Bottom - WorkArea.Top);
	FVector2D Position = ScreenPosition;
	FVector2D SizeOnScreen = Size;
	if (AutoCenter == EAutoCenter::PrimaryWorkArea)
	{
		Position = AreaStart + (AreaSize - Size) / 2.0;
	}
	else if (bSaneWindowPlacement)
	{
		SizeOnScreen = FVector2D(FMath::Min(Size.X, AreaSize.X), FMath::Min(Size.Y, AreaSize.Y));
		const FVector2D LastPosition = AreaStart + AreaSize - SizeOnScreen;
		Position = FVector2D(FMath::Clamp(ScreenPosition.X, AreaStart.X, LastPosition.X),
			FMath::Clamp(ScreenPosition.Y, AreaStart.Y, LastPosition.Y));
	}

	FGenericWindowDefinition Definition;
	Definition.XDesiredPositionOnScreen = Position.X;
	Definition.YDesiredPositionOnScreen = Position.Y;
	Definition.WidthDesiredOnScreen = SizeOnScreen.X;
	Definition.HeightDesiredOnScreen = SizeOnScreen.Y;
	Definition.HasOSWindowBorder = true;
	Definition.HasSizingFrame = true;
	Definition.SupportsMaximize = bSupportsMaximize;
	Definition.SupportsMinimize = bSupportsMinimize;
	Definition.SizeLimits.SetMinWidth(MinWidth).SetMinHeight(MinHeight);
	Definition.Title = Title.Get().ToString();
	return Definition;
}

void SWindow::SetTitle(const FText& InTitle)
{
	Title.Set(*this, InTitle);
	if (NativeWindow.IsValid())
	{
		NativeWindow->SetText(*InTitle.ToString());
	}
}

void SWindow::SetContent(const TSharedRef<SWidget>& InContent)
{
	ContentSlot->AttachWidget(InContent);
}

void SWindow::MoveWindowTo(FVector2D NewPosition)
{
	ScreenPosition = NewPosition;
	if (NativeWindow.IsValid())
	{
		NativeWindow->MoveWindowTo(FMath::RoundToInt32(NewPosition.X), FMath::RoundToInt32(NewPosition.Y));
	}
}

void SWindow::Resize(FVector2D NewClientSize)
{
	const FVector2D NewSize = LimitSize(NewClientSize);
	if (NativeWindow.IsValid())
	{
		NativeWindow->ReshapeWindow(FMath::RoundToInt32(ScreenPosition.X), FMath::RoundToInt32(ScreenPosition.Y),
			FMath::RoundToInt32(NewSize.X), FMath::RoundToInt32(NewSize.Y));
	}
	SetCachedSize(NewSize);
}

void SWindow::SetCachedSize(FVector2D InSize)
{
	const FVector2D NewSize = LimitSize(InSize);
	if (NewSize == Size)
	{
		return;
	}
	Size = NewSize;
	bSizeChanged = true;
	FSlateApplicationBase::Get().GetRenderer()->RequestResize(
		this, FIntPoint(FMath::RoundToInt32(Size.X), FMath::RoundToInt32(Size.Y)));
	DamageAll();
}

float SWindow::GetDPIScaleFactor() const
{
	return NativeWindow.IsValid() ? NativeWindow->GetDPIScaleFactor() : 1.0f;
}

void SWindow::ShowWindow()
{
	bShown = true;
	DamageAll();
	if (NativeWindow.IsValid())
	{
		NativeWindow->Show();
	}
}

void SWindow::HideWindow()
{
	bShown = false;
	if (NativeWindow.IsValid())
	{
		NativeWindow->Hide();
	}
}

void SWindow::BringToFront(bool bForce)
{
	if (NativeWindow.IsValid())
	{
		NativeWindow->BringToFront(bForce);
	}
}

void SWindow::RequestDestroyWindow()
{
	const TSharedRef<SWindow> Me = SharedThis(this);
	if (RequestDestroyOverride.IsBound())
	{
		RequestDestroyOverride.Execute(Me);
	}
	else
	{
		FSlateApplicationBase::Get().RequestDestroyWindow(Me);
	}
}

void SWindow::NotifyWindowBeingDestroyed()
{
	OnWindowClosed.ExecuteIfBound(SharedThis(this));
	bShown = false;
}

void SWindow::AddPopup(const TSharedRef<SWidget>& Popup, const FVector2D& LocalPosition)
{
	Layers->AddSlot()
		.HAlign(HAlign_Left)
		.VAlign(VAlign_Top)
		.Padding(FMargin(LocalPosition.X, LocalPosition.Y, 0.0f, 0.0f))[Popup];
}

void SWindow::RemovePopup(const TSharedRef<SWidget>& Popup)
{
	Layers->RemoveSlot(Popup);
}

void SWindow::DamageAll()
{
	Damage.Add(FSlateRect(0.0f, 0.0f, Size.X, Size.Y));
}

void SWindow::UpdateLayout()
{
	bSizeChanged = false;
	const float Scale = GetDPIScaleFactor();
	SlatePrepass(Scale);
	UpdateArrangement(
		FGeometry::MakeRoot(Size / Scale, FSlateLayoutTransform(Scale)), FSlateRect(0.0f, 0.0f, Size.X, Size.Y), Damage);
}

void SWindow::PaintWindow(double CurrentTime, float DeltaTime, FSlateWindowElementList& OutDrawElements)
{
	const FSlateDamage PaintedDamage = MoveTemp(Damage);
	Damage.Reset();
	for (const FSlateRect& Rect : PaintedDamage.GetRects())
	{
		OutDrawElements.AddDamage(Rect);
	}
	FWidgetStyle Style;
	Style.SetForegroundColor(FAppStyle::Get().GetSlateColor("DefaultForeground"));
	const FSlateBrush& Background = *FAppStyle::Get().GetBrush("Window.Background");
	FSlateDrawElement::MakeBox(OutDrawElements, 0, GetPaintSpaceGeometry().ToPaintGeometry(), &Background, ESlateDrawEffect::None,
		Background.GetTint(Style));
	const FPaintArgs Args(nullptr, PaintedDamage, CurrentTime, DeltaTime);
	Paint(Args, GetPaintSpaceGeometry(), FSlateRect(0.0f, 0.0f, Size.X, Size.Y), OutDrawElements, 1, Style, true);
}
