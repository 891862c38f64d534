#include "Types/SlateAttribute.h"

#include "Application/SlateFrame.h"
#include "Widgets/SWidget.h"

namespace
{
/** All bindings, as a list through the bindings themselves. */
FSlateAttributeBinding* GFirstBinding = nullptr;

/** The binding that the running update comes to next; kept true while bindings come and go under it. */
FSlateAttributeBinding* GNextToUpdate = nullptr;
}

FSlateAttributeBinding::FSlateAttributeBinding(SWidget& InWidget, EInvalidateWidgetReason InReason)
	: Next(GFirstBinding)
	, Widget(InWidget)
	, Reason(InReason)
{
	if (Next)
	{
		Next->Previous = this;
	}
	GFirstBinding = this;
}

FSlateAttributeBinding::~FSlateAttributeBinding()
{
	if (GNextToUpdate == this)
	{
		GNextToUpdate = Next;
	}
	if (Next)
	{
		Next->Previous = Previous;
	}
	(Previous ? Previous->Next : GFirstBinding) = Next;
}

void FSlateAttributeBinding::Update()
{
	if (Fetch())
	{
		Widget.Invalidate(Reason);
	}
}

bool FSlateAttributeBinding::IsDue() const
{
	const SWidget* Parent = Widget.GetParentPointer();
	return Widget.IsShownInFrame() || (Parent && Parent->IsShownInFrame());
}

void FSlateAttributeBinding::UpdateAllDue()
{
	for (GNextToUpdate = GFirstBinding; GNextToUpdate;)
	{
		FSlateAttributeBinding& Binding = *GNextToUpdate;
		GNextToUpdate = Binding.Next;
		if (Binding.IsDue())
		{
			Binding.Update();
		}
	}
}

void SlateFrame::UpdateBoundAttributes()
{
	FSlateAttributeBinding::UpdateAllDue();
}

EInvalidateWidgetReason FindInvalidationReason(const SWidget& Widget, const void* Attribute)
{
	const PTRINT Offset = static_cast<const uint8*>(Attribute) - reinterpret_cast<const uint8*>(&Widget);
	const FSlateAttributeDescriptor& Descriptor = Widget.GetWidgetClass().GetAttributeDescriptor();
	const FSlateAttributeDescriptor::FAttribute* Found = Offset > 0 ? Descriptor.FindMemberAttribute(uint32(Offset)) : nullptr;
	return Found ? Found->InvalidationReason : EInvalidateWidgetReason::None;
}

void InvalidateSlateWidget(SWidget& Widget, EInvalidateWidgetReason Reason)
{
	Widget.Invalidate(Reason);
}
