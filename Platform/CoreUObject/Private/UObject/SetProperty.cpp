#include "UObject/DynamicContainers.h"
#include "UObject/FixedReferences.h"
#include "UObject/PropertyText.h"
#include "UObject/UObjectGlobals.h"

FSetProperty::FSetProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InFlags)
	: FProperty(StaticClass(), InOwner, InName, InFlags)
{
	MinAlignment = alignof(TSet<int32>);
}

FSetProperty::~FSetProperty()
{
	delete ElementProp;
}

void FSetProperty::AddCppProperty(FProperty* Property)
{
	check(!ElementProp);
	ElementProp = Property;
	ElementProp->SetOffset_Internal(0);
	OwnOps = MakeDynamicSetOps(*ElementProp);
	SetOps(*OwnOps);
}

void FSetProperty::SetOps(const FSetOps& InOps)
{
	Ops = &InOps;
	ElementSize = Ops->GetSize();
}

FString FSetProperty::GetCPPType(FString* ExtendedTypeText, uint32 CPPExportFlags) const
{
	const FString Arguments = TEXT("<") + ElementProp->GetCPPType() + TEXT(">");
	if (ExtendedTypeText)
	{
		*ExtendedTypeText = Arguments;
		return TEXT("TSet");
	}
	return TEXT("TSet") + Arguments;
}

bool FSetProperty::Identical(const void* A, const void* B, uint32 PortFlags) const
{
	const FScriptSetHelper Left(this, A);
	if (!B)
	{
		return Left.Num() == 0;
	}
	const FScriptSetHelper Right(this, B);
	if (Left.Num() != Right.Num())
	{
		return false;
	}
	for (int32 Index = 0; Index < Left.GetMaxIndex(); ++Index)
	{
		if (Left.IsValidIndex(Index) && Right.FindElementIndex(Left.GetElementPtr(Index)) == INDEX_NONE)
		{
			return false;
		}
	}
	return true;
}

bool FSetProperty::ContainsObjectReference() const
{
	return ElementProp->ContainsObjectReference();
}

void FSetProperty::AddReferencedObjects(void* Value, FReferenceCollector& Collector) const
{
	FFixedReferences Fixed(Collector);
	const FScriptSetHelper Helper(this, Value);
	for (int32 Index = 0; Index < Helper.GetMaxIndex(); ++Index)
	{
		if (Helper.IsValidIndex(Index))
		{
			ElementProp->AddReferencedObjects(Helper.GetElementPtr(Index), Fixed);
		}
	}
}

void FSetProperty::AddTypeReferences(FReferenceCollector& Collector) const
{
	ElementProp->AddTypeReferences(Collector);
}

void FSetProperty::ExportTextItem(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent,
	int32 PortFlags, UObject* ExportRootScope) const
{
	const FScriptSetHelper Helper(this, PropertyValue);
	ValueStr += TEXT("(");
	bool bFirst = true;
	for (int32 Index = 0; Index < Helper.GetMaxIndex(); ++Index)
	{
		if (Helper.IsValidIndex(Index))
		{
			ValueStr += bFirst ? TEXT("") : TEXT(",");
			ElementProp->ExportTextItem(
				ValueStr, Helper.GetElementPtr(Index), nullptr, Parent, PortFlags | PPF_Delimited, ExportRootScope);
			bFirst = false;
		}
	}
	ValueStr += TEXT(")");
}

void FSetProperty::CopyValue(void* Dest, const void* Src) const
{
	const FScriptSetHelper From(this, Src);
	FScriptSetHelper To(this, Dest);
	To.EmptyElements(From.Num());
	for (int32 Index = 0; Index < From.GetMaxIndex(); ++Index)
	{
		if (From.IsValidIndex(Index))
		{
			To.AddElement(From.GetElementPtr(Index));
		}
	}
}

uint32 FSetProperty::HashValue(const void* Src) const
{
	checkNoEntry();
	return 0;
}

bool FSetProperty::IsSameTypeAs(const FProperty& Other) const
{
	const FSetProperty& OtherSet = static_cast<const FSetProperty&>(Other);
	return IsNative() == OtherSet.IsNative() && ElementProp->SameType(OtherSet.ElementProp);
}

const TCHAR* FSetProperty::ImportValue(
	const TCHAR* Buffer, void* Data, int32 PortFlags, UObject* OwnerObject, FOutputDevice* ErrorText) const
{
	FTextReader Reader(Buffer);
	FScriptSetHelper Helper(this, Data);
	Helper.EmptyElements();
	if (!Reader.TakeIf(u'('))
	{
		return nullptr;
	}
	while (!Reader.TakeIf(u')'))
	{
		const FPropertyValue Element(*ElementProp);
		const TCHAR* const Next =
			ElementProp->ImportText(Reader.Place(), Element.Get(), PortFlags | PPF_Delimited, OwnerObject, ErrorText);
		if (!Next)
		{
			return nullptr;
		}
		Helper.AddElement(Element.Get());
		Reader.Continue(Next);
		if (!Reader.TakeIf(u',') && Reader.Peek() != u')')
		{
			return nullptr;
		}
	}
	return Reader.Place();
}
