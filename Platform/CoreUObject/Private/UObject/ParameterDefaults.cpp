#include "UObject/ParameterDefaults.h"

namespace
{
/** FVector and FRotator: their members in order, as bare numbers. */
bool ImportNumbers(const UScriptStruct& Struct, const FString& Text, void* Value)
{
	TArray<FString> Numbers;
	Text.ParseIntoArray(Numbers, TEXT(","));
	int32 Index = 0;
	for (const FProperty* Member : TFieldRange<FProperty>(&Struct))
	{
		const FNumericProperty* const Number = CastField<FNumericProperty>(Member);
		if (!Number || !Numbers.IsValidIndex(Index) ||
			!Number->SetNumericPropertyValueFromString(Member->ContainerPtrToValuePtr<void>(Value), *Numbers[Index]))
		{
			return false;
		}
		++Index;
	}
	return Index == Numbers.Num();
}
}

const FString* FindParameterDefault(const UFunction& Function, const FProperty& Parameter)
{
	return Function.FindMetaData(*(TEXT("CPP_Default_") + Parameter.GetName()));
}

bool ImportParameterDefault(const UFunction& Function, const FProperty& Parameter, void* Value)
{
	const FString* const Text = FindParameterDefault(Function, Parameter);
	if (!Text)
	{
		return false;
	}
	if (const FStructProperty* const Struct = CastField<FStructProperty>(&Parameter))
	{
		// An empty text stands for the named zero constants, which is what an initialised structure is.
		if (Text->IsEmpty())
		{
			return true;
		}
		if (!Text->StartsWith(TEXT("(")))
		{
			return ImportNumbers(*Struct->Struct, *Text, Value);
		}
	}
	return Parameter.ImportText(**Text, Value, PPF_None, nullptr) != nullptr;
}
