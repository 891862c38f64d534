#include "UObject/Class.h"
#include "UObject/Stack.h"
#include "UObject/UnrealType.h"

FProperty* UFunction::GetReturnProperty() const
{
	for (FProperty* Property : TFieldRange<FProperty>(this))
	{
		if (Property->HasAnyPropertyFlags(CPF_ReturnParm))
		{
			return Property;
		}
	}
	return nullptr;
}

void UFunction::Invoke(UObject* Object, FFrame& Stack)
{
	checkf(Func, TEXT("Function %s has no body"), *GetPathName());
	Func(Object, Stack);
}

void UFunction::StaticLink(bool bRelinkExistingProperties)
{
	Super::StaticLink(bRelinkExistingProperties);
	NumParms = 0;
	ReturnValueOffset = MAX_uint16;
	for (const FProperty* Property : TFieldRange<FProperty>(this))
	{
		if (Property->HasAnyPropertyFlags(CPF_Parm))
		{
			++NumParms;
		}
		if (Property->HasAnyPropertyFlags(CPF_ReturnParm))
		{
			ReturnValueOffset = static_cast<uint16>(Property->GetOffset_ForUFunction());
		}
	}
	ParmsSize = static_cast<uint16>(PropertiesSize);
}
