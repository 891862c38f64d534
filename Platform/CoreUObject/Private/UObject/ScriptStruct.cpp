#include "UObject/Class.h"

#include "Misc/OutputDevice.h"
#include "UObject/PropertyText.h"
#include "UObject/UnrealType.h"

namespace
{
/** Calls the operation for each of the structures that stand one behind the other. */
template <typename OperationType>
void ForEachOf(const UScriptStruct& Struct, void* First, int32 ArrayDim, OperationType Operation)
{
	for (int32 Index = 0; Index < ArrayDim; ++Index)
	{
		Operation(static_cast<uint8*>(First) + SIZE_T(Struct.GetStructureSize()) * Index);
	}
}
}

void UScriptStruct::InitializeStruct(void* Dest, int32 ArrayDim) const
{
	if (CppStructOps)
	{
		ForEachOf(*this, Dest, ArrayDim, CppStructOps->Construct);
	}
	else
	{
		FMemory::Memzero(Dest, SIZE_T(GetStructureSize()) * ArrayDim);
		Super::InitializeStruct(Dest, ArrayDim);
	}
}

void UScriptStruct::DestroyStruct(void* Dest, int32 ArrayDim) const
{
	if (CppStructOps)
	{
		ForEachOf(*this, Dest, ArrayDim, CppStructOps->Destruct);
	}
	else
	{
		Super::DestroyStruct(Dest, ArrayDim);
	}
}

void UScriptStruct::CopyScriptStruct(void* Dest, const void* Src, int32 ArrayDim) const
{
	const uint8* Source = static_cast<const uint8*>(Src);
	ForEachOf(*this, Dest, ArrayDim,
		[this, &Source](void* Target)
		{
			if (CppStructOps)
			{
				CppStructOps->Copy(Target, Source);
			}
			else
			{
				for (const FProperty* Property : TFieldRange<FProperty>(this))
				{
					Property->CopyCompleteValue_InContainer(Target, Source);
				}
			}
			Source += GetStructureSize();
		});
}

void UScriptStruct::ClearScriptStruct(void* Dest, int32 ArrayDim) const
{
	DestroyStruct(Dest, ArrayDim);
	InitializeStruct(Dest, ArrayDim);
}

bool UScriptStruct::CompareScriptStruct(const void* A, const void* B, uint32 PortFlags) const
{
	if (A == B)
	{
		return true;
	}
	if (!A || !B)
	{
		return false;
	}
	if (CppStructOps && CppStructOps->Identical)
	{
		return CppStructOps->Identical(A, B);
	}
	for (const FProperty* Property : TFieldRange<FProperty>(this))
	{
		for (int32 Index = 0; Index < Property->ArrayDim; ++Index)
		{
			if (!Property->Identical_InContainer(A, B, Index, PortFlags))
			{
				return false;
			}
		}
	}
	return true;
}

uint32 UScriptStruct::GetStructTypeHash(const void* Src) const
{
	if (CppStructOps && CppStructOps->GetTypeHash)
	{
		return CppStructOps->GetTypeHash(Src);
	}
	uint32 Hash = 0;
	for (const FProperty* Property : TFieldRange<FProperty>(this))
	{
		Hash = HashCombine(Hash, Property->GetValueTypeHash(Property->ContainerPtrToValuePtr<void>(Src)));
	}
	return Hash;
}

void UScriptStruct::ExportText(FString& ValueStr, const void* Value, const void* Defaults, UObject* OwnerObject, int32 PortFlags,
	UObject* ExportRootScope) const
{
	if (CppStructOps && CppStructOps->ExportText)
	{
		CppStructOps->ExportText(ValueStr, Value);
		return;
	}
	ValueStr += TEXT("(");
	bool bFirst = true;
	for (const FProperty* Property : TFieldRange<FProperty>(this))
	{
		for (int32 Index = 0; Index < Property->ArrayDim; ++Index)
		{
			FString Member;
			if (!Property->ExportText_InContainer(
					Index, Member, Value, Defaults, OwnerObject, PortFlags | PPF_Delimited, ExportRootScope))
			{
				continue;
			}
			ValueStr += bFirst ? TEXT("") : TEXT(",");
			ValueStr += Property->GetName();
			if (Property->ArrayDim > 1)
			{
				ValueStr += FString::Printf(TEXT("[%d]"), Index);
			}
			ValueStr += TEXT("=") + Member;
			bFirst = false;
		}
	}
	ValueStr += TEXT(")");
}

const TCHAR* UScriptStruct::ImportText(const TCHAR* Buffer, void* Value, UObject* OwnerObject, int32 PortFlags,
	FOutputDevice* ErrorText, const FString& StructName) const
{
	if (CppStructOps && CppStructOps->ImportText)
	{
		return CppStructOps->ImportText(Buffer, Value) ? Buffer : nullptr;
	}
	FTextReader Reader(Buffer);
	if (!Reader.TakeIf(u'('))
	{
		return Reader.Fail(ErrorText, *FString::Printf(TEXT("%s: expected '('"), *StructName));
	}
	while (!Reader.TakeIf(u')'))
	{
		const FString Name = Reader.TakeWord();
		const FProperty* const Property = FindPropertyByName(FName(*Name));
		int32 Index = 0;
		if (Property && Reader.TakeIf(u'['))
		{
			Index = FCString::Atoi(*Reader.TakeWord());
			Reader.TakeIf(u']');
		}
		if (!Property || Index < 0 || Index >= Property->ArrayDim || !Reader.TakeIf(u'='))
		{
			return Reader.Fail(
				ErrorText, *FString::Printf(TEXT("%s: expected the name of a member and '=', found '%s'"), *StructName, *Name));
		}
		const TCHAR* const Next = Property->ImportText(Reader.Place(), Property->ContainerPtrToValuePtr<void>(Value, Index),
			PortFlags | PPF_Delimited, OwnerObject, ErrorText);
		if (!Next)
		{
			return nullptr;
		}
		Reader.Continue(Next);
		if (!Reader.TakeIf(u',') && Reader.Peek() != u')')
		{
			return Reader.Fail(ErrorText, *FString::Printf(TEXT("%s: expected ',' or ')' behind %s"), *StructName, *Name));
		}
	}
	return Reader.Place();
}
