#include "UObject/DynamicContainers.h"
#include "UObject/FixedReferences.h"
#include "UObject/PropertyText.h"
#include "UObject/UObjectGlobals.h"

FMapProperty::FMapProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InFlags)
	: FProperty(StaticClass(), InOwner, InName, InFlags)
{
	MinAlignment = alignof(TMap<int32, int32>);
}

FMapProperty::~FMapProperty()
{
	delete KeyProp;
	delete ValueProp;
}

void FMapProperty::AddCppProperty(FProperty* Property)
{
	Property->SetOffset_Internal(0);
	if (!KeyProp)
	{
		KeyProp = Property;
		return;
	}
	check(!ValueProp);
	ValueProp = Property;
	OwnOps = MakeDynamicMapOps(*KeyProp, *ValueProp);
	SetOps(*OwnOps);
}

void FMapProperty::SetOps(const FMapOps& InOps)
{
	Ops = &InOps;
	ElementSize = Ops->GetSize();
}

FString FMapProperty::GetCPPType(FString* ExtendedTypeText, uint32 CPPExportFlags) const
{
	const FString Arguments = TEXT("<") + KeyProp->GetCPPType() + TEXT(",") + ValueProp->GetCPPType() + TEXT(">");
	if (ExtendedTypeText)
	{
		*ExtendedTypeText = Arguments;
		return TEXT("TMap");
	}
	return TEXT("TMap") + Arguments;
}

bool FMapProperty::Identical(const void* A, const void* B, uint32 PortFlags) const
{
	const FScriptMapHelper Left(this, A);
	if (!B)
	{
		return Left.Num() == 0;
	}
	const FScriptMapHelper Right(this, B);
	if (Left.Num() != Right.Num())
	{
		return false;
	}
	for (int32 Index = 0; Index < Left.GetMaxIndex(); ++Index)
	{
		if (!Left.IsValidIndex(Index))
		{
			continue;
		}
		const void* const Other = Right.FindValueFromHash(Left.GetKeyPtr(Index));
		if (!Other || !ValueProp->Identical(Left.GetValuePtr(Index), Other, PortFlags))
		{
			return false;
		}
	}
	return true;
}

bool FMapProperty::ContainsObjectReference() const
{
	return KeyProp->ContainsObjectReference() || ValueProp->ContainsObjectReference();
}

void FMapProperty::AddReferencedObjects(void* Value, FReferenceCollector& Collector) const
{
	FFixedReferences Fixed(Collector);
	const FScriptMapHelper Helper(this, Value);
	for (int32 Index = 0; Index < Helper.GetMaxIndex(); ++Index)
	{
		if (Helper.IsValidIndex(Index))
		{
			KeyProp->AddReferencedObjects(Helper.GetKeyPtr(Index), Fixed);
			ValueProp->AddReferencedObjects(Helper.GetValuePtr(Index), Collector);
		}
	}
}

void FMapProperty::AddTypeReferences(FReferenceCollector& Collector) const
{
	KeyProp->AddTypeReferences(Collector);
	ValueProp->AddTypeReferences(Collector);
}

void FMapProperty::ExportTextItem(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent,
	int32 PortFlags, UObject* ExportRootScope) const
{
	const FScriptMapHelper Helper(this, PropertyValue);
	ValueStr += TEXT("(");
	bool bFirst = true;
	for (int32 Index = 0; Index < Helper.GetMaxIndex(); ++Index)
	{
		if (Helper.IsValidIndex(Index))
		{
			ValueStr += bFirst ? TEXT("(") : TEXT(",(");
			KeyProp->ExportTextItem(
				ValueStr, Helper.GetKeyPtr(Index), nullptr, Parent, PortFlags | PPF_Delimited, ExportRootScope);
			ValueStr += TEXT(", ");
			ValueProp->ExportTextItem(
				ValueStr, Helper.GetValuePtr(Index), nullptr, Parent, PortFlags | PPF_Delimited, ExportRootScope);
			ValueStr += TEXT(")");
			bFirst = false;
		}
	}
	ValueStr += TEXT(")");
}

void FMapProperty::CopyValue(void* Dest, const void* Src) const
{
	const FScriptMapHelper From(this, Src);
	FScriptMapHelper To(this, Dest);
	To.EmptyValues(From.Num());
	for (int32 Index = 0; Index < From.GetMaxIndex(); ++Index)
	{
		if (From.IsValidIndex(Index))
		{
			To.AddPair(From.GetKeyPtr(Index), From.GetValuePtr(Index));
		}
	}
}

uint32 FMapProperty::HashValue(const void* Src) const
{
	checkNoEntry();
	return 0;
}

bool FMapProperty::IsSameTypeAs(const FProperty& Other) const
{
	const FMapProperty& OtherMap = static_cast<const FMapProperty&>(Other);
	return IsNative() == OtherMap.IsNative() && KeyProp->SameType(OtherMap.KeyProp) && ValueProp->SameType(OtherMap.ValueProp);
}

const TCHAR* FMapProperty::ImportValue(
	const TCHAR* Buffer, void* Data, int32 PortFlags, UObject* OwnerObject, FOutputDevice* ErrorText) const
{
	FTextReader Reader(Buffer);
	FScriptMapHelper Helper(this, Data);
	Helper.EmptyValues();
	const auto ImportPart = [&](const FProperty& Property, void* Part)
	{
		const TCHAR* const Next = Property.ImportText(Reader.Place(), Part, PortFlags | PPF_Delimited, OwnerObject, ErrorText);
		if (Next)
		{
			Reader.Continue(Next);
		}
		return Next != nullptr;
	};
	if (!Reader.TakeIf(u'('))
	{
		return nullptr;
	}
	while (!Reader.TakeIf(u')'))
	{
		const FPropertyValue Key(*KeyProp);
		const FPropertyValue Value(*ValueProp);
		if (!Reader.TakeIf(u'(') || !ImportPart(*KeyProp, Key.Get()) || !Reader.TakeIf(u',') ||
			!ImportPart(*ValueProp, Value.Get()) || !Reader.TakeIf(u')'))
		{
			return nullptr;
		}
		Helper.AddPair(Key.Get(), Value.Get());
		if (!Reader.TakeIf(u',') && Reader.Peek() != u')')
		{
			return nullptr;
		}
	}
	return Reader.Place();
}
