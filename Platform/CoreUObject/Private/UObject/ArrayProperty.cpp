#include "UObject/DynamicContainers.h"
#include "UObject/PropertyText.h"
#include "UObject/UObjectGlobals.h"

FArrayProperty::FArrayProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InFlags)
	: FProperty(StaticClass(), InOwner, InName, InFlags)
{
	MinAlignment = alignof(TArray<int32>);
}

FArrayProperty::~FArrayProperty()
{
	delete Inner;
}

void FArrayProperty::AddCppProperty(FProperty* Property)
{
	check(!Inner);
	Inner = Property;
	Inner->SetOffset_Internal(0);
	OwnOps = MakeDynamicArrayOps(*Inner);
	SetOps(*OwnOps);
}

void FArrayProperty::SetOps(const FArrayOps& InOps)
{
	Ops = &InOps;
	ElementSize = Ops->GetSize();
}

FString FArrayProperty::GetCPPType(FString* ExtendedTypeText, uint32 CPPExportFlags) const
{
	const FString Arguments = TEXT("<") + Inner->GetCPPType() + TEXT(">");
	if (ExtendedTypeText)
	{
		*ExtendedTypeText = Arguments;
		return TEXT("TArray");
	}
	return TEXT("TArray") + Arguments;
}

bool FArrayProperty::Identical(const void* A, const void* B, uint32 PortFlags) const
{
	const FScriptArrayHelper Left(this, A);
	if (!B)
	{
		return Left.Num() == 0;
	}
	const FScriptArrayHelper Right(this, B);
	if (Left.Num() != Right.Num())
	{
		return false;
	}
	for (int32 Index = 0; Index < Left.Num(); ++Index)
	{
		if (!Inner->Identical(Left.GetRawPtr(Index), Right.GetRawPtr(Index), PortFlags))
		{
			return false;
		}
	}
	return true;
}

bool FArrayProperty::ContainsObjectReference() const
{
	return Inner->ContainsObjectReference();
}

void FArrayProperty::AddReferencedObjects(void* Value, FReferenceCollector& Collector) const
{
	const FScriptArrayHelper Helper(this, Value);
	for (int32 Index = 0; Index < Helper.Num(); ++Index)
	{
		Inner->AddReferencedObjects(Helper.GetRawPtr(Index), Collector);
	}
}

void FArrayProperty::AddTypeReferences(FReferenceCollector& Collector) const
{
	Inner->AddTypeReferences(Collector);
}

void FArrayProperty::ExportTextItem(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent,
	int32 PortFlags, UObject* ExportRootScope) const
{
	const FScriptArrayHelper Helper(this, PropertyValue);
	ValueStr += TEXT("(");
	for (int32 Index = 0; Index < Helper.Num(); ++Index)
	{
		ValueStr += Index ? TEXT(",") : TEXT("");
		Inner->ExportTextItem(ValueStr, Helper.GetRawPtr(Index), nullptr, Parent, PortFlags | PPF_Delimited, ExportRootScope);
	}
	ValueStr += TEXT(")");
}

void FArrayProperty::CopyValue(void* Dest, const void* Src) const
{
	const FScriptArrayHelper From(this, Src);
	FScriptArrayHelper To(this, Dest);
	To.EmptyAndAddValues(From.Num());
	for (int32 Index = 0; Index < From.Num(); ++Index)
	{
		Inner->CopySingleValue(To.GetRawPtr(Index), From.GetRawPtr(Index));
	}
}

uint32 FArrayProperty::HashValue(const void* Src) const
{
	checkNoEntry();
	return 0;
}

bool FArrayProperty::IsSameTypeAs(const FProperty& Other) const
{
	const FArrayProperty& OtherArray = static_cast<const FArrayProperty&>(Other);
	return Inner->SameType(OtherArray.Inner);
}

const TCHAR* FArrayProperty::ImportValue(
	const TCHAR* Buffer, void* Data, int32 PortFlags, UObject* OwnerObject, FOutputDevice* ErrorText) const
{
	FTextReader Reader(Buffer);
	FScriptArrayHelper Helper(this, Data);
	Helper.EmptyValues();
	if (!Reader.TakeIf(u'('))
	{
		return nullptr;
	}
	while (!Reader.TakeIf(u')'))
	{
		const int32 Index = Helper.AddValue();
		const TCHAR* const Next =
			Inner->ImportText(Reader.Place(), Helper.GetRawPtr(Index), PortFlags | PPF_Delimited, OwnerObject, ErrorText);
		if (!Next)
		{
			return nullptr;
		}
		Reader.Continue(Next);
		if (!Reader.TakeIf(u',') && Reader.Peek() != u')')
		{
			return nullptr;
		}
	}
	return Reader.Place();
}
