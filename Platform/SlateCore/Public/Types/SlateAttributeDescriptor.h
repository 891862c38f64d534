#pragma once

#include "CoreMinimal.h"
#include "Widgets/InvalidateWidgetReason.h"

/** The attributes of a widget class, its parents' among them: where each lies in the widget, and what its change invalidates. */
class SLATECORE_API FSlateAttributeDescriptor
{
public:
	/** Fills a descriptor: what PrivateRegisterAttributes of a widget class gets. */
	class SLATECORE_API FInitializer
	{
	public:
		explicit FInitializer(FSlateAttributeDescriptor& InDescriptor)
			: Descriptor(InDescriptor)
		{
		}

		/** @param Offset  Bytes from the start of the widget. */
		void AddMemberAttribute(FName AttributeName, uint32 Offset, EInvalidateWidgetReason Reason);

	private:
		FSlateAttributeDescriptor& Descriptor;
	};

	struct FAttribute
	{
		FName Name;
		uint32 Offset;
		EInvalidateWidgetReason InvalidationReason;
	};

	int32 GetAttributeNum() const { return Attributes.Num(); }
	const FAttribute& GetAttributeAtIndex(int32 Index) const { return Attributes[Index]; }

	/** Null for what is no attribute of the class. */
	const FAttribute* FindAttribute(FName AttributeName) const;
	const FAttribute* FindMemberAttribute(uint32 Offset) const;

private:
	TArray<FAttribute> Attributes;
};

using FSlateAttributeInitializer = FSlateAttributeDescriptor::FInitializer;

/** A class of widgets that SLATE_DECLARE_WIDGET declares. */
class SLATECORE_API FSlateWidgetClassData
{
public:
	explicit FSlateWidgetClassData(FName InWidgetTypeName);
	/** Takes the parent's attributes, then those that Register adds. */
	FSlateWidgetClassData(
		const FSlateWidgetClassData& Parent, FName InWidgetTypeName, void (*Register)(FSlateAttributeInitializer&));

	FName GetWidgetType() const { return WidgetType; }
	const FSlateAttributeDescriptor& GetAttributeDescriptor() const { return AttributeDescriptor; }

private:
	FName WidgetType;
	FSlateAttributeDescriptor AttributeDescriptor;
};
