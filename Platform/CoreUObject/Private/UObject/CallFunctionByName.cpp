#include "UObject/Object.h"

#include "Misc/OutputDevice.h"
#include "Misc/Parse.h"
#include "UObject/CoreUObjectLog.h"
#include "UObject/ParameterDefaults.h"
#include "UObject/UnrealType.h"

namespace
{
/** The block of a call: parameters at their first values, destroyed with it. */
class FParameterBlock
{
public:
	explicit FParameterBlock(const UFunction& InFunction)
		: Function(InFunction)
		, Data(FMemory::MallocZeroed(FMath::Max<SIZE_T>(InFunction.ParmsSize, 1)))
	{
		for (const FProperty* Property : TFieldRange<FProperty>(&Function))
		{
			Property->InitializeValue_InContainer(Data);
		}
	}
	~FParameterBlock()
	{
		for (const FProperty* Property : TFieldRange<FProperty>(&Function))
		{
			Property->DestroyValue_InContainer(Data);
		}
		FMemory::Free(Data);
	}
	FParameterBlock(const FParameterBlock&) = delete;
	FParameterBlock& operator=(const FParameterBlock&) = delete;

	void* Get() const { return Data; }

private:
	const UFunction& Function;
	void* Data;
};
}

bool UObject::CallFunctionByNameWithArguments(const TCHAR* Cmd, FOutputDevice& Ar, UObject* Executor, bool bForceCallWithNonExec)
{
	const TCHAR* Text = Cmd;
	FString Name;
	if (!FParse::Token(Text, Name, true))
	{
		return false;
	}
	UFunction* const Function = FindFunction(FName(*Name));
	if (!Function || (!bForceCallWithNonExec && !Function->HasAnyFunctionFlags(FUNC_Exec)))
	{
		return false;
	}

	const FParameterBlock Block(*Function);
	for (const FProperty* Parameter : TFieldRange<FProperty>(Function))
	{
		const bool bOnlyOut =
			Parameter->HasAnyPropertyFlags(CPF_OutParm) && !Parameter->HasAnyPropertyFlags(CPF_ReferenceParm | CPF_ConstParm);
		if (bOnlyOut || Parameter->HasAnyPropertyFlags(CPF_ReturnParm))
		{
			continue;
		}
		void* const Value = Parameter->ContainerPtrToValuePtr<void>(Block.Get());
		const FObjectPropertyBase* const ObjectParameter = CastField<FObjectPropertyBase>(Parameter);
		if (Executor && ObjectParameter && Executor->IsA(ObjectParameter->PropertyClass))
		{
			ObjectParameter->SetObjectPropertyValue(Value, Executor);
			Executor = nullptr;
			continue;
		}
		FString Argument;
		if (!FParse::Token(Text, Argument, true))
		{
			ImportParameterDefault(*Function, *Parameter, Value);
			continue;
		}
		if (!Parameter->ImportText(*Argument, Value, PPF_None, this, &Ar))
		{
			Ar.Logf(TEXT("'%s': Bad or missing property '%s'"), *Name, *Parameter->GetName());
			return false;
		}
	}
	ProcessEvent(Function, Block.Get());
	return true;
}
