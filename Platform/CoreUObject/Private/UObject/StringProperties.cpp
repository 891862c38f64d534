#include "UObject/UnrealType.h"

#include "UObject/PropertyText.h"

namespace
{
FString TakeText(FTextReader& Reader, int32 PortFlags)
{
	return PortFlags & PPF_Delimited ? Reader.TakeDelimited() : Reader.TakeRest();
}
}

FStrProperty::FStrProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InFlags)
	: TProperty(StaticClass(), InOwner, InName, InFlags)
{
	PropertyFlags |= CPF_HasGetValueTypeHash;
}

FString FStrProperty::GetCPPType(FString* ExtendedTypeText, uint32 CPPExportFlags) const
{
	return TEXT("FString");
}

bool FStrProperty::Identical(const void* A, const void* B, uint32 PortFlags) const
{
	return B ? GetPropertyValue(A) == GetPropertyValue(B) : GetPropertyValue(A).IsEmpty();
}

uint32 FStrProperty::HashValue(const void* Src) const
{
	return GetTypeHash(GetPropertyValue(Src));
}

void FStrProperty::ExportTextItem(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent,
	int32 PortFlags, UObject* ExportRootScope) const
{
	AppendQuotedIfDelimited(ValueStr, GetPropertyValue(PropertyValue), PortFlags);
}

const TCHAR* FStrProperty::ImportValue(
	const TCHAR* Buffer, void* Data, int32 PortFlags, UObject* OwnerObject, FOutputDevice* ErrorText) const
{
	FTextReader Reader(Buffer);
	SetPropertyValue(Data, TakeText(Reader, PortFlags));
	return Reader.Place();
}

FNameProperty::FNameProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InFlags)
	: TProperty(StaticClass(), InOwner, InName, InFlags)
{
	PropertyFlags |= CPF_HasGetValueTypeHash;
}

FString FNameProperty::GetCPPType(FString* ExtendedTypeText, uint32 CPPExportFlags) const
{
	return TEXT("FName");
}

bool FNameProperty::Identical(const void* A, const void* B, uint32 PortFlags) const
{
	return GetPropertyValue(A) == (B ? GetPropertyValue(B) : FName());
}

uint32 FNameProperty::HashValue(const void* Src) const
{
	return GetTypeHash(GetPropertyValue(Src));
}

void FNameProperty::ExportTextItem(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent,
	int32 PortFlags, UObject* ExportRootScope) const
{
	AppendQuotedIfDelimited(ValueStr, GetPropertyValue(PropertyValue).ToString(), PortFlags);
}

const TCHAR* FNameProperty::ImportValue(
	const TCHAR* Buffer, void* Data, int32 PortFlags, UObject* OwnerObject, FOutputDevice* ErrorText) const
{
	FTextReader Reader(Buffer);
	SetPropertyValue(Data, FName(*TakeText(Reader, PortFlags)));
	return Reader.Place();
}

FTextProperty::FTextProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InFlags)
	: TProperty(StaticClass(), InOwner, InName, InFlags)
{
}

FString FTextProperty::GetCPPType(FString* ExtendedTypeText, uint32 CPPExportFlags) const
{
	return TEXT("FText");
}

bool FTextProperty::Identical(const void* A, const void* B, uint32 PortFlags) const
{
	return B ? GetPropertyValue(A).ToString().Equals(GetPropertyValue(B).ToString()) : GetPropertyValue(A).IsEmpty();
}

uint32 FTextProperty::HashValue(const void* Src) const
{
	checkNoEntry();
	return 0;
}

void FTextProperty::ExportTextItem(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent,
	int32 PortFlags, UObject* ExportRootScope) const
{
	AppendQuotedIfDelimited(ValueStr, GetPropertyValue(PropertyValue).ToString(), PortFlags);
}

const TCHAR* FTextProperty::ImportValue(
	const TCHAR* Buffer, void* Data, int32 PortFlags, UObject* OwnerObject, FOutputDevice* ErrorText) const
{
	FTextReader Reader(Buffer);
	SetPropertyValue(Data, FText::FromString(TakeText(Reader, PortFlags)));
	return Reader.Place();
}
