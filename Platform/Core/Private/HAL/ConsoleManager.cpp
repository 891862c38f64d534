#include "HAL/IConsoleManager.h"

#include "Containers/Map.h"
#include "CoreGlobals.h"
#include "Math/NumericNarrowing.h"
#include "Misc/OutputDevice.h"
#include "Misc/Parse.h"
#include "Templates/UniquePtr.h"

DEFINE_LOG_CATEGORY_STATIC(LogConsoleManager, Log, All);

namespace
{
bool IsWordForTrue(const TCHAR* Text)
{
	return FCString::Stricmp(Text, TEXT("True")) == 0;
}

void ParseValue(const TCHAR* Text, bool& Value)
{
	Value = FCString::ToBool(Text);
}

void ParseValue(const TCHAR* Text, int32& Value)
{
	Value = IsWordForTrue(Text) ? 1 : FCString::Atoi(Text);
}

void ParseValue(const TCHAR* Text, float& Value)
{
	Value = IsWordForTrue(Text) ? 1.0f : FCString::Atof(Text);
}

void ParseValue(const TCHAR* Text, FString& Value)
{
	Value = Text;
}

FString PrintValue(bool Value)
{
	return Value ? TEXT("true") : TEXT("false");
}

FString PrintValue(int32 Value)
{
	return FString::FromInt(Value);
}

FString PrintValue(float Value)
{
	return FString::Printf(TEXT("%g"), static_cast<double>(Value));
}

FString PrintValue(const FString& Value)
{
	return Value;
}

const TCHAR* NameOfSetBy(uint32 Flags)
{
	switch (Flags & ECVF_SetByMask)
	{
		case ECVF_SetByConsole:
			return TEXT("Console");
		case ECVF_SetByCode:
			return TEXT("Code");
		default:
			return TEXT("Constructor");
	}
}

/** What objects of both kinds share. */
template <typename InterfaceType>
class TConsoleObject : public InterfaceType
{
public:
	TConsoleObject(const TCHAR* InName, const TCHAR* InHelp, uint32 InFlags)
		: Name(InName)
		, Help(InHelp)
		, Flags(InFlags & ~static_cast<uint32>(ECVF_SetByMask))
	{
	}

	virtual const TCHAR* GetHelp() const override { return *Help; }

	virtual EConsoleVariableFlags GetFlags() const override { return static_cast<EConsoleVariableFlags>(Flags); }

protected:
	const FString Name;
	const FString Help;
	uint32 Flags;
};

/** A variable over a value that lives in it (StorageType is T) or somewhere else (StorageType is T&). */
template <typename T, typename StorageType>
class TConsoleVariable final : public TConsoleObject<IConsoleVariable>
{
public:
	TConsoleVariable(const TCHAR* InName, StorageType InValue, const TCHAR* InHelp, uint32 InFlags)
		: TConsoleObject(InName, InHelp, InFlags)
		, Value(InValue)
	{
	}

	virtual bool GetBool() const override
	{
		if constexpr (std::is_same_v<T, FString>)
		{
			return Value.ToBool();
		}
		else
		{
			return Value != T();
		}
	}

	virtual int32 GetInt() const override { return Convert<int32>(); }

	virtual float GetFloat() const override { return Convert<float>(); }

	virtual FString GetString() const override { return PrintValue(Value); }

	virtual void Set(const TCHAR* InValue, EConsoleVariableFlags SetBy) override
	{
		const uint32 NewOrigin = SetBy & ECVF_SetByMask;
		if (NewOrigin < (Flags & ECVF_SetByMask))
		{
			UE_LOG(LogConsoleManager, Warning,
				TEXT("Setting the console variable '%s' with 'SetBy%s' was ignored as it is lower priority than the previous "
					 "'SetBy%s'. Value remains '%s'"),
				*Name, NameOfSetBy(SetBy), NameOfSetBy(Flags), *GetString());
			return;
		}
		ParseValue(InValue, Value);
		Flags = (Flags & ~static_cast<uint32>(ECVF_SetByMask)) | NewOrigin;
	}

private:
	template <typename NumberType>
	NumberType Convert() const
	{
		NumberType Number = NumberType();
		if constexpr (std::is_same_v<T, FString>)
		{
			ParseValue(*Value, Number);
		}
		else if constexpr (std::is_same_v<T, float> && std::is_same_v<NumberType, int32>)
		{
			Number = NarrowNumber<int32>(Value);
		}
		else
		{
			Number = static_cast<NumberType>(Value);
		}
		return Number;
	}

	StorageType Value;
};

/** Runs either kind of delegate. */
template <typename DelegateType>
class TConsoleCommand final : public TConsoleObject<IConsoleCommand>
{
public:
	TConsoleCommand(const TCHAR* InName, const TCHAR* InHelp, uint32 InFlags, const DelegateType& InDelegate)
		: TConsoleObject(InName, InHelp, InFlags)
		, Delegate(InDelegate)
	{
	}

	virtual bool Execute(const TArray<FString>& Args, FOutputDevice& OutputDevice) override
	{
		if constexpr (std::is_same_v<DelegateType, FConsoleCommandWithArgsDelegate>)
		{
			return Delegate.ExecuteIfBound(Args);
		}
		else
		{
			return Delegate.ExecuteIfBound(Args, OutputDevice);
		}
	}

private:
	const DelegateType Delegate;
};

void AnswerForVariable(const FString& Name, IConsoleVariable& Variable, const FString& Value, FOutputDevice& Ar)
{
	if (Value.IsEmpty())
	{
		Ar.Logf(TEXT("%s = \"%s\"      LastSetBy: %s"), *Name, *Variable.GetString(), NameOfSetBy(Variable.GetFlags()));
	}
	else if (Value == TEXT("?"))
	{
		Ar.Logf(TEXT("HELP for '%s':\n%s"), *Name, Variable.GetHelp());
	}
	else if (Variable.GetFlags() & ECVF_ReadOnly)
	{
		Ar.Logf(ELogVerbosity::Error, TEXT("Error: %s is read only!"), *Name);
	}
	else
	{
		Variable.Set(*Value.TrimQuotes(), ECVF_SetByConsole);
		Ar.Logf(TEXT("%s = \"%s\""), *Name, *Variable.GetString());
	}
}
}

struct IConsoleManager::FState
{
	TMap<FString, TUniquePtr<IConsoleObject>> Objects;

	/** The variable of that name, made if the name is free. */
	template <typename T, typename StorageType>
	IConsoleVariable* RegisterVariable(const TCHAR* Name, StorageType Value, const TCHAR* Help, uint32 Flags)
	{
		if (const TUniquePtr<IConsoleObject>* const Present = Objects.Find(Name))
		{
			UE_CLOG(!(*Present)->AsVariable(), LogConsoleManager, Warning,
				TEXT("The console variable '%s' cannot be made: a command has that name."), Name);
			return (*Present)->AsVariable();
		}
		TConsoleVariable<T, StorageType>* const Variable = new TConsoleVariable<T, StorageType>(Name, Value, Help, Flags);
		Objects.Emplace(Name, Variable);
		return Variable;
	}

	template <typename DelegateType>
	IConsoleCommand* RegisterCommand(const TCHAR* Name, const TCHAR* Help, const DelegateType& Delegate, uint32 Flags)
	{
		if (Objects.Contains(Name))
		{
			UE_LOG(LogConsoleManager, Warning, TEXT("The console command '%s' cannot be made: the name is taken."), Name);
			return nullptr;
		}
		TConsoleCommand<DelegateType>* const Command = new TConsoleCommand<DelegateType>(Name, Help, Flags, Delegate);
		Objects.Emplace(Name, Command);
		return Command;
	}
};

void IConsoleVariable::Set(bool InValue, EConsoleVariableFlags SetBy)
{
	Set(*PrintValue(InValue), SetBy);
}

void IConsoleVariable::Set(int32 InValue, EConsoleVariableFlags SetBy)
{
	Set(*PrintValue(InValue), SetBy);
}

void IConsoleVariable::Set(float InValue, EConsoleVariableFlags SetBy)
{
	Set(*FString::Printf(TEXT("%.9g"), static_cast<double>(InValue)), SetBy);
}

IConsoleManager& IConsoleManager::Get()
{
	// Variables are globals of many libraries; the manager outlives them all.
	static IConsoleManager& Manager = *new IConsoleManager;
	return Manager;
}

IConsoleManager::IConsoleManager()
	: State(*new FState)
{
}

IConsoleVariable* IConsoleManager::RegisterConsoleVariable(const TCHAR* Name, bool DefaultValue, const TCHAR* Help, uint32 Flags)
{
	return State.RegisterVariable<bool, bool>(Name, DefaultValue, Help, Flags);
}

IConsoleVariable* IConsoleManager::RegisterConsoleVariable(const TCHAR* Name, int32 DefaultValue, const TCHAR* Help, uint32 Flags)
{
	return State.RegisterVariable<int32, int32>(Name, DefaultValue, Help, Flags);
}

IConsoleVariable* IConsoleManager::RegisterConsoleVariable(const TCHAR* Name, float DefaultValue, const TCHAR* Help, uint32 Flags)
{
	return State.RegisterVariable<float, float>(Name, DefaultValue, Help, Flags);
}

IConsoleVariable* IConsoleManager::RegisterConsoleVariable(
	const TCHAR* Name, const TCHAR* DefaultValue, const TCHAR* Help, uint32 Flags)
{
	return RegisterConsoleVariable(Name, FString(DefaultValue), Help, Flags);
}

IConsoleVariable* IConsoleManager::RegisterConsoleVariable(
	const TCHAR* Name, const FString& DefaultValue, const TCHAR* Help, uint32 Flags)
{
	return State.RegisterVariable<FString, FString>(Name, DefaultValue, Help, Flags);
}

IConsoleVariable* IConsoleManager::RegisterConsoleVariableRef(const TCHAR* Name, bool& RefValue, const TCHAR* Help, uint32 Flags)
{
	return State.RegisterVariable<bool, bool&>(Name, RefValue, Help, Flags);
}

IConsoleVariable* IConsoleManager::RegisterConsoleVariableRef(const TCHAR* Name, int32& RefValue, const TCHAR* Help, uint32 Flags)
{
	return State.RegisterVariable<int32, int32&>(Name, RefValue, Help, Flags);
}

IConsoleVariable* IConsoleManager::RegisterConsoleVariableRef(const TCHAR* Name, float& RefValue, const TCHAR* Help, uint32 Flags)
{
	return State.RegisterVariable<float, float&>(Name, RefValue, Help, Flags);
}

IConsoleVariable* IConsoleManager::RegisterConsoleVariableRef(
	const TCHAR* Name, FString& RefValue, const TCHAR* Help, uint32 Flags)
{
	return State.RegisterVariable<FString, FString&>(Name, RefValue, Help, Flags);
}

IConsoleCommand* IConsoleManager::RegisterConsoleCommand(
	const TCHAR* Name, const TCHAR* Help, const FConsoleCommandWithArgsDelegate& Command, uint32 Flags)
{
	return State.RegisterCommand(Name, Help, Command, Flags);
}

IConsoleCommand* IConsoleManager::RegisterConsoleCommand(
	const TCHAR* Name, const TCHAR* Help, const FConsoleCommandWithArgsAndOutputDeviceDelegate& Command, uint32 Flags)
{
	return State.RegisterCommand(Name, Help, Command, Flags);
}

void IConsoleManager::UnregisterConsoleObject(IConsoleObject* ConsoleObject)
{
	for (auto It = State.Objects.CreateIterator(); It; ++It)
	{
		if (It.Value().Get() == ConsoleObject)
		{
			It.RemoveCurrent();
			return;
		}
	}
}

IConsoleVariable* IConsoleManager::FindConsoleVariable(const TCHAR* Name) const
{
	IConsoleObject* const Object = FindConsoleObject(Name);
	return Object ? Object->AsVariable() : nullptr;
}

IConsoleObject* IConsoleManager::FindConsoleObject(const TCHAR* Name) const
{
	const TUniquePtr<IConsoleObject>* const Object = State.Objects.Find(Name);
	return Object ? Object->Get() : nullptr;
}

void IConsoleManager::ForEachConsoleObjectThatStartsWith(
	TFunctionRef<void(const TCHAR*, IConsoleObject*)> Visitor, const TCHAR* ThatStartsWith) const
{
	for (const TPair<FString, TUniquePtr<IConsoleObject>>& Object : State.Objects)
	{
		if (!*ThatStartsWith || Object.Key.StartsWith(ThatStartsWith))
		{
			Visitor(*Object.Key, Object.Value.Get());
		}
	}
}

bool IConsoleManager::ProcessUserConsoleInput(const TCHAR* Input, FOutputDevice& Ar, UWorld* InWorld)
{
	FString Name;
	if (!FParse::Token(Input, Name, false))
	{
		return false;
	}
	IConsoleObject* const Object = FindConsoleObject(*Name);
	if (!Object)
	{
		return false;
	}

	if (IConsoleVariable* const Variable = Object->AsVariable())
	{
		AnswerForVariable(Name, *Variable, FString(Input).TrimStartAndEnd(), Ar);
		return true;
	}

	TArray<FString> Args;
	for (FString Arg; FParse::Token(Input, Arg, true);)
	{
		Args.Add(Arg);
	}
	Object->AsCommand()->Execute(Args, Ar);
	return true;
}

FAutoConsoleCommand::FAutoConsoleCommand(
	const TCHAR* Name, const TCHAR* Help, const FConsoleCommandWithArgsDelegate& InCommand, uint32 Flags)
	: Command(IConsoleManager::Get().RegisterConsoleCommand(Name, Help, InCommand, Flags))
{
}

FAutoConsoleCommand::FAutoConsoleCommand(
	const TCHAR* Name, const TCHAR* Help, const FConsoleCommandWithArgsAndOutputDeviceDelegate& InCommand, uint32 Flags)
	: Command(IConsoleManager::Get().RegisterConsoleCommand(Name, Help, InCommand, Flags))
{
}

FAutoConsoleCommand::~FAutoConsoleCommand()
{
	IConsoleManager::Get().UnregisterConsoleObject(Command);
}
