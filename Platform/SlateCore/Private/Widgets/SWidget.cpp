#include "Widgets/SWidget.h"

#include "Application/ActiveTimerHandle.h"
#include "Application/FrameCalledWidgets.h"
#include "Application/SlateApplicationBase.h"
#include "Rendering/SlateDamage.h"
#include "Types/SlateNamedArgs.h"
#include "Widgets/SWindow.h"
#include "Widgets/SlateWidgetExtras.h"

SWidget::SWidget()
	: bNeedsPrepass(true)
	, bNeedsArrange(true)
	, bDescendantNeedsArrange(false)
	, bArranged(false)
	, bCanTick(true)
	, bCalledInFrames(false)
	, bIsHovered(false)
{
}

SWidget::~SWidget()
{
	if (ParentWidget)
	{
		ParentWidget->VisibleChildren.Remove(this);
	}
	if (bCalledInFrames)
	{
		FFrameCalledWidgets::Get().Remove(*this);
	}
}

const FSlateWidgetClassData& SWidget::StaticWidgetClass()
{
	static const FSlateWidgetClassData WidgetClassData(TEXT("SWidget"));
	return WidgetClassData;
}

void SWidget::SWidgetConstruct(const FSlateBaseNamedArgs& Args)
{
	UpdateFrameCalls();
	VisibilityAttribute.Assign(*this, Args._Visibility);
	EnabledAttribute.Assign(*this, Args._IsEnabled);
	if (Args._Cursor.IsSet())
	{
		SetCursor(Args._Cursor);
	}
	if (Args._ToolTip.IsValid())
	{
		SetToolTip(Args._ToolTip);
	}
	else if (Args._ToolTipText.IsSet())
	{
		SetToolTipText(Args._ToolTipText);
	}
	if (!Args._Tag.IsNone())
	{
		SetTag(Args._Tag);
	}
	for (const TSharedRef<ISlateMetaData>& MetaData : Args.MetaData)
	{
		AddMetadata(MetaData);
	}
}

bool SWidget::IsShownInFrame() const
{
	const SWidget* Widget = this;
	while (Widget->bArranged)
	{
		if (!Widget->ParentWidget)
		{
			return const_cast<SWidget*>(Widget)->AsWindow() != nullptr;
		}
		Widget = Widget->ParentWidget;
	}
	return false;
}

FGeometry SWidget::GetTickSpaceGeometry() const
{
	SWindow* const Window = const_cast<SWidget*>(this)->GetRootWidget().AsWindow();
	return Window ? PaintSpaceGeometry.MovedBy(Window->GetPositionInScreen()) : PaintSpaceGeometry;
}

//
// State
//

void SWidget::SetVisibility(const TAttribute<EVisibility>& InVisibility)
{
	VisibilityAttribute.Assign(*this, InVisibility);
}

void SWidget::SetEnabled(const TAttribute<bool>& InEnabled)
{
	EnabledAttribute.Assign(*this, InEnabled);
}

bool SWidget::IsEnabledInTree() const
{
	for (const SWidget* Widget = this; Widget; Widget = Widget->ParentWidget)
	{
		if (!Widget->IsEnabled())
		{
			return false;
		}
	}
	return true;
}

void SWidget::SetClipping(EWidgetClipping InClipping)
{
	if (Clipping != InClipping)
	{
		Clipping = InClipping;
		Invalidate(EInvalidateWidgetReason::Layout);
	}
}

FSlateWidgetExtras& SWidget::GetOrMakeExtras()
{
	if (!Extras.IsValid())
	{
		Extras = MakeUnique<FSlateWidgetExtras>();
	}
	return *Extras;
}

void SWidget::SetToolTipText(const TAttribute<FText>& ToolTipText)
{
	SetToolTip(FSlateApplicationBase::Get().MakeToolTip(ToolTipText));
}

void SWidget::SetToolTip(const TSharedPtr<IToolTip>& InToolTip)
{
	GetOrMakeExtras().ToolTip = InToolTip;
}

TSharedPtr<IToolTip> SWidget::GetToolTip() const
{
	return Extras.IsValid() ? Extras->ToolTip : nullptr;
}

void SWidget::SetCursor(const TAttribute<TOptional<EMouseCursor::Type>>& InCursor)
{
	GetOrMakeExtras().Cursor = InCursor;
}

TOptional<EMouseCursor::Type> SWidget::GetCursor() const
{
	return Extras.IsValid() ? Extras->Cursor.Get(TOptional<EMouseCursor::Type>()) : TOptional<EMouseCursor::Type>();
}

FCursorReply SWidget::OnCursorQuery(const FGeometry& MyGeometry, const FPointerEvent& CursorEvent) const
{
	const TOptional<EMouseCursor::Type> Cursor = GetCursor();
	return Cursor.IsSet() ? FCursorReply::Cursor(Cursor.GetValue()) : FCursorReply::Unhandled();
}

void SWidget::SetTag(FName InTag)
{
	GetOrMakeExtras().Tag = InTag;
}

FName SWidget::GetTag() const
{
	return Extras.IsValid() ? Extras->Tag : FName();
}

void SWidget::AddMetadata(const TSharedRef<ISlateMetaData>& AddMe)
{
	GetOrMakeExtras().MetaData.Add(AddMe);
}

TSharedPtr<ISlateMetaData> SWidget::FindMetaData(FName TypeId) const
{
	if (Extras.IsValid())
	{
		for (const TSharedRef<ISlateMetaData>& MetaData : Extras->MetaData)
		{
			if (MetaData->IsOfType(TypeId))
			{
				return MetaData;
			}
		}
	}
	return nullptr;
}

TSharedPtr<SWidget> SWidget::GetParentWidget() const
{
	return ParentWidget && ParentWidget->DoesSharedInstanceExist() ? TSharedPtr<SWidget>(ParentWidget->AsShared()) : nullptr;
}

void SWidget::AssignParentWidget(SWidget& InParent)
{
	if (this == &SNullWidget::NullWidget.Get())
	{
		return;
	}
	if (ParentWidget && ParentWidget != &InParent)
	{
		// The former parent keeps its slot, but no longer shows the widget.
		ParentWidget->VisibleChildren.Remove(this);
	}
	ParentWidget = &InParent;
	bArranged = false;
	if (bNeedsPrepass || bNeedsArrange)
	{
		MarkPrepassUpwards();
	}
}

void SWidget::ConditionallyDetachParentWidget(const SWidget* InExpectedParent)
{
	if (ParentWidget && ParentWidget == InExpectedParent)
	{
		if (bArranged)
		{
			AddDamage(PaintBounds);
		}
		ParentWidget->VisibleChildren.Remove(this);
		ParentWidget = nullptr;
		bArranged = false;
	}
}

SWidget& SWidget::GetRootWidget()
{
	SWidget* Root = this;
	while (Root->ParentWidget)
	{
		Root = Root->ParentWidget;
	}
	return *Root;
}

bool SWidget::HasKeyboardFocus() const
{
	return FSlateApplicationBase::Get().GetKeyboardFocusedWidget().Get() == this;
}

bool SWidget::HasFocusedDescendants() const
{
	return FSlateApplicationBase::Get().HasFocusedDescendants(AsShared());
}

bool SWidget::HasMouseCapture() const
{
	return FSlateApplicationBase::Get().DoesWidgetHaveMouseCapture(AsShared());
}

//
// Time
//

TSharedRef<FActiveTimerHandle> SWidget::RegisterActiveTimer(float TickPeriod, FWidgetActiveTimerDelegate TickFunction)
{
	const double Now = FSlateApplicationBase::Get().GetCurrentTime();
	const TSharedRef<FActiveTimerHandle> Handle =
		MakeShared<FActiveTimerHandle>(TickPeriod, MoveTemp(TickFunction), Now + TickPeriod);
	GetOrMakeExtras().ActiveTimers.Add(Handle);
	UpdateFrameCalls();
	return Handle;
}

void SWidget::UnRegisterActiveTimer(const TSharedRef<FActiveTimerHandle>& ActiveTimerHandle)
{
	if (Extras.IsValid())
	{
		Extras->ActiveTimers.Remove(ActiveTimerHandle);
		UpdateFrameCalls();
	}
}

double SWidget::ExecuteActiveTimers(double CurrentTime, float DeltaTime)
{
	if (Extras.IsValid())
	{
		// A timer may add or remove timers, itself included.
		const TArray<TSharedRef<FActiveTimerHandle>> Timers = Extras->ActiveTimers;
		for (const TSharedRef<FActiveTimerHandle>& Timer : Timers)
		{
			if (Timer->ExecuteIfPending(CurrentTime, DeltaTime) == EActiveTimerReturnType::Stop)
			{
				UnRegisterActiveTimer(Timer);
			}
		}
	}
	return GetNextCallTime();
}

double SWidget::GetNextCallTime() const
{
	double NextCallTime = bCanTick ? 0.0 : 1e300;
	if (Extras.IsValid())
	{
		for (const TSharedRef<FActiveTimerHandle>& Timer : Extras->ActiveTimers)
		{
			NextCallTime = FMath::Min(NextCallTime, Timer->GetNextExecutionTime());
		}
	}
	return NextCallTime;
}

void SWidget::SetCanTick(bool bInCanTick)
{
	bCanTick = bInCanTick;
	UpdateFrameCalls();
}

void SWidget::UpdateFrameCalls()
{
	const bool bWantsCalls = bCanTick || (Extras.IsValid() && Extras->ActiveTimers.Num() > 0);
	if (bWantsCalls == bool(bCalledInFrames))
	{
		return;
	}
	bCalledInFrames = bWantsCalls;
	if (bWantsCalls)
	{
		FFrameCalledWidgets::Get().Add(*this);
	}
	else
	{
		FFrameCalledWidgets::Get().Remove(*this);
	}
}
