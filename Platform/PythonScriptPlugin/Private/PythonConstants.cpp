#include "PythonConstants.h"

#include "PythonErrors.h"
#include "PythonInterpreter.h"
#include "PythonLog.h"
#include "PythonNaming.h"
#include "PythonStrings.h"
#include "PythonTypeSpec.h"
#include "UObject/UnrealType.h"

/** A constant as attribute of a type. */
struct FPythonConstant
{
	TUniquePtr<FPythonFunction> Function;

	static const FPythonConstant& From(PyObject* Self) { return PythonTypes::StateOf<FPythonConstant>(Self); }
};

static PyObject* GetConstant(PyObject* Self, PyObject*, PyObject*)
{
	const FPythonFunction& Function = *FPythonConstant::From(Self).Function;
	return FPythonInterpreter::CheckMainThread() ? Function.Call(Function.DefaultTarget(), nullptr, 0, nullptr) : nullptr;
}

static int RefuseToSet(PyObject* Self, PyObject* Instance, PyObject*)
{
	PythonErrors::Raise(PyExc_AttributeError,
		FString::Printf(TEXT("constant '%s' of '%s' is read-only"), *FPythonConstant::From(Self).Function->GetName(),
			*PythonStrings::TypeNameOf(Instance)));
	return -1;
}

static PyObject* ConstantDoc(PyObject* Self, void*)
{
	const UFunction* const Function = FPythonConstant::From(Self).Function->GetFunction();
	return PythonStrings::ToPython(Function->GetToolTipText().ToString()).Release();
}

static PyGetSetDef GConstantGetters[] = {
	{"__doc__", ConstantDoc, nullptr, nullptr, nullptr},
	{nullptr, nullptr, nullptr, nullptr, nullptr},
};

static PyTypeObject* ConstantType()
{
	static FPythonGlobalRef Type;
	if (!Type)
	{
		Type = FPythonTypeSpec::Of<FPythonConstant>("unreal._Constant", Py_TPFLAGS_DISALLOW_INSTANTIATION)
				   .Getters(GConstantGetters)
				   .Function(Py_tp_descr_get, &GetConstant)
				   .Function(Py_tp_descr_set, &RefuseToSet)
				   .Make();
	}
	return Type.GetType();
}

static bool AddConstant(PyTypeObject* Type, TUniquePtr<FPythonFunction> Function)
{
	const FPythonRef Key = PythonStrings::Intern(Function->GetName());
	const FPythonRef Constant = PythonTypes::New<FPythonConstant>(ConstantType(), MoveTemp(Function));
	return Constant && PythonTypes::AddAttribute(Type, Key.Get(), Constant.Get());
}

bool PythonConstants::AddToHost(PyTypeObject* Type, UFunction* Function)
{
	for (const FString& Name : PythonNaming::ConstantNamesOf(Function))
	{
		TUniquePtr<FPythonFunction> Binding = FPythonFunction::Make(Function, Name, FString());
		if (!Binding || Binding->GetInputs().Num() > 0 || !Binding->GetReturn())
		{
			UE_LOG(LogPython, Warning, TEXT("%s: cannot be the constant '%s' of '%s'"), *Function->GetPathName(), *Name,
				UTF8_TO_TCHAR(Type->tp_name));
		}
		else if (!AddConstant(Type, MoveTemp(Binding)))
		{
			return false;
		}
	}
	return true;
}

const FPythonFunction* PythonConstants::FunctionOf(PyObject* Attribute)
{
	return Py_TYPE(Attribute) == ConstantType() ? FPythonConstant::From(Attribute).Function.Get() : nullptr;
}
