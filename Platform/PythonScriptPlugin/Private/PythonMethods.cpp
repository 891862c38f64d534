#include "PythonMethods.h"

#include "PythonDocs.h"
#include "PythonErrors.h"
#include "PythonInterpreter.h"
#include "PythonNaming.h"
#include "PythonObjects.h"
#include "PythonStrings.h"
#include "PythonTypeSpec.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

#include <structmember.h>

/** A function as attribute of a type. The type outlives it, since it stands in the type's dictionary. */
struct FPythonMethod
{
	vectorcallfunc Vectorcall;
	PyTypeObject* Owner;
	TUniquePtr<FPythonFunction> Function;

	static const FPythonMethod& From(PyObject* Self) { return PythonTypes::StateOf<FPythonMethod>(Self); }
};

static PyObject* RaiseForeign(const FPythonMethod& Method)
{
	PythonErrors::Raise(PyExc_TypeError,
		FString::Printf(TEXT("%s() needs an object of type '%s' to be called on"), *Method.Function->GetName(),
			UTF8_TO_TCHAR(Method.Owner->tp_name)));
	return nullptr;
}

static PyObject* CallMember(PyObject* Self, PyObject* const* Arguments, size_t CountAndFlags, PyObject* Keywords)
{
	const FPythonMethod& Method = FPythonMethod::From(Self);
	const Py_ssize_t Count = PyVectorcall_NARGS(CountAndFlags);
	if (Count == 0 || !PyObject_TypeCheck(Arguments[0], Method.Owner))
	{
		return RaiseForeign(Method);
	}
	UObject* const Target = FPythonInterpreter::CheckMainThread() ? PythonObjects::FromWrapper(Arguments[0]) : nullptr;
	if (!Target)
	{
		return nullptr;
	}
	// A type that a script derived from several of the engine's is each of them to Python; its object is of one class.
	return Target->IsA(Method.Function->GetFunction()->GetOwnerClass())
		? Method.Function->Call(Target, Arguments + 1, Count - 1, Keywords)
		: RaiseForeign(Method);
}

static PyObject* CallStatic(PyObject* Self, PyObject* const* Arguments, size_t CountAndFlags, PyObject* Keywords)
{
	const FPythonFunction& Function = *FPythonMethod::From(Self).Function;
	if (!FPythonInterpreter::CheckMainThread())
	{
		return nullptr;
	}
	return Function.Call(Function.DefaultTarget(), Arguments, PyVectorcall_NARGS(CountAndFlags), Keywords);
}

/** A function of a library as method of a value, which is its first argument. */
static PyObject* CallOnValue(PyObject* Self, PyObject* const* Arguments, size_t CountAndFlags, PyObject* Keywords)
{
	const FPythonMethod& Method = FPythonMethod::From(Self);
	const Py_ssize_t Count = PyVectorcall_NARGS(CountAndFlags);
	if (Count == 0 || !PyObject_TypeCheck(Arguments[0], Method.Owner))
	{
		PythonErrors::Raise(PyExc_TypeError,
			FString::Printf(TEXT("%s() needs a value of type '%s' to be called on"), *Method.Function->GetName(),
				UTF8_TO_TCHAR(Method.Owner->tp_name)));
		return nullptr;
	}
	return FPythonInterpreter::CheckMainThread() ? Method.Function->CallOn(Arguments[0], Arguments + 1, Count - 1, Keywords)
												 : nullptr;
}

static PyObject* BindMember(PyObject* Self, PyObject* Instance, PyObject*)
{
	return Instance ? PyMethod_New(Self, Instance) : FPythonRef::Borrow(Self).Release();
}

/** A static function is the same whether it is taken from the type or from an instance. */
static PyObject* BindStatic(PyObject* Self, PyObject*, PyObject*)
{
	return FPythonRef::Borrow(Self).Release();
}

static PyObject* MethodName(PyObject* Self, void*)
{
	return PythonStrings::ToPython(FPythonMethod::From(Self).Function->GetName()).Release();
}

static PyObject* MethodQualifiedName(PyObject* Self, void*)
{
	const FPythonMethod& Method = FPythonMethod::From(Self);
	const FString Name = FString(UTF8_TO_TCHAR(Method.Owner->tp_name)) + TEXT(".") + Method.Function->GetName();
	return PythonStrings::ToPython(Name).Release();
}

static PyObject* MethodDoc(PyObject* Self, void*)
{
	return PythonStrings::ToPython(PythonDocs::Describe(*FPythonMethod::From(Self).Function)).Release();
}

static PyObject* MethodSignature(PyObject* Self, void*)
{
	return PythonStrings::ToPython(PythonDocs::TextSignature(*FPythonMethod::From(Self).Function)).Release();
}

static PyObject* MethodToRepr(PyObject* Self)
{
	const FPythonRef Name = FPythonRef::Steal(MethodQualifiedName(Self, nullptr));
	return Name ? PyUnicode_FromFormat("<built-in function %U>", Name.Get()) : nullptr;
}

/** The function to call is the first field behind Python's own. */
static PyMemberDef GMethodMembers[] = {
	{"__vectorcalloffset__", T_PYSSIZET, sizeof(PyObject), READONLY, nullptr},
	{nullptr, 0, 0, 0, nullptr},
};

static PyGetSetDef GMethodGetters[] = {
	{"__name__", MethodName, nullptr, nullptr, nullptr},
	{"__qualname__", MethodQualifiedName, nullptr, nullptr, nullptr},
	{"__doc__", MethodDoc, nullptr, nullptr, nullptr},
	{"__text_signature__", MethodSignature, nullptr, nullptr, nullptr},
	{nullptr, nullptr, nullptr, nullptr, nullptr},
};

static FPythonRef MakeMethodType(const ANSICHAR* Name, descrgetfunc Bind, unsigned long Flags)
{
	return FPythonTypeSpec::Of<FPythonMethod>(Name, Py_TPFLAGS_DISALLOW_INSTANTIATION | Py_TPFLAGS_HAVE_VECTORCALL | Flags)
		.Members(GMethodMembers)
		.Getters(GMethodGetters)
		.Function(Py_tp_call, &PyVectorcall_Call)
		.Function(Py_tp_descr_get, Bind)
		.Function(Py_tp_repr, &MethodToRepr)
		.Make();
}

static PyTypeObject* MethodType(bool bStatic)
{
	static FPythonGlobalRef MemberType;
	static FPythonGlobalRef StaticType;
	if (!MemberType)
	{
		// The flag lets obj.method(...) call without making a bound method first.
		MemberType = MakeMethodType("unreal._Method", &BindMember, Py_TPFLAGS_METHOD_DESCRIPTOR);
		StaticType = MakeMethodType("unreal._Function", &BindStatic, 0);
	}
	return bStatic ? StaticType.GetType() : MemberType.GetType();
}

bool PythonMethods::IsExposed(const UFunction* Function)
{
	return Function->HasAnyFunctionFlags(FUNC_BlueprintCallable | FUNC_BlueprintEvent) &&
		!Function->HasMetaData(TEXT("BlueprintInternalUseOnly"));
}

static FString DeprecationOf(const UFunction* Function)
{
	if (!Function->HasMetaData(TEXT("DeprecatedFunction")))
	{
		return FString();
	}
	const FString& Message = Function->GetMetaData(TEXT("DeprecationMessage"));
	return Message.IsEmpty() ? FString(TEXT("it will be removed")) : Message;
}

/** What a further name of a function says to scripts that use it; for the first one what the function itself says. */
static FString DeprecationOf(const UFunction* Function, const TArray<FString>& Names, const FString& Name)
{
	return Name != Names[0] ? FString::Printf(TEXT("use '%s'"), *Names[0]) : DeprecationOf(Function);
}

static bool AddMethod(PyTypeObject* Type, TUniquePtr<FPythonFunction> Binding)
{
	if (!Binding)
	{
		// A parameter of a kind that Python cannot carry: there is no such method.
		return true;
	}
	const vectorcallfunc Call = Binding->IsStatic() ? &CallStatic : Binding->GetSelf() ? &CallOnValue : &CallMember;
	const FPythonRef Key = PythonStrings::Intern(Binding->GetName());
	const FPythonRef Method = PythonTypes::New<FPythonMethod>(MethodType(Binding->IsStatic()), Call, Type, MoveTemp(Binding));
	return Method && PythonTypes::AddAttribute(Type, Key.Get(), Method.Get());
}

bool PythonMethods::Add(PyTypeObject* Type, const UClass* Class)
{
	for (TFieldIterator<UFunction> It(Class, EFieldIteratorFlags::ExcludeSuper); It; ++It)
	{
		if (!IsExposed(*It))
		{
			continue;
		}
		const TArray<FString> Names = PythonNaming::NamesOf(*It);
		for (const FString& Name : Names)
		{
			if (!AddMethod(Type, FPythonFunction::Make(*It, Name, DeprecationOf(*It, Names, Name))))
			{
				return false;
			}
		}
	}
	return true;
}

bool PythonMethods::AddToHost(PyTypeObject* Type, UFunction* Function)
{
	const TArray<FString> Names = PythonNaming::MethodNamesOf(Function);
	const FString Owner = UTF8_TO_TCHAR(Type->tp_name);
	for (const FString& Name : Names)
	{
		if (!AddMethod(Type, FPythonFunction::MakeMethod(Function, Owner, Name, DeprecationOf(Function, Names, Name))))
		{
			return false;
		}
	}
	return true;
}

const FPythonFunction* PythonMethods::FunctionOf(PyObject* Attribute)
{
	const bool bIsMethod = Py_TYPE(Attribute) == MethodType(false) || Py_TYPE(Attribute) == MethodType(true);
	return bIsMethod ? FPythonMethod::From(Attribute).Function.Get() : nullptr;
}
