#include "UObject/Class.h"

#include "UObject/ObjectTable.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

void UClass::SetSuperStruct(UStruct* NewSuperStruct)
{
	Super::SetSuperStruct(NewSuperStruct);
	if (const UClass* const Parent = GetSuperClass())
	{
		ClassFlags |= Parent->ClassFlags & CLASS_Inherit;
		ClassCastFlags |= Parent->ClassCastFlags;
	}
}

void UClass::Bind()
{
	const UClass* const Parent = GetSuperClass();
	if (!Parent)
	{
		return;
	}
	ClassConstructor = ClassConstructor ? ClassConstructor : Parent->ClassConstructor;
	ClassAddReferencedObjects = ClassAddReferencedObjects ? ClassAddReferencedObjects : Parent->ClassAddReferencedObjects;
	ClassConfigName = ClassConfigName.IsNone() ? Parent->ClassConfigName : ClassConfigName;
}

const TCHAR* UClass::GetPrefixCPP() const
{
	const UClass* Class = this;
	while (Class && Class->GetFName() != TEXT("Actor"))
	{
		Class = Class->GetSuperClass();
	}
	return Class ? TEXT("A") : TEXT("U");
}

FName UClass::GetDefaultObjectName() const
{
	return FName(*(TEXT("Default__") + GetName()));
}

UObject* UClass::GetDefaultObject(bool bCreateIfNeeded) const
{
	if (!ClassDefaultObject && bCreateIfNeeded)
	{
		// The parent's comes first, as a constructor may ask for it.
		if (GetSuperClass())
		{
			GetSuperClass()->GetDefaultObject();
		}
		if (!ClassDefaultObject)
		{
			FStaticConstructObjectParameters Params(this);
			Params.Outer = GetOutermost();
			Params.Name = GetDefaultObjectName();
			Params.SetFlags = RF_Public | RF_ClassDefaultObject | RF_ArchetypeObject;
			ClassDefaultObject = StaticConstructObject_Internal(Params);
		}
	}
	return ClassDefaultObject;
}

UFunction* UClass::FindFunctionByName(FName InName, EIncludeSuperFlag::Type IncludeSuper) const
{
	UFunction* Function = nullptr;
	for (const UClass* Class = this; Class && !Function;
		 Class = IncludeSuper == EIncludeSuperFlag::IncludeSuper ? Class->GetSuperClass() : nullptr)
	{
		Function = Class->FuncMap.FindRef(InName);
	}
	return Function;
}

void UClass::AddFunctionToFunctionMap(UFunction* Function, FName FunctionName)
{
	check(Function->GetOuter() == this && !Function->Next);
	FuncMap.Add(FunctionName, Function);
	(LastFunction ? LastFunction->Next : Children) = Function;
	LastFunction = Function;
}

void UClass::RemoveFunctionFromFunctionMap(UFunction* Function)
{
	FuncMap.Remove(Function->GetFName());
	UField* Before = nullptr;
	for (UField* Field = Children; Field != Function; Field = Field->Next)
	{
		Before = Field;
	}
	(Before ? Before->Next : Children) = Function->Next;
	LastFunction = LastFunction == Function ? Before : LastFunction;
	Function->Next = nullptr;
}

void UClass::AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector)
{
	UClass* const This = static_cast<UClass*>(InThis);
	Collector.HandleFixedReference(This->ClassDefaultObject);
	Super::AddReferencedObjects(InThis, Collector);
}

void UClass::FinishDestroy()
{
	ClassDefaultObject = nullptr;
	Super::FinishDestroy();
}
