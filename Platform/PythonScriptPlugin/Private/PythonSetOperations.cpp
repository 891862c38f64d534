#include "PythonSetOperations.h"

#include "PythonContainers.h"
#include "UObject/UnrealType.h"

static FScriptSetHelper HelperOf(const FPythonContainerType& Type, const void* Set)
{
	return FScriptSetHelper(CastField<FSetProperty>(Type.Property), Set);
}

template <typename FunctionType>
static void ForEach(const FScriptSetHelper& Set, FunctionType Function)
{
	for (int32 Index = 0; Index < Set.GetMaxIndex(); ++Index)
	{
		if (Set.IsValidIndex(Index))
		{
			Function(Index, Set.GetElementPtr(Index));
		}
	}
}

static void AddAll(const FPythonContainerType& Type, void* Target, const void* Operand)
{
	FScriptSetHelper Set = HelperOf(Type, Target);
	ForEach(HelperOf(Type, Operand),
		[&Set](int32, const void* Element)
		{
			if (Set.FindElementIndex(Element) == INDEX_NONE)
			{
				Set.AddElement(Element);
			}
		});
}

/** Removes what is in the operand, or what is not. */
static void RemoveIf(const FPythonContainerType& Type, void* Target, const void* Operand, bool bIsInOperand)
{
	FScriptSetHelper Set = HelperOf(Type, Target);
	const FScriptSetHelper Other = HelperOf(Type, Operand);
	ForEach(Set,
		[&Set, &Other, bIsInOperand](int32 Index, const void* Element)
		{
			if ((Other.FindElementIndex(Element) != INDEX_NONE) == bIsInOperand)
			{
				Set.RemoveAt(Index);
			}
		});
}

static void KeepCommon(const FPythonContainerType& Type, void* Target, const void* Operand)
{
	RemoveIf(Type, Target, Operand, false);
}

static void RemoveCommon(const FPythonContainerType& Type, void* Target, const void* Operand)
{
	RemoveIf(Type, Target, Operand, true);
}

static void ExchangeCommon(const FPythonContainerType& Type, void* Target, const void* Operand)
{
	const FScopedPropertyValue New(Type.Property);
	Type.Property->CopyCompleteValue(New.Get(), Operand);
	RemoveCommon(Type, New.Get(), Target);
	RemoveCommon(Type, Target, Operand);
	AddAll(Type, Target, New.Get());
}

const PythonSetOperations::FOperation PythonSetOperations::Union = {&AddAll, true, &PyNumber_Or};
const PythonSetOperations::FOperation PythonSetOperations::Intersection = {&KeepCommon, false, &PyNumber_And};
const PythonSetOperations::FOperation PythonSetOperations::Difference = {&RemoveCommon, false, &PyNumber_Subtract};
const PythonSetOperations::FOperation PythonSetOperations::SymmetricDifference = {&ExchangeCommon, true, &PyNumber_Xor};

/** Reads the elements of an iterable into a set. Those of another type are an error or left out. */
static bool ReadOperand(const FPythonContainerType& Type, PyObject* Iterable, bool bMustFit, void* Memory, bool& bOutAllFit)
{
	bOutAllFit = true;
	if (bMustFit)
	{
		return PythonContainers::FillSet(Type, Iterable, Memory);
	}
	const FPythonRef Iterator = PythonContainers::Iterate(Type, Iterable);
	FScriptSetHelper Set = HelperOf(Type, Memory);
	while (const FPythonRef Item = Iterator ? FPythonRef::Steal(PyIter_Next(Iterator.Get())) : FPythonRef())
	{
		const FScopedPropertyValue Element(Type.ElementProperty);
		if (Type.Element->FromPython(Item.Get(), Element.Get()))
		{
			Set.AddElement(Element.Get());
		}
		else
		{
			PyErr_Clear();
			bOutAllFit = false;
		}
	}
	return Iterator && !PyErr_Occurred();
}

bool PythonSetOperations::Apply(PyObject* Set, const FOperation& Operation, PyObject* const* Iterables, Py_ssize_t Count)
{
	const TSharedRef<const FPythonContainerType> Type = FPythonContainer::From(Set).Type;
	TArray<TUniquePtr<FScopedPropertyValue>> Operands;
	for (Py_ssize_t Index = 0; Index < Count; ++Index)
	{
		Operands.Add(MakeUnique<FScopedPropertyValue>(Type->Property));
		bool bAllFit = false;
		if (!ReadOperand(*Type, Iterables[Index], Operation.bAddsElements, Operands.Last()->Get(), bAllFit))
		{
			return false;
		}
	}
	for (const TUniquePtr<FScopedPropertyValue>& Operand : Operands)
	{
		Operation.Apply(*Type, FPythonContainer::From(Set).Memory, Operand->Get());
	}
	return true;
}

static int32 CountCommon(const FScriptSetHelper& Set, const FScriptSetHelper& Other)
{
	int32 Count = 0;
	ForEach(Set, [&](int32, const void* Element) { Count += Other.FindElementIndex(Element) != INDEX_NONE ? 1 : 0; });
	return Count;
}

bool PythonSetOperations::Relate(PyObject* Set, PyObject* Iterable, FRelation& OutRelation)
{
	const FPythonContainer& Container = FPythonContainer::From(Set);
	const FScopedPropertyValue Operand(Container.Type->Property);
	bool bAllFit = false;
	if (!ReadOperand(*Container.Type, Iterable, false, Operand.Get(), bAllFit))
	{
		return false;
	}
	const FScriptSetHelper Own = HelperOf(*Container.Type, Container.Memory);
	const FScriptSetHelper Other = HelperOf(*Container.Type, Operand.Get());
	const int32 NumCommon = CountCommon(Own, Other);
	OutRelation = {NumCommon == Own.Num(), bAllFit && NumCommon == Other.Num(), NumCommon == 0};
	return true;
}
