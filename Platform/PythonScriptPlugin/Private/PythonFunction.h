#pragma once

#include "PythonConverter.h"

class FBoolProperty;
class UFunction;
class UObject;

/** A reflected function as scripts call it: all that a call needs, worked out once. */
class FPythonFunction
{
public:
	struct FParameter
	{
		FProperty* Property;
		FString Name;
		/** The interned name, for keywords. Null for a return value. */
		FPythonRef Keyword;
		TUniquePtr<FPythonConverter> Converter;
		int32 Offset = 0;
		bool bHasDefault = false;
	};

	/**
	 * Null if a parameter is of a kind that Python cannot carry.
	 *
	 * @param DeprecationMessage  For a name that scripts should no longer use; otherwise empty.
	 */
	static TUniquePtr<FPythonFunction> Make(UFunction* Function, const FString& Name, const FString& DeprecationMessage);

	/**
	 * A static function as a method of the type of its first parameter, which is the value that it is called on. That value changes
	 * if the parameter is a reference, or by the metadata ScriptMethodMutable and ScriptMethodSelfReturn.
	 *
	 * @param OwnerName  The type, for messages.
	 */
	static TUniquePtr<FPythonFunction> MakeMethod(
		UFunction* Function, const FString& OwnerName, const FString& Name, const FString& DeprecationMessage);

	/** A static function as the constructor of a type: no argument is required, what has no default is zero. */
	static TUniquePtr<FPythonFunction> MakeConstructor(UFunction* Function, const FString& TypeName);
	~FPythonFunction();

	UFunction* GetFunction() const { return Function; }
	/** "get_text" */
	const FString& GetName() const { return Name; }
	const TArray<FParameter>& GetInputs() const { return Inputs; }
	const TArray<FParameter>& GetOutputs() const { return Outputs; }
	/** Null if C++ returns nothing. */
	const FParameter* GetReturn() const { return Return.Get(); }
	/** The value that a static function is called on as a method; null for other functions. */
	const FParameter* GetSelf() const { return Self.Get(); }

	/** Is it called without an instance? */
	bool IsStatic() const;
	/** Empty for a function that scripts may use. */
	const FString& GetDeprecationMessage() const { return DeprecationMessage; }
	/** The default value as a Python literal, "..." if it cannot be written as one. */
	FString DescribeDefault(const FParameter& Input) const;

	/** The type of what a call gives, as scripts write it: "Optional[str]", "Tuple[int, str]", "None". */
	FString ResultTypeName() const;

	/**
	 * Calls the function.
	 *
	 * @param Arguments  Positional arguments, then the values of Keywords (a tuple of names, or null).
	 * @return What the rules of packing make of return value and out parameters; null with a Python error.
	 */
	PyObject* Call(UObject* Target, PyObject* const* Arguments, Py_ssize_t PositionalCount, PyObject* Keywords) const
	{
		return Call(Target, nullptr, Arguments, PositionalCount, Keywords);
	}

	/** Calls a static function on a value of the type of its first parameter. */
	PyObject* CallOn(PyObject* SelfValue, PyObject* const* Arguments, Py_ssize_t PositionalCount, PyObject* Keywords) const
	{
		return Call(DefaultTarget(), SelfValue, Arguments, PositionalCount, Keywords);
	}

	/** The object that static functions run on. */
	UObject* DefaultTarget() const;

private:
	enum class EForm
	{
		Function,
		Method,
		Constructor,
	};

	FPythonFunction(
		UFunction* InFunction, EForm InForm, const FString& InPlace, const FString& InName, const FString& InDeprecationMessage);
	static TUniquePtr<FPythonFunction> Finish(FPythonFunction* Unfinished);
	PyObject* Call(
		UObject* Target, PyObject* SelfValue, PyObject* const* Arguments, Py_ssize_t PositionalCount, PyObject* Keywords) const;
	class FBlock;

	bool AddParameters();
	bool AddParameter(FProperty* Property);
	bool AddSelf(FParameter&& Parameter, bool bIsInput, bool bIsOutput);
	void ReadDefaults();
	void MakeDefaults();
	/** The parameter whose value the instance has after a call; null for the usual function, which changes none. */
	const FParameter* FindNewSelf() const;
	void UpdateSelf(PyObject* SelfValue, const uint8* Block) const;
	/** The return value that scripts see. */
	const FParameter* FindShownReturn() const;

	/** Brings the arguments into the order of Inputs; null for those that are not given. */
	bool SortArguments(PyObject* const* Arguments, Py_ssize_t PositionalCount, PyObject* Keywords, PyObject** OutValues) const;
	int32 FindInput(PyObject* Keyword) const;
	bool ReadInputs(PyObject* const* Values, uint8* Block) const;
	PyObject* PackResult(const uint8* Block) const;
	bool WarnOfDeprecation() const;

	UFunction* const Function;
	const EForm Form;
	/** What messages call it: "VelmoraData.get_text()". */
	const FString Place;
	const FString Name;
	const FString DeprecationMessage;
	TArray<FParameter> Inputs;
	TArray<FParameter> Outputs;
	TUniquePtr<FParameter> Return;
	TUniquePtr<FParameter> Self;
	bool bChangesSelf = false;
	/** A bool that is swallowed: true shows in the out parameters, false as None. */
	const FBoolProperty* Success = nullptr;

	/** What zeroed memory does not begin, and what must be ended. */
	TArray<FProperty*> NeedingConstruction;
	TArray<FProperty*> NeedingDestruction;
	/** A block with the default values; null if there are none. */
	uint8* Defaults = nullptr;
};
