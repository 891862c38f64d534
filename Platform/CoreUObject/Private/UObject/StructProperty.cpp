#include "UObject/UnrealType.h"

#include "UObject/UObjectGlobals.h"

namespace
{
/** A native structure has what C++ gives it, a made one that of its members. */
bool HasHash(const UScriptStruct& Struct)
{
	if (Struct.GetCppStructOps())
	{
		return Struct.GetCppStructOps()->GetTypeHash != nullptr;
	}
	for (const FProperty* Property : TFieldRange<FProperty>(&Struct))
	{
		if (!Property->HasAnyPropertyFlags(CPF_HasGetValueTypeHash))
		{
			return false;
		}
	}
	return true;
}
}

FStructProperty::FStructProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InFlags)
	: FProperty(StaticClass(), InOwner, InName, InFlags)
{
}

void FStructProperty::SetStruct(UScriptStruct* InStruct)
{
	Struct = InStruct;
	ElementSize = Struct->GetStructureSize();
	MinAlignment = Struct->GetMinAlignment();
	if (HasHash(*Struct))
	{
		PropertyFlags |= CPF_HasGetValueTypeHash;
	}
}

FString FStructProperty::GetCPPType(FString* ExtendedTypeText, uint32 CPPExportFlags) const
{
	return Struct->GetStructCPPName();
}

bool FStructProperty::Identical(const void* A, const void* B, uint32 PortFlags) const
{
	if (B)
	{
		return Struct->CompareScriptStruct(A, B, PortFlags);
	}
	TArray<uint8> Default;
	Default.AddUninitialized(Struct->GetStructureSize());
	Struct->InitializeStruct(Default.GetData());
	const bool bIdentical = Struct->CompareScriptStruct(A, Default.GetData(), PortFlags);
	Struct->DestroyStruct(Default.GetData());
	return bIdentical;
}

bool FStructProperty::ContainsObjectReference() const
{
	// A structure may hold an array of itself.
	static TArray<const UScriptStruct*> Visited;
	if (Visited.Contains(Struct))
	{
		return false;
	}
	Visited.Add(Struct);
	bool bFound = false;
	for (const FProperty* Property : TFieldRange<FProperty>(Struct))
	{
		bFound = bFound || Property->ContainsObjectReference();
	}
	Visited.Pop();
	return bFound;
}

void FStructProperty::AddReferencedObjects(void* Value, FReferenceCollector& Collector) const
{
	Struct->AddReferencesOf(Value, Collector);
}

void FStructProperty::AddTypeReferences(FReferenceCollector& Collector) const
{
	Collector.HandleFixedReference(Struct);
}

void FStructProperty::ExportTextItem(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent,
	int32 PortFlags, UObject* ExportRootScope) const
{
	Struct->ExportText(ValueStr, PropertyValue, DefaultValue, Parent, PortFlags, ExportRootScope);
}

void FStructProperty::ConstructValue(void* Dest) const
{
	Struct->InitializeStruct(Dest);
}

void FStructProperty::DestructValue(void* Dest) const
{
	Struct->DestroyStruct(Dest);
}

void FStructProperty::CopyValue(void* Dest, const void* Src) const
{
	Struct->CopyScriptStruct(Dest, Src);
}

uint32 FStructProperty::HashValue(const void* Src) const
{
	return Struct->GetStructTypeHash(Src);
}

bool FStructProperty::IsSameTypeAs(const FProperty& Other) const
{
	return Struct == static_cast<const FStructProperty&>(Other).Struct;
}

const TCHAR* FStructProperty::ImportValue(
	const TCHAR* Buffer, void* Data, int32 PortFlags, UObject* OwnerObject, FOutputDevice* ErrorText) const
{
	return Struct->ImportText(Buffer, Data, OwnerObject, PortFlags, ErrorText, Struct->GetName());
}
