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
	return Py_TYPE(Arguments[0]) == Method.Owner || Target->IsA(Method.Function->GetFunction()->GetOwnerClass())
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
	UObject* const Target = Function.GetFunction()->GetOwnerClass()->GetDefaultObject();
	return Function.Call(Target, Arguments, PyVectorcall_NARGS(CountAndFlags), Keywords);
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

static bool AddMethod(PyTypeObject* Type, UFunction* Function, const FString& Name, const FString& DeprecationMessage)
{
	TUniquePtr<FPythonFunction> Binding = FPythonFunction::Make(Function, Name, DeprecationMessage);
	if (!Binding)
	{
		// A parameter of a kind that Python cannot carry: there is no such method.
		return true;
	}
	const bool bStatic = Binding->IsStatic();
	const FPythonRef Key = PythonStrings::Intern(Name);
	const FPythonRef Method = PythonTypes::New<FPythonMethod>(
		MethodType(bStatic), static_cast<vectorcallfunc>(bStatic ? &CallStatic : &CallMember), Type, MoveTemp(Binding));
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
			const bool bIsAlias = Name != Names[0];
			if (!AddMethod(Type, *It, Name, bIsAlias ? FString::Printf(TEXT("use '%s'"), *Names[0]) : DeprecationOf(*It)))
			{
				return false;
			}
		}
	}
	return true;
}
