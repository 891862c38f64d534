#include "UObject/Class.h"

#include "Logging/LogMacros.h"
#include "UObject/CoreUObjectLog.h"
#include "UObject/DisplayNames.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

UClass* UField::GetOwnerClass() const
{
	UObject* Object = const_cast<UField*>(this);
	while (Object && !Object->IsA<UClass>())
	{
		Object = Object->GetOuter();
	}
	return static_cast<UClass*>(Object);
}

UStruct* UField::GetOwnerStruct() const
{
	UObject* Object = const_cast<UField*>(this);
	while (Object && !Object->IsA<UStruct>())
	{
		Object = Object->GetOuter();
	}
	return static_cast<UStruct*>(Object);
}

FText UField::GetDisplayNameText() const
{
	return DisplayNameOf(*this, GetName(), false);
}

FText UField::GetToolTipText(bool bShortTooltip) const
{
	return ToolTipOf(*this, GetDisplayNameText(), bShortTooltip);
}

void UField::AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector)
{
	Collector.AddReferencedObject(static_cast<UField*>(InThis)->Next, InThis);
	Super::AddReferencedObjects(InThis, Collector);
}

UStruct::~UStruct()
{
	while (ChildProperties)
	{
		FField* const Property = ChildProperties;
		ChildProperties = Property->Next;
		delete Property;
	}
}

void UStruct::SetSuperStruct(UStruct* NewSuperStruct)
{
	SuperStruct = NewSuperStruct;
}

void UStruct::AddCppProperty(FProperty* Property)
{
	check(Property->GetOwnerVariant().ToUObject() == this && !Property->Next);
	(LastOwnProperty ? LastOwnProperty->Next : ChildProperties) = Property;
	LastOwnProperty = Property;
}

void UStruct::StaticLink(bool bRelinkExistingProperties)
{
	int32 Size = SuperStruct ? SuperStruct->GetPropertiesSize() : 0;
	MinAlignment = FMath::Max(MinAlignment, SuperStruct ? SuperStruct->GetMinAlignment() : 1);
	for (FProperty* Property : TFieldRange<FProperty>(this, EFieldIteratorFlags::ExcludeSuper))
	{
		if (Property->Offset_Internal == INDEX_NONE || bRelinkExistingProperties)
		{
			Property->Offset_Internal = Align(Size, Property->GetMinAlignment());
		}
		Size = FMath::Max(Size, Property->Offset_Internal + Property->GetSize());
		MinAlignment = FMath::Max(MinAlignment, Property->GetMinAlignment());
	}
	PropertiesSize = FMath::Max(PropertiesSize, Size);
	OwnReferences.Reset();
	bOwnReferencesKnown = false;
}

const TArray<FProperty*>& UStruct::GetOwnReferenceProperties() const
{
	if (!bOwnReferencesKnown)
	{
		bOwnReferencesKnown = true;
		for (FProperty* Property : TFieldRange<FProperty>(this, EFieldIteratorFlags::ExcludeSuper))
		{
			if (Property->ContainsObjectReference())
			{
				OwnReferences.Add(Property);
			}
		}
	}
	return OwnReferences;
}

void UStruct::AddReferencesOf(void* Container, FReferenceCollector& Collector) const
{
	for (const UStruct* Struct = this; Struct; Struct = Struct->GetSuperStruct())
	{
		for (const FProperty* Property : Struct->GetOwnReferenceProperties())
		{
			Property->AddReferencedObjects_InContainer(Container, Collector);
		}
	}
}

bool UStruct::IsChildOf(const UStruct* SomeBase) const
{
	const UStruct* Struct = this;
	while (Struct && Struct != SomeBase)
	{
		Struct = Struct->GetSuperStruct();
	}
	return Struct != nullptr && SomeBase != nullptr;
}

FProperty* UStruct::FindPropertyByName(FName InName) const
{
	for (FProperty* Property : TFieldRange<FProperty>(this))
	{
		if (Property->GetFName() == InName)
		{
			return Property;
		}
	}
	return nullptr;
}

void UStruct::InitializeStruct(void* Dest, int32 ArrayDim) const
{
	for (int32 Index = 0; Index < ArrayDim; ++Index)
	{
		void* const Container = static_cast<uint8*>(Dest) + SIZE_T(GetStructureSize()) * Index;
		for (const FProperty* Property : TFieldRange<FProperty>(this))
		{
			Property->InitializeValue_InContainer(Container);
		}
	}
}

void UStruct::DestroyStruct(void* Dest, int32 ArrayDim) const
{
	for (int32 Index = 0; Index < ArrayDim; ++Index)
	{
		void* const Container = static_cast<uint8*>(Dest) + SIZE_T(GetStructureSize()) * Index;
		for (const FProperty* Property : TFieldRange<FProperty>(this))
		{
			Property->DestroyValue_InContainer(Container);
		}
	}
}

bool UStruct::GetBoolMetaDataHierarchical(const FName& Key) const
{
	const UStruct* Struct = this;
	while (Struct && !Struct->HasMetaData(Key))
	{
		Struct = Struct->GetSuperStruct();
	}
	return Struct && Struct->GetBoolMetaData(Key);
}

void UStruct::AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector)
{
	UStruct* const This = static_cast<UStruct*>(InThis);
	Collector.HandleFixedReference(This->SuperStruct);
	Collector.AddReferencedObject(This->Children, This);
	for (const FProperty* Property : TFieldRange<FProperty>(This, EFieldIteratorFlags::ExcludeSuper))
	{
		Property->AddTypeReferences(Collector);
	}
	Super::AddReferencedObjects(InThis, Collector);
}
