#include "UObject/UnrealType.h"

#include "UObject/PropertyText.h"

FProperty::FProperty(FFieldClass* InClass, FFieldVariant InOwner, const FName& InName, EObjectFlags InFlags)
	: FField(InClass, InOwner, InName, InFlags)
{
}

#define IMPLEMENT_FIELD(TClass) \
	FFieldClass* TClass::StaticClass() \
	{ \
		static FFieldClass Class(&TEXT(#TClass)[1], StaticClassCastFlagsPrivate(), Super::StaticClass()); \
		return &Class; \
	}

IMPLEMENT_FIELD(FProperty)
IMPLEMENT_FIELD(FNumericProperty)
IMPLEMENT_FIELD(FObjectPropertyBase)
IMPLEMENT_FIELD(FInt8Property)
IMPLEMENT_FIELD(FInt16Property)
IMPLEMENT_FIELD(FIntProperty)
IMPLEMENT_FIELD(FInt64Property)
IMPLEMENT_FIELD(FByteProperty)
IMPLEMENT_FIELD(FUInt16Property)
IMPLEMENT_FIELD(FUInt32Property)
IMPLEMENT_FIELD(FUInt64Property)
IMPLEMENT_FIELD(FFloatProperty)
IMPLEMENT_FIELD(FDoubleProperty)
IMPLEMENT_FIELD(FEnumProperty)
IMPLEMENT_FIELD(FBoolProperty)
IMPLEMENT_FIELD(FStrProperty)
IMPLEMENT_FIELD(FNameProperty)
IMPLEMENT_FIELD(FTextProperty)
IMPLEMENT_FIELD(FObjectProperty)
IMPLEMENT_FIELD(FClassProperty)
IMPLEMENT_FIELD(FWeakObjectProperty)
IMPLEMENT_FIELD(FStructProperty)
IMPLEMENT_FIELD(FArrayProperty)
IMPLEMENT_FIELD(FSetProperty)
IMPLEMENT_FIELD(FMapProperty)

bool FProperty::SameType(const FProperty* Other) const
{
	return Other && GetClass() == Other->GetClass() && ArrayDim == Other->ArrayDim && IsSameTypeAs(*Other);
}

void FProperty::InitializeValue(void* Dest) const
{
	for (int32 Index = 0; Index < ArrayDim; ++Index)
	{
		ConstructValue(static_cast<uint8*>(Dest) + SIZE_T(ElementSize) * Index);
	}
}

void FProperty::DestroyValue(void* Dest) const
{
	for (int32 Index = 0; Index < ArrayDim; ++Index)
	{
		DestructValue(static_cast<uint8*>(Dest) + SIZE_T(ElementSize) * Index);
	}
}

void FProperty::ClearValue(void* Data) const
{
	DestroyValue(Data);
	InitializeValue(Data);
}

void FProperty::CopyCompleteValue(void* Dest, const void* Src) const
{
	if (Dest == Src)
	{
		return;
	}
	for (int32 Index = 0; Index < ArrayDim; ++Index)
	{
		const SIZE_T Offset = SIZE_T(ElementSize) * Index;
		CopyValue(static_cast<uint8*>(Dest) + Offset, static_cast<const uint8*>(Src) + Offset);
	}
}

void FProperty::AddReferencedObjects_InContainer(void* Container, FReferenceCollector& Collector) const
{
	for (int32 Index = 0; Index < ArrayDim; ++Index)
	{
		AddReferencedObjects(ContainerPtrToValuePtr<void>(Container, Index), Collector);
	}
}

uint32 FProperty::GetValueTypeHash(const void* Src) const
{
	checkf(HasAnyPropertyFlags(CPF_HasGetValueTypeHash), TEXT("Values of %s have no hash"), *GetFullName());
	return HashValue(Src);
}

bool FProperty::ExportText_Direct(
	FString& ValueStr, const void* Data, const void* Delta, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const
{
	if (Data == Delta || (Delta && Identical(Data, Delta, PortFlags)))
	{
		return false;
	}
	ExportTextItem(ValueStr, Data, Delta, Parent, PortFlags, ExportRootScope);
	return true;
}

bool FProperty::ExportText_InContainer(int32 Index, FString& ValueStr, const void* Data, const void* Delta, UObject* Parent,
	int32 PortFlags, UObject* ExportRootScope) const
{
	return ExportText_Direct(ValueStr, ContainerPtrToValuePtr<void>(Data, Index),
		Delta ? ContainerPtrToValuePtr<void>(Delta, Index) : nullptr, Parent, PortFlags, ExportRootScope);
}

const TCHAR* FProperty::ImportText(
	const TCHAR* Buffer, void* Data, int32 PortFlags, UObject* OwnerObject, FOutputDevice* ErrorText) const
{
	if (!Buffer)
	{
		return nullptr;
	}
	const TCHAR* const End = ImportValue(Buffer, Data, PortFlags, OwnerObject, ErrorText);
	if (!End)
	{
		FTextReader::Fail(ErrorText,
			*FString::Printf(
				TEXT("ImportText (%s): expected a value of type %s, found '%s'"), *GetName(), *GetCPPType(), Buffer));
	}
	return End;
}
