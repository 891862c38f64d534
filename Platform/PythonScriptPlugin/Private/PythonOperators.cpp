#include "PythonOperators.h"

#include "PythonErrors.h"
#include "PythonInterpreter.h"
#include "PythonLog.h"
#include "PythonReferences.h"
#include "PythonStrings.h"
#include "PythonStruct.h"
#include "PythonTypeSpec.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

#include <structmember.h>

enum class EPythonOperatorForm
{
	/** -a */
	Unary,
	/** a + b */
	Binary,
	/** a < b */
	Comparison,
	/** a += b */
	InPlace,
};

struct FPythonOperatorName
{
	/** As the metadata writes it. */
	const TCHAR* Sign;
	const TCHAR* Method;
	EPythonOperatorForm Form;
};

// clang-format off
static const FPythonOperatorName GOperators[] = {
	{ TEXT("bool"), TEXT("__bool__"),      EPythonOperatorForm::Unary },
	{ TEXT("neg"),  TEXT("__neg__"),       EPythonOperatorForm::Unary },
	{ TEXT("=="),   TEXT("__eq__"),        EPythonOperatorForm::Comparison },
	{ TEXT("!="),   TEXT("__ne__"),        EPythonOperatorForm::Comparison },
	{ TEXT("<"),    TEXT("__lt__"),        EPythonOperatorForm::Comparison },
	{ TEXT("<="),   TEXT("__le__"),        EPythonOperatorForm::Comparison },
	{ TEXT(">"),    TEXT("__gt__"),        EPythonOperatorForm::Comparison },
	{ TEXT(">="),   TEXT("__ge__"),        EPythonOperatorForm::Comparison },
	{ TEXT("+"),    TEXT("__add__"),       EPythonOperatorForm::Binary },
	{ TEXT("-"),    TEXT("__sub__"),       EPythonOperatorForm::Binary },
	{ TEXT("*"),    TEXT("__mul__"),       EPythonOperatorForm::Binary },
	{ TEXT("/"),    TEXT("__truediv__"),   EPythonOperatorForm::Binary },
	{ TEXT("%"),    TEXT("__mod__"),       EPythonOperatorForm::Binary },
	{ TEXT("&"),    TEXT("__and__"),       EPythonOperatorForm::Binary },
	{ TEXT("|"),    TEXT("__or__"),        EPythonOperatorForm::Binary },
	{ TEXT("^"),    TEXT("__xor__"),       EPythonOperatorForm::Binary },
	{ TEXT("<<"),   TEXT("__lshift__"),    EPythonOperatorForm::Binary },
	{ TEXT(">>"),   TEXT("__rshift__"),    EPythonOperatorForm::Binary },
	{ TEXT("+="),   TEXT("__iadd__"),      EPythonOperatorForm::InPlace },
	{ TEXT("-="),   TEXT("__isub__"),      EPythonOperatorForm::InPlace },
	{ TEXT("*="),   TEXT("__imul__"),      EPythonOperatorForm::InPlace },
	{ TEXT("/="),   TEXT("__itruediv__"),  EPythonOperatorForm::InPlace },
	{ TEXT("%="),   TEXT("__imod__"),      EPythonOperatorForm::InPlace },
	{ TEXT("&="),   TEXT("__iand__"),      EPythonOperatorForm::InPlace },
	{ TEXT("|="),   TEXT("__ior__"),       EPythonOperatorForm::InPlace },
	{ TEXT("^="),   TEXT("__ixor__"),      EPythonOperatorForm::InPlace },
	{ TEXT("<<="),  TEXT("__ilshift__"),   EPythonOperatorForm::InPlace },
	{ TEXT(">>="),  TEXT("__irshift__"),   EPythonOperatorForm::InPlace },
};
// clang-format on

/** An operator as attribute of a type. The type outlives it, since it stands in the type's dictionary. */
struct FPythonOperator
{
	vectorcallfunc Vectorcall;
	PyTypeObject* Owner;
	EPythonOperatorForm Form;
	TArray<TUniquePtr<FPythonFunction>> Functions;

	static FPythonOperator& From(PyObject* Self) { return PythonTypes::StateOf<FPythonOperator>(Self); }
};

/** A float has no fraction to lose where an operator of whole numbers takes it. */
static bool WouldLoseItsFraction(const FProperty* Property, PyObject* Value)
{
	const FNumericProperty* const Number = CastField<FNumericProperty>(Property);
	return Number && Number->IsInteger() && PyFloat_Check(Value);
}

/** Is the present error one of a value that does not fit? The names of fields and native make functions raise plain ones. */
static bool IsMisfit()
{
	PyObject* const Type = PyErr_Occurred();
	return PyErr_ExceptionMatches(PyExc_TypeError) || PyErr_ExceptionMatches(PyExc_ValueError) ||
		PyErr_ExceptionMatches(PyExc_OverflowError) || Type == PyExc_Exception || Type == PyExc_RuntimeError;
}

/** Does the parameter take the operand? If not there may be an error, which is not of the operand. */
static bool Takes(const FPythonFunction::FParameter& Parameter, PyObject* Operand)
{
	if (WouldLoseItsFraction(Parameter.Property, Operand))
	{
		return false;
	}
	const FScopedPropertyValue Converted(Parameter.Property);
	if (Parameter.Converter->FromPython(Operand, Converted.Get()))
	{
		return true;
	}
	if (IsMisfit())
	{
		PyErr_Clear();
	}
	return false;
}

static PyObject* CallUnary(const FPythonOperator& Operator, PyObject* Value)
{
	return Operator.Functions[0]->CallOn(Value, nullptr, 0, nullptr);
}

static FPythonRef CallBinary(const FPythonOperator& Operator, PyObject* Left, PyObject* Right)
{
	for (const TUniquePtr<FPythonFunction>& Function : Operator.Functions)
	{
		if (Takes(Function->GetInputs()[0], Right))
		{
			return FPythonRef::Steal(Function->CallOn(Left, &Right, 1, nullptr));
		}
		if (PyErr_Occurred())
		{
			return FPythonRef();
		}
	}
	return FPythonRef::Borrow(Py_NotImplemented);
}

/** The left operand with the result as its value; a result of another type takes its place. */
static PyObject* Assign(PyObject* Left, FPythonRef Result)
{
	if (Result.Get() == Py_None)
	{
		return FPythonRef::Borrow(Left).Release();
	}
	UScriptStruct* const Struct = PythonStruct::StructOfValue(Left);
	if (!Result || !Struct || PythonStruct::StructOfValue(Result.Get()) != Struct)
	{
		return Result.Release();
	}
	Struct->CopyScriptStruct(PythonStruct::MemoryOf(Left), PythonStruct::MemoryOf(Result.Get()));
	return FPythonRef::Borrow(Left).Release();
}

static PyObject* CallOperator(PyObject* Self, PyObject* const* Arguments, size_t CountAndFlags, PyObject* Keywords)
{
	const FPythonOperator& Operator = FPythonOperator::From(Self);
	const Py_ssize_t Wanted = Operator.Form == EPythonOperatorForm::Unary ? 1 : 2;
	if (PyVectorcall_NARGS(CountAndFlags) != Wanted || Keywords || !PyObject_TypeCheck(Arguments[0], Operator.Owner))
	{
		return PyErr_Format(PyExc_TypeError, "expected %zd operand%s, the first of type '%s'", Wanted, Wanted == 1 ? "" : "s",
			Operator.Owner->tp_name);
	}
	if (!FPythonInterpreter::CheckMainThread())
	{
		return nullptr;
	}
	if (Operator.Form == EPythonOperatorForm::Unary)
	{
		return CallUnary(Operator, Arguments[0]);
	}
	FPythonRef Result = CallBinary(Operator, Arguments[0], Arguments[1]);
	return Operator.Form == EPythonOperatorForm::InPlace && Result.Get() != Py_NotImplemented
		? Assign(Arguments[0], MoveTemp(Result))
		: Result.Release();
}

static PyObject* BindOperator(PyObject* Self, PyObject* Instance, PyObject*)
{
	return Instance ? PyMethod_New(Self, Instance) : FPythonRef::Borrow(Self).Release();
}

static PyMemberDef GOperatorMembers[] = {
	{"__vectorcalloffset__", T_PYSSIZET, sizeof(PyObject), READONLY, nullptr},
	{nullptr, 0, 0, 0, nullptr},
};

static PyTypeObject* OperatorType()
{
	static FPythonGlobalRef Type;
	if (!Type)
	{
		Type = FPythonTypeSpec::Of<FPythonOperator>(
			"unreal._Operator", Py_TPFLAGS_DISALLOW_INSTANTIATION | Py_TPFLAGS_HAVE_VECTORCALL | Py_TPFLAGS_METHOD_DESCRIPTOR)
				   .Members(GOperatorMembers)
				   .Function(Py_tp_call, &PyVectorcall_Call)
				   .Function(Py_tp_descr_get, &BindOperator)
				   .Make();
	}
	return Type.GetType();
}

/** Can the function be that operator? It returns something, a bool where it tells something, and takes no more than the operands. */
static bool HasForm(const FPythonFunction& Function, EPythonOperatorForm Form, bool bTells)
{
	const FPythonFunction::FParameter* const Return = Function.GetReturn();
	const bool bReturns = Return ? !bTells || Return->Property->IsA<FBoolProperty>() : Form == EPythonOperatorForm::InPlace;
	const int32 Operands = Form == EPythonOperatorForm::Unary ? 0 : 1;
	const TArray<FPythonFunction::FParameter>& Inputs = Function.GetInputs();
	if (!bReturns || Inputs.Num() < Operands)
	{
		return false;
	}
	for (int32 Index = Operands; Index < Inputs.Num(); ++Index)
	{
		if (!Inputs[Index].bHasDefault)
		{
			return false;
		}
	}
	return Function.GetOutputs().Num() == 0;
}

static bool AddOperator(PyTypeObject* Type, const FPythonOperatorName& Name, TUniquePtr<FPythonFunction> Function)
{
	const FPythonRef Key = PythonStrings::Intern(Name.Method);
	PyObject* const Known = PyDict_GetItemWithError(Type->tp_dict, Key.Get());
	if (Known && Py_TYPE(Known) == OperatorType())
	{
		FPythonOperator::From(Known).Functions.Add(MoveTemp(Function));
		return true;
	}
	TArray<TUniquePtr<FPythonFunction>> Functions;
	Functions.Add(MoveTemp(Function));
	const FPythonRef Operator = PythonTypes::New<FPythonOperator>(
		OperatorType(), static_cast<vectorcallfunc>(&CallOperator), Type, Name.Form, MoveTemp(Functions));
	return Operator && PythonTypes::AddAttribute(Type, Key.Get(), Operator.Get());
}

static const FPythonOperatorName* FindOperator(const FString& Sign)
{
	for (const FPythonOperatorName& Name : GOperators)
	{
		if (Sign == Name.Sign)
		{
			return &Name;
		}
	}
	return nullptr;
}

bool PythonOperators::AddToHost(PyTypeObject* Type, UFunction* Function)
{
	TArray<FString> Signs;
	Function->GetMetaData(TEXT("ScriptOperator")).ParseIntoArray(Signs, TEXT(";"));
	for (const FString& Sign : Signs)
	{
		const FPythonOperatorName* const Name = FindOperator(Sign.TrimStartAndEnd());
		TUniquePtr<FPythonFunction> Binding =
			Name ? FPythonFunction::MakeMethod(Function, UTF8_TO_TCHAR(Type->tp_name), Name->Method, FString()) : nullptr;
		const bool bTells = Name && (Name->Form == EPythonOperatorForm::Comparison || Name == &GOperators[0]);
		if (!Binding || !HasForm(*Binding, Name->Form, bTells))
		{
			UE_LOG(LogPython, Warning, TEXT("%s: cannot be the operator '%s' of '%s'"), *Function->GetPathName(), *Sign,
				UTF8_TO_TCHAR(Type->tp_name));
		}
		else if (!AddOperator(Type, *Name, MoveTemp(Binding)))
		{
			return false;
		}
	}
	return true;
}

TArray<const FPythonFunction*> PythonOperators::FunctionsOf(PyObject* Attribute)
{
	TArray<const FPythonFunction*> Result;
	if (Py_TYPE(Attribute) == OperatorType())
	{
		for (const TUniquePtr<FPythonFunction>& Function : FPythonOperator::From(Attribute).Functions)
		{
			Result.Add(Function.Get());
		}
	}
	return Result;
}
