#include "PythonFunction.h"

#include "UObject/Stack.h"
#include "PythonErrors.h"
#include "PythonInterpreter.h"
#include "PythonName.h"
#include "PythonNaming.h"
#include "PythonStrings.h"
#include "PythonStruct.h"
#include "PythonText.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

#include <alloca.h>

/** The parameter block of one call, on the stack of the caller. */
class FPythonFunction::FBlock
{
public:
	FBlock(const FPythonFunction& InFunction, void* InMemory)
		: Function(InFunction)
		, Memory(static_cast<uint8*>(InMemory))
	{
		FMemory::Memzero(Memory, Function.Function->ParmsSize);
		for (const FProperty* Property : Function.NeedingConstruction)
		{
			Property->InitializeValue_InContainer(Memory);
		}
	}

	~FBlock()
	{
		for (const FProperty* Property : Function.NeedingDestruction)
		{
			Property->DestroyValue_InContainer(Memory);
		}
	}

	uint8* Get() const { return Memory; }

	/** Any parameter is aligned within a block that begins at a multiple of this. */
	static constexpr SIZE_T Alignment = 16;

private:
	const FPythonFunction& Function;
	uint8* const Memory;
};

FPythonFunction::FPythonFunction(
	UFunction* InFunction, EForm InForm, const FString& InPlace, const FString& InName, const FString& InDeprecationMessage)
	: Function(InFunction)
	, Form(InForm)
	, Place(InPlace)
	, Name(InName)
	, DeprecationMessage(InDeprecationMessage)
{
}

FPythonFunction::~FPythonFunction()
{
	if (Defaults)
	{
		for (const FProperty* Property : NeedingDestruction)
		{
			Property->DestroyValue_InContainer(Defaults);
		}
		FMemory::Free(Defaults);
	}
}

TUniquePtr<FPythonFunction> FPythonFunction::Finish(FPythonFunction* Unfinished)
{
	TUniquePtr<FPythonFunction> Result(Unfinished);
	if (!Result->AddParameters())
	{
		return nullptr;
	}
	Result->ReadDefaults();
	return Result;
}

static FString PlaceOf(const FString& OwnerName, const FString& Name)
{
	return OwnerName + TEXT(".") + Name + TEXT("()");
}

TUniquePtr<FPythonFunction> FPythonFunction::Make(UFunction* Function, const FString& Name, const FString& DeprecationMessage)
{
	const FString Place = PlaceOf(PythonNaming::NameOf(Function->GetOwnerClass()), Name);
	return Finish(new FPythonFunction(Function, EForm::Function, Place, Name, DeprecationMessage));
}

TUniquePtr<FPythonFunction> FPythonFunction::MakeMethod(
	UFunction* Function, const FString& OwnerName, const FString& Name, const FString& DeprecationMessage)
{
	TUniquePtr<FPythonFunction> Result =
		Finish(new FPythonFunction(Function, EForm::Method, PlaceOf(OwnerName, Name), Name, DeprecationMessage));
	return Result && Result->Self ? MoveTemp(Result) : nullptr;
}

TUniquePtr<FPythonFunction> FPythonFunction::MakeConstructor(UFunction* Function, const FString& TypeName)
{
	return Finish(new FPythonFunction(Function, EForm::Constructor, TypeName + TEXT("()"), TypeName, FString()));
}

bool FPythonFunction::IsStatic() const
{
	return Function->HasAnyFunctionFlags(FUNC_Static) && !Self;
}

UObject* FPythonFunction::DefaultTarget() const
{
	return Function->GetOwnerClass()->GetDefaultObject();
}

bool FPythonFunction::AddParameters()
{
	for (TFieldIterator<FProperty> It(Function, EFieldIteratorFlags::ExcludeSuper); It; ++It)
	{
		if (It->HasAnyPropertyFlags(CPF_Parm) && !AddParameter(*It))
		{
			return false;
		}
	}
	const FBoolProperty* const BoolReturn = Return ? CastField<FBoolProperty>(Return->Property) : nullptr;
	Success = Outputs.Num() > 0 ? BoolReturn : nullptr;
	return true;
}

static FPythonFunction::FParameter Describe(FProperty* Property)
{
	FPythonFunction::FParameter Parameter;
	Parameter.Property = Property;
	Parameter.Converter = FPythonConverter::Make(Property);
	Parameter.Offset = Property->GetOffset_ForUFunction();
	return Parameter;
}

bool FPythonFunction::AddParameter(FProperty* Property)
{
	FParameter Parameter = Describe(Property);
	if (!Parameter.Converter || Property->ArrayDim != 1)
	{
		return false;
	}
	if (!Property->HasAnyPropertyFlags(CPF_ZeroConstructor))
	{
		NeedingConstruction.Add(Property);
	}
	if (!Property->HasAnyPropertyFlags(CPF_NoDestructor))
	{
		NeedingDestruction.Add(Property);
	}
	if (Property->HasAnyPropertyFlags(CPF_ReturnParm))
	{
		Return = MakeUnique<FParameter>(MoveTemp(Parameter));
		return true;
	}

	Parameter.Name = PythonNaming::NameOfParameter(Property);
	Parameter.Keyword = PythonStrings::Intern(Parameter.Name);
	// A constant reference may carry the out flag too. One marked as reference goes in and comes back.
	const bool bIsOutput = Property->HasAnyPropertyFlags(CPF_OutParm) && !Property->HasAnyPropertyFlags(CPF_ConstParm);
	const bool bIsInput = !bIsOutput || Property->HasAnyPropertyFlags(CPF_ReferenceParm);
	if (Form == EForm::Method && !Self)
	{
		return AddSelf(MoveTemp(Parameter), bIsInput, bIsOutput);
	}
	if (bIsInput && bIsOutput)
	{
		FParameter Output = Describe(Property);
		Output.Name = Parameter.Name;
		Outputs.Add(MoveTemp(Output));
	}
	(bIsInput ? Inputs : Outputs).Add(MoveTemp(Parameter));
	return true;
}

bool FPythonFunction::AddSelf(FParameter&& Parameter, bool bIsInput, bool bIsOutput)
{
	Self = MakeUnique<FParameter>(MoveTemp(Parameter));
	bChangesSelf = bIsOutput || Function->HasMetaData(TEXT("ScriptMethodMutable"));
	return bIsInput;
}

const FPythonFunction::FParameter* FPythonFunction::FindNewSelf() const
{
	if (Self && Return && Function->HasMetaData(TEXT("ScriptMethodSelfReturn")))
	{
		return Return.Get();
	}
	return bChangesSelf ? Self.Get() : nullptr;
}

const FPythonFunction::FParameter* FPythonFunction::FindShownReturn() const
{
	return Success || FindNewSelf() == Return.Get() ? nullptr : Return.Get();
}

void FPythonFunction::UpdateSelf(PyObject* SelfValue, const uint8* Block) const
{
	const FParameter* const NewSelf = FindNewSelf();
	const FStructProperty* const Property = NewSelf ? CastField<FStructProperty>(NewSelf->Property) : nullptr;
	const UScriptStruct* const Struct = Property ? PythonStruct::StructOfValue(SelfValue) : nullptr;
	if (Struct && Struct->IsChildOf(Property->Struct))
	{
		Property->Struct->CopyScriptStruct(PythonStruct::MemoryOf(SelfValue), Block + NewSelf->Offset);
	}
}

/** Reads a default of a structure that C++ metadata writes as bare numbers: "0.000000,0.000000,0.000000". */
static bool ImportFields(const FStructProperty* Property, const FString& Text, void* Value)
{
	TArray<FString> Fields;
	Text.ParseIntoArray(Fields, TEXT(","));
	int32 Index = 0;
	for (TFieldIterator<FProperty> It(Property->Struct); It && Index < Fields.Num(); ++It, ++Index)
	{
		if (!It->ImportText(*Fields[Index], It->ContainerPtrToValuePtr<void>(Value), PPF_None, nullptr))
		{
			return false;
		}
	}
	return true;
}

static bool ImportDefault(const FProperty* Property, const FString& Text, void* Value)
{
	const FStructProperty* const Struct = CastField<FStructProperty>(Property);
	if (Struct && !Text.StartsWith(TEXT("(")))
	{
		return ImportFields(Struct, Text, Value);
	}
	return Property->ImportText(*Text, Value, PPF_None, nullptr) != nullptr;
}

void FPythonFunction::MakeDefaults()
{
	if (Defaults)
	{
		return;
	}
	Defaults = static_cast<uint8*>(FMemory::Malloc(Function->ParmsSize, FBlock::Alignment));
	FMemory::Memzero(Defaults, Function->ParmsSize);
	for (const FProperty* Property : NeedingConstruction)
	{
		Property->InitializeValue_InContainer(Defaults);
	}
}

void FPythonFunction::ReadDefaults()
{
	for (FParameter& Input : Inputs)
	{
		const FString* const Text = Function->FindMetaData(*(TEXT("CPP_Default_") + Input.Property->GetName()));
		if (!Text && Form != EForm::Constructor)
		{
			continue;
		}
		MakeDefaults();
		// An empty text stands for the value that C++ makes without arguments.
		Input.bHasDefault = !Text || Text->IsEmpty() || ImportDefault(Input.Property, *Text, Defaults + Input.Offset);
	}
}

FString FPythonFunction::DescribeDefault(const FParameter& Input) const
{
	FPythonRef Value = Input.Converter->ToPython(Defaults + Input.Offset);
	if (Value && (PythonName::Get(Value.Get()) || PythonText::Get(Value.Get())))
	{
		Value = FPythonRef::Steal(PyObject_Str(Value.Get()));
	}
	else if (Value && PythonStruct::StructOfValue(Value.Get()))
	{
		const FPythonRef Fields = FPythonRef::Steal(PyObject_CallMethod(Value.Get(), "to_tuple", nullptr));
		Value = Fields ? FPythonRef::Steal(PySequence_List(Fields.Get())) : FPythonRef();
	}
	const bool bIsLiteral = Value &&
		(Value.Get() == Py_None || PyLong_Check(Value.Get()) || PyFloat_Check(Value.Get()) || PyUnicode_Check(Value.Get()) ||
			PyList_Check(Value.Get()));
	const FPythonRef Text = bIsLiteral ? FPythonRef::Steal(PyObject_Repr(Value.Get())) : FPythonRef();
	PyErr_Clear();
	return Text ? PythonStrings::FromStr(Text.Get()) : FString(TEXT("..."));
}

FString FPythonFunction::ResultTypeName() const
{
	TArray<FString> Types;
	if (const FParameter* const Shown = FindShownReturn())
	{
		Types.Add(Shown->Converter->TypeName());
	}
	for (const FParameter& Output : Outputs)
	{
		Types.Add(Output.Converter->TypeName());
	}
	if (Types.Num() == 0)
	{
		return TEXT("None");
	}
	const FString Result = Types.Num() == 1 ? Types[0] : FString::Printf(TEXT("Tuple[%s]"), *FString::Join(Types, TEXT(", ")));
	return Success ? FString::Printf(TEXT("Optional[%s]"), *Result) : Result;
}

int32 FPythonFunction::FindInput(PyObject* Keyword) const
{
	for (int32 Index = 0; Index < Inputs.Num(); ++Index)
	{
		if (Inputs[Index].Keyword.Get() == Keyword)
		{
			return Index;
		}
	}
	// Names that were made at run time are not the interned ones.
	for (int32 Index = 0; Index < Inputs.Num(); ++Index)
	{
		if (PyUnicode_Compare(Inputs[Index].Keyword.Get(), Keyword) == 0)
		{
			return Index;
		}
	}
	return INDEX_NONE;
}

bool FPythonFunction::SortArguments(
	PyObject* const* Arguments, Py_ssize_t PositionalCount, PyObject* Keywords, PyObject** OutValues) const
{
	const Py_ssize_t KeywordCount = Keywords ? PyTuple_GET_SIZE(Keywords) : 0;
	if (PositionalCount + KeywordCount > Inputs.Num())
	{
		PythonErrors::Raise(PyExc_TypeError,
			FString::Printf(TEXT("%s() takes at most %d argument%s (%d given)"), *Name, Inputs.Num(),
				Inputs.Num() == 1 ? TEXT("") : TEXT("s"), static_cast<int32>(PositionalCount + KeywordCount)));
		return false;
	}
	for (int32 Index = 0; Index < Inputs.Num(); ++Index)
	{
		OutValues[Index] = Index < PositionalCount ? Arguments[Index] : nullptr;
	}
	for (Py_ssize_t Place = 0; Place < KeywordCount; ++Place)
	{
		PyObject* const Keyword = PyTuple_GET_ITEM(Keywords, Place);
		const int32 Index = FindInput(Keyword);
		if (Index == INDEX_NONE)
		{
			PythonErrors::Raise(PyExc_TypeError,
				FString::Printf(TEXT("'%s' is an invalid keyword argument for %s()"), *PythonStrings::FromStr(Keyword), *Name));
			return false;
		}
		if (OutValues[Index])
		{
			PythonErrors::Raise(PyExc_TypeError,
				FString::Printf(
					TEXT("argument for %s() given by name ('%s') and position (%d)"), *Name, *Inputs[Index].Name, Index + 1));
			return false;
		}
		OutValues[Index] = Arguments[PositionalCount + Place];
	}
	return true;
}

bool FPythonFunction::ReadInputs(PyObject* const* Values, uint8* Block) const
{
	for (int32 Index = 0; Index < Inputs.Num(); ++Index)
	{
		const FParameter& Input = Inputs[Index];
		if (Values[Index])
		{
			if (Input.Converter->FromPython(Values[Index], Block + Input.Offset))
			{
				continue;
			}
			PythonErrors::Prefix(FString::Printf(TEXT("%s: argument '%s' (pos %d)"), *Place, *Input.Name, Index + 1));
			return false;
		}
		if (!Input.bHasDefault)
		{
			PythonErrors::Raise(PyExc_TypeError,
				FString::Printf(TEXT("%s() missing required argument '%s' (pos %d)"), *Name, *Input.Name, Index + 1));
			return false;
		}
		Input.Property->CopyCompleteValue(Block + Input.Offset, Defaults + Input.Offset);
	}
	return true;
}

PyObject* FPythonFunction::PackResult(const uint8* Block) const
{
	if (Success && !Success->GetPropertyValue(Block + Return->Offset))
	{
		Py_RETURN_NONE;
	}
	const FParameter* const Shown = FindShownReturn();
	const bool bWithReturn = Shown != nullptr;
	const int32 Count = Outputs.Num() + (bWithReturn ? 1 : 0);
	if (Count == 0)
	{
		Py_RETURN_NONE;
	}
	if (Count == 1)
	{
		const FParameter& Only = bWithReturn ? *Shown : Outputs[0];
		return Only.Converter->ToPython(Block + Only.Offset).Release();
	}

	FPythonRef Tuple = FPythonRef::Steal(PyTuple_New(Count));
	for (int32 Index = 0; Tuple && Index < Count; ++Index)
	{
		const FParameter& Part = bWithReturn ? (Index == 0 ? *Shown : Outputs[Index - 1]) : Outputs[Index];
		FPythonRef Value = Part.Converter->ToPython(Block + Part.Offset);
		if (!Value)
		{
			return nullptr;
		}
		PyTuple_SET_ITEM(Tuple.Get(), Index, Value.Release());
	}
	return Tuple.Release();
}

bool FPythonFunction::WarnOfDeprecation() const
{
	const FString ClassName = PythonNaming::NameOf(Function->GetOwnerClass());
	const FPythonRef Message = PythonStrings::ToPython(
		FString::Printf(TEXT("%s: Function '%s' on '%s' is deprecated: %s"), *ClassName, *Name, *ClassName, *DeprecationMessage));
	return Message && PyErr_WarnFormat(PyExc_DeprecationWarning, 1, "%U", Message.Get()) == 0;
}

PyObject* FPythonFunction::Call(
	UObject* Target, PyObject* SelfValue, PyObject* const* Arguments, Py_ssize_t PositionalCount, PyObject* Keywords) const
{
	if (!DeprecationMessage.IsEmpty() && !WarnOfDeprecation())
	{
		return nullptr;
	}

	PyObject* const* Values = Arguments;
	if (Keywords || PositionalCount != Inputs.Num())
	{
		PyObject** const Sorted = static_cast<PyObject**>(alloca(sizeof(PyObject*) * (Inputs.Num() + 1)));
		if (!SortArguments(Arguments, PositionalCount, Keywords, Sorted))
		{
			return nullptr;
		}
		Values = Sorted;
	}

	const FBlock Block(*this, Align(alloca(Function->ParmsSize + FBlock::Alignment), FBlock::Alignment));
	if ((Self && !Self->Converter->FromPython(SelfValue, Block.Get() + Self->Offset)) || !ReadInputs(Values, Block.Get()))
	{
		return nullptr;
	}
	Target->ProcessEvent(Function, Block.Get());
	FString Error;
	if (FFrame::TakeExecutionError(Error))
	{
		PyErr_SetString(PyExc_RuntimeError, TCHAR_TO_UTF8(*Error));
		return nullptr;
	}
	if (Self)
	{
		UpdateSelf(SelfValue, Block.Get());
	}
	return PackResult(Block.Get());
}
