#include "UObject/UnrealType.h"

#include "UObject/PropertyText.h"
#include "UObject/UObjectGlobals.h"

namespace
{
/** "Name" with the prefix that C++ has, and a star. */
FString PointerTo(const UClass* Class)
{
	return FString(Class->GetPrefixCPP()) + Class->GetName() + TEXT("*");
}

/** "Class'Path'", "Class'"Path"'" or "Path". */
FString TakeObjectPath(FTextReader& Reader)
{
	if (Reader.Peek() == u'"')
	{
		return Reader.TakeDelimited();
	}
	FString Path = Reader.TakeWord();
	if (Reader.TakeIf(u'\''))
	{
		const bool bQuoted = Reader.TakeIf(u'"');
		Path = FString();
		while (*Reader.Place() && *Reader.Place() != u'\'' && *Reader.Place() != u'"')
		{
			Path += *Reader.Place();
			Reader.Continue(Reader.Place() + 1);
		}
		if ((bQuoted && !Reader.TakeIf(u'"')) || !Reader.TakeIf(u'\''))
		{
			return FString();
		}
	}
	return Path;
}
}

FObjectPropertyBase::FObjectPropertyBase(FFieldClass* InClass, FFieldVariant InOwner, const FName& InName, EObjectFlags InFlags)
	: FProperty(InClass, InOwner, InName, InFlags)
{
	PropertyFlags |= CPF_HasGetValueTypeHash;
}

bool FObjectPropertyBase::Identical(const void* A, const void* B, uint32 PortFlags) const
{
	return GetObjectPropertyValue(A) == (B ? GetObjectPropertyValue(B) : nullptr);
}

uint32 FObjectPropertyBase::HashValue(const void* Src) const
{
	return PointerHash(GetObjectPropertyValue(Src));
}

bool FObjectPropertyBase::IsSameTypeAs(const FProperty& Other) const
{
	return PropertyClass == static_cast<const FObjectPropertyBase&>(Other).PropertyClass;
}

bool FObjectPropertyBase::AcceptsObject(const UObject* Object) const
{
	return Object->IsA(PropertyClass);
}

void FObjectPropertyBase::AddTypeReferences(FReferenceCollector& Collector) const
{
	Collector.HandleFixedReference(PropertyClass);
}

void FObjectPropertyBase::ExportTextItem(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent,
	int32 PortFlags, UObject* ExportRootScope) const
{
	const UObject* const Object = GetObjectPropertyValue(PropertyValue);
	ValueStr += Object ? Object->GetClass()->GetName() + TEXT("'") + Object->GetPathName() + TEXT("'") : FString(TEXT("None"));
}

const TCHAR* FObjectPropertyBase::ImportValue(
	const TCHAR* Buffer, void* Data, int32 PortFlags, UObject* OwnerObject, FOutputDevice* ErrorText) const
{
	FTextReader Reader(Buffer);
	const FString Path = TakeObjectPath(Reader);
	if (Path == TEXT("None") || Path == TEXT("nullptr"))
	{
		SetObjectPropertyValue(Data, nullptr);
		return Reader.Place();
	}
	UObject* const Object = Path.IsEmpty() ? nullptr : StaticFindObject(nullptr, nullptr, *Path);
	if (!Object || !AcceptsObject(Object))
	{
		return nullptr;
	}
	SetObjectPropertyValue(Data, Object);
	return Reader.Place();
}

FObjectProperty::FObjectProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InFlags)
	: FObjectProperty(StaticClass(), InOwner, InName, InFlags)
{
}

FObjectProperty::FObjectProperty(FFieldClass* InClass, FFieldVariant InOwner, const FName& InName, EObjectFlags InFlags)
	: TProperty(InClass, InOwner, InName, InFlags)
{
	PropertyClass = UObject::StaticClass();
}

FString FObjectProperty::GetCPPType(FString* ExtendedTypeText, uint32 CPPExportFlags) const
{
	return PointerTo(PropertyClass);
}

void FObjectProperty::AddReferencedObjects(void* Value, FReferenceCollector& Collector) const
{
	Collector.AddReferencedObject(*GetPropertyValuePtr(Value), nullptr, this);
}

FClassProperty::FClassProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InFlags)
	: FObjectProperty(StaticClass(), InOwner, InName, InFlags)
{
	PropertyClass = UClass::StaticClass();
	MetaClass = UObject::StaticClass();
}

FString FClassProperty::GetCPPType(FString* ExtendedTypeText, uint32 CPPExportFlags) const
{
	if (!HasAnyPropertyFlags(CPF_UObjectWrapper))
	{
		return TEXT("UClass*");
	}
	const FString Argument = FString(MetaClass->GetPrefixCPP()) + MetaClass->GetName();
	if (ExtendedTypeText)
	{
		*ExtendedTypeText = TEXT("<") + Argument + TEXT("> ");
		return TEXT("TSubclassOf");
	}
	return TEXT("TSubclassOf<") + Argument + TEXT("> ");
}

bool FClassProperty::IsSameTypeAs(const FProperty& Other) const
{
	return MetaClass == static_cast<const FClassProperty&>(Other).MetaClass;
}

bool FClassProperty::AcceptsObject(const UObject* Object) const
{
	return Object->IsA<UClass>() && static_cast<const UClass*>(Object)->IsChildOf(MetaClass);
}

void FClassProperty::AddTypeReferences(FReferenceCollector& Collector) const
{
	Collector.HandleFixedReference(MetaClass);
	FObjectProperty::AddTypeReferences(Collector);
}

FWeakObjectProperty::FWeakObjectProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InFlags)
	: TProperty(StaticClass(), InOwner, InName, InFlags)
{
	PropertyClass = UObject::StaticClass();
}

FString FWeakObjectProperty::GetCPPType(FString* ExtendedTypeText, uint32 CPPExportFlags) const
{
	const FString Argument = FString(PropertyClass->GetPrefixCPP()) + PropertyClass->GetName();
	if (ExtendedTypeText)
	{
		*ExtendedTypeText = TEXT("<") + Argument + TEXT(">");
		return TEXT("TWeakObjectPtr");
	}
	return TEXT("TWeakObjectPtr<") + Argument + TEXT(">");
}
