#include "Layout/Children.h"

#include "Widgets/SNullWidget.h"
#include "Widgets/SWidget.h"

FNoChildren FNoChildren::NoChildrenInstance;

TSharedRef<SWidget> FNoChildren::GetChildAt(int32 Index) const
{
	checkf(false, TEXT("A widget without children was asked for child %d"), Index);
	return SNullWidget::NullWidget;
}

SWidget& FNoChildren::GetChildRefAt(int32 Index) const
{
	checkf(false, TEXT("A widget without children was asked for child %d"), Index);
	return SNullWidget::NullWidget.Get();
}

int32 FSingleWidgetChildren::Num() const
{
	return GetWidget() == SNullWidget::NullWidget ? 0 : 1;
}

TSharedRef<SWidget> FSingleWidgetChildren::GetChildAt(int32 Index) const
{
	checkf(Index == 0, TEXT("A widget with one child was asked for child %d"), Index);
	return GetWidget();
}

SWidget& FSingleWidgetChildren::GetChildRefAt(int32 Index) const
{
	checkf(Index == 0, TEXT("A widget with one child was asked for child %d"), Index);
	return GetWidget().Get();
}

void InvalidateChildOrder(SWidget& Widget)
{
	Widget.Invalidate(EInvalidateWidgetReason::ChildOrder);
}
