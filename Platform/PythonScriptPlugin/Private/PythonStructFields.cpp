#include "PythonStructFields.h"

#include "PythonErrors.h"
#include "PythonNaming.h"
#include "PythonProperty.h"
#include "PythonStrings.h"
#include "PythonStruct.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

/** The native functions of a structure; null where it has none. */
struct FNativeMaking
{
	TUniquePtr<FPythonFunction> Make;
	TUniquePtr<FPythonFunction> Break;
};

static TMap<const UScriptStruct*, TSharedPtr<const FNativeMaking>> GMakings;

/** The function of a path such as "/Script/Engine.KismetMathLibrary.MakeVector"; "/Script/" may be left out. */
static UFunction* FindFunction(const FString& Path)
{
	FString ClassPath;
	FString Name;
	if (!Path.Split(TEXT("."), &ClassPath, &Name, ESearchCase::CaseSensitive, ESearchDir::FromEnd))
	{
		return nullptr;
	}
	const FString FullPath = ClassPath.StartsWith(TEXT("/")) ? ClassPath : TEXT("/Script/") + ClassPath;
	const UClass* const Class = FindObject<UClass>(nullptr, *FullPath);
	return Class ? Class->FindFunctionByName(FName(*Name)) : nullptr;
}

static const FNativeMaking& MakingOf(UScriptStruct* Struct)
{
	if (const TSharedPtr<const FNativeMaking>* const Known = GMakings.Find(Struct))
	{
		return **Known;
	}
	const TSharedRef<FNativeMaking> Making = MakeShared<FNativeMaking>();
	const FString Name = PythonNaming::NameOf(Struct);
	if (UFunction* const Make = FindFunction(Struct->GetMetaData(TEXT("HasNativeMake"))))
	{
		Making->Make = FPythonFunction::MakeConstructor(Make, Name);
	}
	if (UFunction* const Break = FindFunction(Struct->GetMetaData(TEXT("HasNativeBreak"))))
	{
		Making->Break = FPythonFunction::MakeMethod(Break, Name, TEXT("to_tuple"), FString());
	}
	return *GMakings.Add(Struct, Making);
}

const FPythonFunction* PythonStructFields::FindMake(UScriptStruct* Struct)
{
	return MakingOf(Struct).Make.Get();
}

/** Takes over what a make function gave. */
static bool TakeOver(UScriptStruct* Struct, const FPythonRef Made, void* Memory)
{
	if (!Made)
	{
		return false;
	}
	const UScriptStruct* const MadeStruct = PythonStruct::StructOfValue(Made.Get());
	if (!MadeStruct || !MadeStruct->IsChildOf(Struct))
	{
		return PythonErrors::RaiseUnexpectedType(PythonNaming::NameOf(Struct), Made.Get());
	}
	Struct->CopyScriptStruct(Memory, PythonStruct::MemoryOf(Made.Get()));
	return true;
}

/** Calls a function the way that a tuple and a dictionary of arguments say. */
static FPythonRef CallWith(const FPythonFunction& Function, PyObject* Arguments, PyObject* Keywords)
{
	const Py_ssize_t PositionalCount = PyTuple_GET_SIZE(Arguments);
	TArray<PyObject*> Values;
	for (Py_ssize_t Index = 0; Index < PositionalCount; ++Index)
	{
		Values.Add(PyTuple_GET_ITEM(Arguments, Index));
	}
	const FPythonRef Names =
		Keywords && PyDict_GET_SIZE(Keywords) > 0 ? FPythonRef::Steal(PySequence_Tuple(Keywords)) : FPythonRef();
	for (Py_ssize_t Index = 0; Names && Index < PyTuple_GET_SIZE(Names.Get()); ++Index)
	{
		Values.Add(PyDict_GetItemWithError(Keywords, PyTuple_GET_ITEM(Names.Get(), Index)));
	}
	return PyErr_Occurred()
		? FPythonRef()
		: FPythonRef::Steal(Function.Call(Function.DefaultTarget(), Values.GetData(), PositionalCount, Names.Get()));
}

static int32 IndexOf(const FPythonPropertyTable& Table, const FPythonProperty* Field)
{
	return Table.GetAll().IndexOfByPredicate([Field](const TUniquePtr<FPythonProperty>& Each) { return Each.Get() == Field; });
}

/** Sets the fields that keywords name, none of which may be among the first ones, which were given by position. */
static bool SetByKeyword(UScriptStruct* Struct, Py_ssize_t PositionalCount, PyObject* Keywords, void* Memory)
{
	const TSharedRef<const FPythonPropertyTable> Table = FPythonPropertyTable::Of(Struct);
	const FString TypeName = PythonNaming::NameOf(Struct);
	PyObject* Keyword = nullptr;
	PyObject* Value = nullptr;
	Py_ssize_t Place = 0;
	while (PyDict_Next(Keywords, &Place, &Keyword, &Value))
	{
		const FString Name = PythonStrings::FromStr(Keyword);
		const FPythonProperty* const Field = Table->Find(Name);
		if (!Field)
		{
			PythonErrors::Raise(
				PyExc_TypeError, FString::Printf(TEXT("'%s' is an invalid keyword argument for %s()"), *Name, *TypeName));
			return false;
		}
		const int32 Index = IndexOf(*Table, Field);
		if (Index < PositionalCount)
		{
			PythonErrors::Raise(PyExc_TypeError,
				FString::Printf(
					TEXT("argument for %s() given by name ('%s') and position (%d)"), *TypeName, *Field->GetName(), Index + 1));
			return false;
		}
		if (!Field->Set(Memory, Value))
		{
			return false;
		}
	}
	return true;
}

static bool SetFieldsInOrder(UScriptStruct* Struct, PyObject* Values, void* Memory)
{
	const TSharedRef<const FPythonPropertyTable> Table = FPythonPropertyTable::Of(Struct);
	for (Py_ssize_t Index = 0; Index < PyTuple_GET_SIZE(Values); ++Index)
	{
		if (!Table->GetAll()[static_cast<int32>(Index)]->Set(Memory, PyTuple_GET_ITEM(Values, Index)))
		{
			return false;
		}
	}
	return true;
}

bool PythonStructFields::Construct(UScriptStruct* Struct, PyObject* Arguments, PyObject* Keywords, void* Memory)
{
	const Py_ssize_t PositionalCount = PyTuple_GET_SIZE(Arguments);
	const Py_ssize_t Count = PositionalCount + (Keywords ? PyDict_GET_SIZE(Keywords) : 0);
	if (Count == 0)
	{
		// Not every structure that there is can be made of zeros: there is no day 0.
		return true;
	}
	if (const FPythonFunction* const Make = FindMake(Struct))
	{
		return TakeOver(Struct, CallWith(*Make, Arguments, Keywords), Memory);
	}
	const int32 NumFields = FPythonPropertyTable::Of(Struct)->GetAll().Num();
	if (Count > NumFields)
	{
		PythonErrors::Raise(PyExc_TypeError,
			FString::Printf(TEXT("%s() takes at most %d argument%s (%d given)"), *PythonNaming::NameOf(Struct), NumFields,
				NumFields == 1 ? TEXT("") : TEXT("s"), static_cast<int32>(Count)));
		return false;
	}
	return SetFieldsInOrder(Struct, Arguments, Memory) && (!Keywords || SetByKeyword(Struct, PositionalCount, Keywords, Memory));
}

/** What the structure is made of now, in the order of its make function. */
static FPythonRef PartsOf(UScriptStruct* Struct, const void* Memory)
{
	const FPythonRef Value = PythonStruct::ToPython(Struct, Memory);
	return Value ? PythonStructFields::ToTuple(Struct, Value.Get()) : FPythonRef();
}

/** The given values, followed by those that the structure has now. */
static FPythonRef Complete(UScriptStruct* Struct, const FPythonRef Values, const FPythonFunction& Make, const void* Memory)
{
	const Py_ssize_t Given = PyTuple_GET_SIZE(Values.Get());
	if (Given >= Make.GetInputs().Num())
	{
		return Values;
	}
	const FPythonRef Present = PartsOf(Struct, Memory);
	const FPythonRef Rest =
		Present ? FPythonRef::Steal(PyTuple_GetSlice(Present.Get(), Given, PyTuple_GET_SIZE(Present.Get()))) : FPythonRef();
	return Rest ? FPythonRef::Steal(PySequence_Concat(Values.Get(), Rest.Get())) : FPythonRef();
}

/** The items of a sequence, as many as its length says: what a script calls a sequence may have no end. */
static FPythonRef ReadSequence(UScriptStruct* Struct, PyObject* Sequence, int32 MaxCount)
{
	const Py_ssize_t Count = PySequence_Size(Sequence);
	if (Count > MaxCount)
	{
		PythonErrors::Raise(PyExc_TypeError,
			FString::Printf(
				TEXT("%s has %d fields (%d given)"), *PythonNaming::NameOf(Struct), MaxCount, static_cast<int32>(Count)));
		return FPythonRef();
	}
	const FPythonRef Items = Count >= 0 ? FPythonRef::Steal(PyTuple_New(Count)) : FPythonRef();
	for (Py_ssize_t Index = 0; Items && Index < Count; ++Index)
	{
		PyObject* const Item = PySequence_GetItem(Sequence, Index);
		if (!Item)
		{
			return FPythonRef();
		}
		PyTuple_SET_ITEM(Items.Get(), Index, Item);
	}
	return Items;
}

bool PythonStructFields::SetInOrder(UScriptStruct* Struct, PyObject* Sequence, void* Memory)
{
	const FPythonFunction* const Make = FindMake(Struct);
	const int32 MaxCount = Make ? Make->GetInputs().Num() : FPythonPropertyTable::Of(Struct)->GetAll().Num();
	const FPythonRef Given = ReadSequence(Struct, Sequence, MaxCount);
	if (!Given || !Make)
	{
		return Given && SetFieldsInOrder(Struct, Given.Get(), Memory);
	}
	const FPythonRef Values = Complete(Struct, Given, *Make, Memory);
	return Values && TakeOver(Struct, CallWith(*Make, Values.Get(), nullptr), Memory);
}

static bool CheckKeywords(const FPythonFunction& Make, PyObject* Keywords)
{
	PyObject* Keyword = nullptr;
	PyObject* Value = nullptr;
	Py_ssize_t Place = 0;
	while (PyDict_Next(Keywords, &Place, &Keyword, &Value))
	{
		const FString Name = PythonStrings::Describe(Keyword);
		const bool bKnown = Make.GetInputs().ContainsByPredicate(
			[&Name](const FPythonFunction::FParameter& Input) { return Input.Name.Equals(Name, ESearchCase::CaseSensitive); });
		if (!bKnown)
		{
			PythonErrors::Raise(
				PyExc_TypeError, FString::Printf(TEXT("'%s' is an invalid keyword argument for %s()"), *Name, *Make.GetName()));
			return false;
		}
	}
	return true;
}

/** For a structure without fields: what the mapping does not name stays as it is. */
static bool MakeByName(UScriptStruct* Struct, const FPythonFunction& Make, PyObject* Mapping, void* Memory)
{
	const FPythonRef Keywords = FPythonRef::Steal(PyDict_New());
	const bool bRead = Keywords && PyDict_Update(Keywords.Get(), Mapping) == 0 && CheckKeywords(Make, Keywords.Get());
	const FPythonRef Present = bRead ? PartsOf(Struct, Memory) : FPythonRef();
	const FPythonRef None = Present ? FPythonRef::Steal(PyTuple_New(0)) : FPythonRef();
	if (!None)
	{
		return false;
	}
	const TArray<FPythonFunction::FParameter>& Inputs = Make.GetInputs();
	for (int32 Index = 0; Index < Inputs.Num() && Index < PyTuple_GET_SIZE(Present.Get()); ++Index)
	{
		PyObject* const Name = Inputs[Index].Keyword.Get();
		if (!PyDict_SetDefault(Keywords.Get(), Name, PyTuple_GET_ITEM(Present.Get(), Index)))
		{
			return false;
		}
	}
	return TakeOver(Struct, CallWith(Make, None.Get(), Keywords.Get()), Memory);
}

bool PythonStructFields::SetByName(UScriptStruct* Struct, PyObject* Mapping, void* Memory)
{
	const TSharedRef<const FPythonPropertyTable> Table = FPythonPropertyTable::Of(Struct);
	if (const FPythonFunction* const Make = Table->GetAll().Num() == 0 ? FindMake(Struct) : nullptr)
	{
		return MakeByName(Struct, *Make, Mapping, Memory);
	}
	// A dictionary of our own: a script's mapping may give anything as its items, and change while its values are looked at.
	const FPythonRef Values = FPythonRef::Steal(PyDict_New());
	if (!Values || PyDict_Update(Values.Get(), Mapping) < 0)
	{
		return false;
	}
	PyObject* Name = nullptr;
	PyObject* Value = nullptr;
	Py_ssize_t Place = 0;
	while (PyDict_Next(Values.Get(), &Place, &Name, &Value))
	{
		const FPythonProperty* const Field = PythonProperty::FindOrRaise(*Table, Struct, Name);
		if (!Field || !Field->Set(Memory, Value))
		{
			return false;
		}
	}
	return true;
}

static FPythonRef ListFields(UScriptStruct* Struct, const void* Memory)
{
	const TSharedRef<const FPythonPropertyTable> Table = FPythonPropertyTable::Of(Struct);
	FPythonRef Tuple = FPythonRef::Steal(PyTuple_New(Table->GetAll().Num()));
	for (int32 Index = 0; Tuple && Index < Table->GetAll().Num(); ++Index)
	{
		FPythonRef Field = Table->GetAll()[Index]->Get(Memory);
		if (!Field)
		{
			return FPythonRef();
		}
		PyTuple_SET_ITEM(Tuple.Get(), Index, Field.Release());
	}
	return Tuple;
}

FPythonRef PythonStructFields::ToTuple(UScriptStruct* Struct, PyObject* Value)
{
	const FPythonFunction* const Break = MakingOf(Struct).Break.Get();
	if (!Break)
	{
		return ListFields(Struct, PythonStruct::MemoryOf(Value));
	}
	FPythonRef Parts = FPythonRef::Steal(Break->CallOn(Value, nullptr, 0, nullptr));
	// The one value of a structure that has no other comes bare.
	return !Parts || PyTuple_Check(Parts.Get()) ? MoveTemp(Parts) : FPythonRef::Steal(PyTuple_Pack(1, Parts.Get()));
}

void PythonStructFields::ReleaseAll()
{
	GMakings.Empty();
}
