#pragma once

#include "CoreMinimal.h"
#include "Widgets/InvalidateWidgetReason.h"

class SWidget;

/** One place of a parent that holds one child. The slot makes the parent the child's parent, and ends that when it goes. */
class SLATECORE_API FSlotBase
{
public:
	FSlotBase();
	explicit FSlotBase(const TSharedRef<SWidget>& InWidget);
	virtual ~FSlotBase();

	FSlotBase(const FSlotBase&) = delete;
	FSlotBase& operator=(const FSlotBase&) = delete;

	const TSharedRef<SWidget>& GetWidget() const { return Widget; }

	/** Replaces the child. */
	void AttachWidget(const TSharedRef<SWidget>& InWidget);

	/** Takes the child out and leaves the null widget. */
	TSharedRef<SWidget> DetachWidget();

	/** Tells whose slot this is. Called once, when the slot joins its parent. */
	void SetOwner(SWidget& InOwner);

	SWidget* GetOwnerWidget() const { return Owner; }

	/** Invalidates the owner, if the slot has joined one. */
	void Invalidate(EInvalidateWidgetReason Reason);

private:
	TSharedRef<SWidget> Widget;
	SWidget* Owner = nullptr;
};
