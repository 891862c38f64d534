#include "Types/SlateAttributeDescriptor.h"

void FSlateAttributeDescriptor::FInitializer::AddMemberAttribute(
	FName AttributeName, uint32 Offset, EInvalidateWidgetReason Reason)
{
	checkf(!Descriptor.FindAttribute(AttributeName), TEXT("The attribute '%s' is registered twice"), *AttributeName.ToString());
	Descriptor.Attributes.Add({AttributeName, Offset, Reason});
}

const FSlateAttributeDescriptor::FAttribute* FSlateAttributeDescriptor::FindAttribute(FName AttributeName) const
{
	return Attributes.FindByPredicate([AttributeName](const FAttribute& Attribute) { return Attribute.Name == AttributeName; });
}

const FSlateAttributeDescriptor::FAttribute* FSlateAttributeDescriptor::FindMemberAttribute(uint32 Offset) const
{
	return Attributes.FindByPredicate([Offset](const FAttribute& Attribute) { return Attribute.Offset == Offset; });
}

FSlateWidgetClassData::FSlateWidgetClassData(FName InWidgetTypeName)
	: WidgetType(InWidgetTypeName)
{
}

FSlateWidgetClassData::FSlateWidgetClassData(
	const FSlateWidgetClassData& Parent, FName InWidgetTypeName, void (*Register)(FSlateAttributeInitializer&))
	: WidgetType(InWidgetTypeName)
	, AttributeDescriptor(Parent.AttributeDescriptor)
{
	FSlateAttributeInitializer Initializer(AttributeDescriptor);
	Register(Initializer);
}
