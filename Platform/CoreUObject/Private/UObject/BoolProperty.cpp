#include "UObject/UnrealType.h"

#include "UObject/PropertyText.h"

FBoolProperty::FBoolProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InFlags)
	: FProperty(StaticClass(), InOwner, InName, InFlags)
{
	PropertyFlags |= CPF_IsPlainOldData | CPF_NoDestructor | CPF_ZeroConstructor | CPF_HasGetValueTypeHash;
	SetBoolSize(sizeof(bool), true);
}

void FBoolProperty::SetBoolSize(uint32 InSize, bool bIsNativeBool, uint32 InBitMask)
{
	ElementSize = static_cast<int32>(InSize);
	MinAlignment = static_cast<int32>(InSize);
	FieldSize = static_cast<uint8>(InSize);
	ByteOffset = 0;
	if (bIsNativeBool)
	{
		ByteMask = 1;
		FieldMask = 0xff;
		return;
	}
	uint32 Mask = InBitMask;
	while (Mask && !(Mask & 0xff))
	{
		Mask >>= 8;
		++ByteOffset;
	}
	ByteMask = FieldMask = static_cast<uint8>(Mask);
}

FString FBoolProperty::GetCPPType(FString* ExtendedTypeText, uint32 CPPExportFlags) const
{
	return IsNativeBool() ? FString(TEXT("bool")) : FString::Printf(TEXT("uint%d"), FieldSize * 8);
}

bool FBoolProperty::Identical(const void* A, const void* B, uint32 PortFlags) const
{
	return GetPropertyValue(A) == (B && GetPropertyValue(B));
}

void FBoolProperty::ExportTextItem(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent,
	int32 PortFlags, UObject* ExportRootScope) const
{
	ValueStr += GetPropertyValue(PropertyValue) ? TEXT("True") : TEXT("False");
}

const TCHAR* FBoolProperty::ImportValue(
	const TCHAR* Buffer, void* Data, int32 PortFlags, UObject* OwnerObject, FOutputDevice* ErrorText) const
{
	FTextReader Reader(Buffer);
	const FString Word = Reader.TakeWord();
	const bool bTrue = Word == TEXT("True") || Word == TEXT("Yes") || Word == TEXT("1");
	if (!bTrue && Word != TEXT("False") && Word != TEXT("No") && Word != TEXT("0"))
	{
		return nullptr;
	}
	SetPropertyValue(Data, bTrue);
	return Reader.Place();
}
