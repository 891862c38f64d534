#include "SlotBase.h"

#include "Widgets/SNullWidget.h"
#include "Widgets/SWidget.h"

FSlotBase::FSlotBase()
	: Widget(SNullWidget::NullWidget)
{
}

FSlotBase::FSlotBase(const TSharedRef<SWidget>& InWidget)
	: Widget(InWidget)
{
}

FSlotBase::~FSlotBase()
{
	if (Owner)
	{
		Widget->ConditionallyDetachParentWidget(Owner);
	}
}

void FSlotBase::AttachWidget(const TSharedRef<SWidget>& InWidget)
{
	if (Widget == InWidget)
	{
		return;
	}
	if (Owner)
	{
		Widget->ConditionallyDetachParentWidget(Owner);
	}
	Widget = InWidget;
	if (Owner)
	{
		Widget->AssignParentWidget(*Owner);
		Owner->Invalidate(EInvalidateWidgetReason::ChildOrder);
	}
}

TSharedRef<SWidget> FSlotBase::DetachWidget()
{
	const TSharedRef<SWidget> Detached = Widget;
	AttachWidget(SNullWidget::NullWidget);
	return Detached;
}

void FSlotBase::SetOwner(SWidget& InOwner)
{
	Owner = &InOwner;
	Widget->AssignParentWidget(InOwner);
	InOwner.Invalidate(EInvalidateWidgetReason::ChildOrder);
}

void FSlotBase::Invalidate(EInvalidateWidgetReason Reason)
{
	if (Owner)
	{
		Owner->Invalidate(Reason);
	}
}
