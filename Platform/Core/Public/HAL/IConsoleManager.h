#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"
#include "Delegates/Delegate.h"
#include "Templates/Function.h"

class FOutputDevice;
class IConsoleCommand;
class IConsoleVariable;

enum EConsoleVariableFlags
{
	ECVF_Default = 0x0,

	/** The user cannot set it from the console. */
	ECVF_ReadOnly = 0x4,

	/** Who set it last; a weaker origin leaves the value of a stronger one alone. */
	ECVF_SetByMask = 0xff000000,
	ECVF_SetByConstructor = 0x00000000,
	ECVF_SetByCode = 0x09000000,
	ECVF_SetByConsole = 0x0A000000,
};

DECLARE_DELEGATE_TwoParams(
	FConsoleCommandWithArgsAndOutputDeviceDelegate, const TArray<FString>& /* Args */, FOutputDevice& /* Ar */);
DECLARE_DELEGATE_OneParam(FConsoleCommandWithArgsDelegate, const TArray<FString>& /* Args */);

/** Something that has a name in the console. */
class CORE_API IConsoleObject
{
public:
	virtual ~IConsoleObject() = default;

	virtual const TCHAR* GetHelp() const = 0;
	virtual EConsoleVariableFlags GetFlags() const = 0;

	/** Null if it is no variable. */
	virtual IConsoleVariable* AsVariable() { return nullptr; }

	/** Null if it is no command. */
	virtual IConsoleCommand* AsCommand() { return nullptr; }
};

/** A value that code reads by name and the user sets in the console. Reading converts between the kinds. */
class CORE_API IConsoleVariable : public IConsoleObject
{
public:
	virtual bool GetBool() const = 0;
	virtual int32 GetInt() const = 0;
	virtual float GetFloat() const = 0;
	virtual FString GetString() const = 0;

	/** Sets the value from text. */
	virtual void Set(const TCHAR* InValue, EConsoleVariableFlags SetBy = ECVF_SetByCode) = 0;

	void Set(bool InValue, EConsoleVariableFlags SetBy = ECVF_SetByCode);
	void Set(int32 InValue, EConsoleVariableFlags SetBy = ECVF_SetByCode);
	void Set(float InValue, EConsoleVariableFlags SetBy = ECVF_SetByCode);

	virtual IConsoleVariable* AsVariable() override { return this; }
};

/** A function that the user calls in the console. */
class CORE_API IConsoleCommand : public IConsoleObject
{
public:
	virtual bool Execute(const TArray<FString>& Args, FOutputDevice& OutputDevice) = 0;

	virtual IConsoleCommand* AsCommand() override { return this; }
};

/** The variables and commands of the console by name, in any case of letters. What is registered lives until it is unregistered. */
class CORE_API IConsoleManager
{
public:
	static IConsoleManager& Get();

	/**
	 * Makes a variable. A name that is registered already keeps its variable, which is returned; a name that belongs to a
	 * command gives null and a warning.
	 */
	IConsoleVariable* RegisterConsoleVariable(
		const TCHAR* Name, bool DefaultValue, const TCHAR* Help, uint32 Flags = ECVF_Default);
	IConsoleVariable* RegisterConsoleVariable(
		const TCHAR* Name, int32 DefaultValue, const TCHAR* Help, uint32 Flags = ECVF_Default);
	IConsoleVariable* RegisterConsoleVariable(
		const TCHAR* Name, float DefaultValue, const TCHAR* Help, uint32 Flags = ECVF_Default);
	IConsoleVariable* RegisterConsoleVariable(
		const TCHAR* Name, const TCHAR* DefaultValue, const TCHAR* Help, uint32 Flags = ECVF_Default);
	IConsoleVariable* RegisterConsoleVariable(
		const TCHAR* Name, const FString& DefaultValue, const TCHAR* Help, uint32 Flags = ECVF_Default);

	/** As above, over a value that the caller owns and reads directly; its present value is the default. */
	IConsoleVariable* RegisterConsoleVariableRef(
		const TCHAR* Name, bool& RefValue, const TCHAR* Help, uint32 Flags = ECVF_Default);
	IConsoleVariable* RegisterConsoleVariableRef(
		const TCHAR* Name, int32& RefValue, const TCHAR* Help, uint32 Flags = ECVF_Default);
	IConsoleVariable* RegisterConsoleVariableRef(
		const TCHAR* Name, float& RefValue, const TCHAR* Help, uint32 Flags = ECVF_Default);
	IConsoleVariable* RegisterConsoleVariableRef(
		const TCHAR* Name, FString& RefValue, const TCHAR* Help, uint32 Flags = ECVF_Default);

	/** Makes a command; a name that is registered already keeps what it has, with a warning and null. */
	IConsoleCommand* RegisterConsoleCommand(
		const TCHAR* Name, const TCHAR* Help, const FConsoleCommandWithArgsDelegate& Command, uint32 Flags = ECVF_Default);
	IConsoleCommand* RegisterConsoleCommand(const TCHAR* Name, const TCHAR* Help,
		const FConsoleCommandWithArgsAndOutputDeviceDelegate& Command, uint32 Flags = ECVF_Default);

	void UnregisterConsoleObject(IConsoleObject* ConsoleObject);

	/** Null for an unknown name and for a command. */
	IConsoleVariable* FindConsoleVariable(const TCHAR* Name) const;

	/** Null for an unknown name. */
	IConsoleObject* FindConsoleObject(const TCHAR* Name) const;

	/** Calls the visitor for every object whose name begins with a text. */
	void ForEachConsoleObjectThatStartsWith(
		TFunctionRef<void(const TCHAR* Name, IConsoleObject* Object)> Visitor, const TCHAR* ThatStartsWith = TEXT("")) const;

	/**
	 * Runs a line of console input: "Name" prints a variable, "Name ?" its help, "Name Value" sets it, and a command gets the words
	 * behind its name as arguments.
	 *
	 * @return False, with nothing said, if the first word is no known name.
	 */
	bool ProcessUserConsoleInput(const TCHAR* Input, FOutputDevice& Ar, class UWorld* InWorld = nullptr);

private:
	IConsoleManager();
	~IConsoleManager();

	struct FState;
	FState& State;
};

/** A variable that is registered where it is defined, for use as a global. */
template <class T>
class TAutoConsoleVariable
{
public:
	TAutoConsoleVariable(const TCHAR* Name, const T& DefaultValue, const TCHAR* Help, uint32 Flags = ECVF_Default)
		: Variable(IConsoleManager::Get().RegisterConsoleVariable(Name, DefaultValue, Help, Flags))
	{
	}

	~TAutoConsoleVariable() { IConsoleManager::Get().UnregisterConsoleObject(Variable); }

	TAutoConsoleVariable(const TAutoConsoleVariable&) = delete;
	TAutoConsoleVariable& operator=(const TAutoConsoleVariable&) = delete;

	T GetValueOnGameThread() const
	{
		if constexpr (std::is_same_v<T, bool>)
		{
			return Variable->GetBool();
		}
		else if constexpr (std::is_same_v<T, int32>)
		{
			return Variable->GetInt();
		}
		else if constexpr (std::is_same_v<T, float>)
		{
			return Variable->GetFloat();
		}
		else
		{
			return Variable->GetString();
		}
	}

	IConsoleVariable* operator->() const { return Variable; }

	IConsoleVariable* AsVariable() const { return Variable; }

private:
	IConsoleVariable* Variable;
};

/** A command that is registered where it is defined, for use as a global. */
class CORE_API FAutoConsoleCommand
{
public:
	FAutoConsoleCommand(
		const TCHAR* Name, const TCHAR* Help, const FConsoleCommandWithArgsDelegate& Command, uint32 Flags = ECVF_Default);
	FAutoConsoleCommand(const TCHAR* Name, const TCHAR* Help, const FConsoleCommandWithArgsAndOutputDeviceDelegate& Command,
		uint32 Flags = ECVF_Default);
	~FAutoConsoleCommand();

	FAutoConsoleCommand(const FAutoConsoleCommand&) = delete;
	FAutoConsoleCommand& operator=(const FAutoConsoleCommand&) = delete;

private:
	IConsoleCommand* Command;
};
