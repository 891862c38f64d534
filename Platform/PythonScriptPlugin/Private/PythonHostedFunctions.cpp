#include "PythonHostedFunctions.h"

#include "PythonConstants.h"
#include "PythonLog.h"
#include "PythonMethods.h"
#include "PythonOperators.h"
#include "PythonTypeTable.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

/** The structure or class of a property's values; null for other kinds. */
static const UStruct* StructOf(const FProperty* Property)
{
	if (const FStructProperty* const Struct = CastField<FStructProperty>(Property))
	{
		return Struct->Struct;
	}
	const FObjectProperty* const Object = CastField<FObjectProperty>(Property);
	return Object ? Object->PropertyClass : nullptr;
}

static const FProperty* FirstParameterOf(const UFunction* Function)
{
	for (TFieldIterator<FProperty> It(Function, EFieldIteratorFlags::ExcludeSuper); It; ++It)
	{
		if (It->HasAnyPropertyFlags(CPF_Parm))
		{
			return It->HasAnyPropertyFlags(CPF_ReturnParm) ? nullptr : *It;
		}
	}
	return nullptr;
}

static const UStruct* HostOfMethod(const UFunction* Function)
{
	return StructOf(FirstParameterOf(Function));
}

static const UStruct* HostOfConstant(const UFunction* Function)
{
	const FString& Path = Function->GetMetaData(TEXT("ScriptConstantHost"));
	return Path.IsEmpty() ? StructOf(Function->GetReturnProperty()) : FindObject<UStruct>(nullptr, *Path);
}

struct FHosting
{
	const TCHAR* Key;
	const UStruct* (*FindHost)(const UFunction* Function);
	bool (*Add)(PyTypeObject* Type, UFunction* Function);
};

static const FHosting GHostings[] = {
	{TEXT("ScriptMethod"), &HostOfMethod, &PythonMethods::AddToHost},
	{TEXT("ScriptOperator"), &HostOfMethod, &PythonOperators::AddToHost},
	{TEXT("ScriptConstant"), &HostOfConstant, &PythonConstants::AddToHost},
};

static bool AddHosted(UFunction* Function, const FHosting& Hosting)
{
	if (!Function->HasMetaData(Hosting.Key))
	{
		return true;
	}
	const UStruct* const Host = Hosting.FindHost(Function);
	PyTypeObject* const Type = Host ? PythonTypeTable::OwnTypeOf(Host) : nullptr;
	if (!Type || !Function->HasAnyFunctionFlags(FUNC_Static))
	{
		UE_LOG(LogPython, Warning, TEXT("%s: %s wants a static function and a type that has it"), *Function->GetPathName(),
			Hosting.Key);
		return true;
	}
	return Hosting.Add(Type, Function);
}

bool PythonHostedFunctions::Add(const UClass* Class)
{
	for (TFieldIterator<UFunction> It(Class, EFieldIteratorFlags::ExcludeSuper); It; ++It)
	{
		for (const FHosting& Hosting : GHostings)
		{
			if (PythonMethods::IsExposed(*It) && !AddHosted(*It, Hosting))
			{
				return false;
			}
		}
	}
	return true;
}
