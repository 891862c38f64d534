#include "UObject/EnumProperty.h"

#include "Misc/CString.h"
#include "UObject/EnumText.h"
#include "UObject/PropertyText.h"
#include "UObject/UObjectGlobals.h"

void ExportEnumText(FString& ValueStr, const UEnum& Enum, int64 Value)
{
	const FString Name = Enum.GetNameStringByValue(Value);
	ValueStr += Name.IsEmpty() ? FString::Printf(TEXT("%lld"), Value) : Name;
}

const TCHAR* ImportEnumText(const TCHAR* Buffer, const UEnum& Enum, const FNumericProperty& Property, void* Data)
{
	FTextReader Reader(Buffer);
	const FString Word = Reader.TakeWord();
	const int32 Index = Enum.GetIndexByNameString(Word);
	if (Index != INDEX_NONE)
	{
		Property.SetIntPropertyValue(Data, Enum.GetValueByIndex(Index));
		return Reader.Place();
	}
	return Property.SetNumericPropertyValueFromString(Data, *Word) ? Reader.Place() : nullptr;
}

FEnumProperty::FEnumProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InFlags)
	: FProperty(StaticClass(), InOwner, InName, InFlags)
{
	PropertyFlags |= CPF_IsPlainOldData | CPF_NoDestructor | CPF_ZeroConstructor | CPF_HasGetValueTypeHash;
}

FEnumProperty::~FEnumProperty()
{
	delete UnderlyingProp;
}

void FEnumProperty::AddCppProperty(FProperty* Property)
{
	check(!UnderlyingProp);
	UnderlyingProp = CastFieldChecked<FNumericProperty>(Property);
	ElementSize = UnderlyingProp->ElementSize;
	MinAlignment = UnderlyingProp->GetMinAlignment();
}

FString FEnumProperty::GetCPPType(FString* ExtendedTypeText, uint32 CPPExportFlags) const
{
	return Enum->CppType.IsEmpty() ? Enum->GetName() : Enum->CppType;
}

bool FEnumProperty::Identical(const void* A, const void* B, uint32 PortFlags) const
{
	return UnderlyingProp->Identical(A, B, PortFlags);
}

void FEnumProperty::ExportTextItem(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent,
	int32 PortFlags, UObject* ExportRootScope) const
{
	ExportEnumText(ValueStr, *Enum, UnderlyingProp->GetSignedIntPropertyValue(PropertyValue));
}

void FEnumProperty::ConstructValue(void* Dest) const
{
	UnderlyingProp->InitializeValue(Dest);
}

void FEnumProperty::CopyValue(void* Dest, const void* Src) const
{
	UnderlyingProp->CopySingleValue(Dest, Src);
}

uint32 FEnumProperty::HashValue(const void* Src) const
{
	return UnderlyingProp->GetValueTypeHash(Src);
}

bool FEnumProperty::IsSameTypeAs(const FProperty& Other) const
{
	return Enum == static_cast<const FEnumProperty&>(Other).Enum;
}

const TCHAR* FEnumProperty::ImportValue(
	const TCHAR* Buffer, void* Data, int32 PortFlags, UObject* OwnerObject, FOutputDevice* ErrorText) const
{
	return ImportEnumText(Buffer, *Enum, *UnderlyingProp, Data);
}

void FEnumProperty::AddTypeReferences(FReferenceCollector& Collector) const
{
	Collector.HandleFixedReference(Enum);
}
